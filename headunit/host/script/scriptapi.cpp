// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/script/scriptapi.h"

#include "audioservice.h"
#include "headunit/audio/engine/layout.h"
#include "headunit/audio/service/soundtext.h"
#include "headunit/host/script/scriptsetup.h"
#include "headunit/host/script/scripttarget.h"
#include "headunit/host/script/soundobject.h"
#include "headunit/settings/lines.h"
#include "headunit/settings/unitsettings.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QJSEngine>
#include <QKeySequence>
#include <QMetaMethod>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <climits>

namespace headunit {

namespace {

// A mouse that is held leaves the window; the way to a place far away would take days.
constexpr int besideTheScreen = 1;

}  // namespace

ScriptApi::ScriptApi(ScriptTarget &target, QJSEngine *engine, const QString &folder)
    : QObject(engine), m_target(target), m_engine(engine), m_folder(folder), m_finger(target) {}

void ScriptApi::install() {
    const QJSValue self = m_engine->newQObject(this);
    for (int i = metaObject()->methodOffset(); i < metaObject()->methodCount(); ++i) {
        const QString name = QString::fromLatin1(metaObject()->method(i).name());
        m_engine->globalObject().setProperty(name, self.property(name));
    }
}

void ScriptApi::fail(const QString &message) {
    m_engine->throwError(message);
}

QList<QWidget *> ScriptApi::all(const QString &name) {
    QList<QWidget *> found = {m_target.window()};
    for (const QString &part : name.split(QLatin1Char('/'))) {
        QList<QWidget *> next;
        for (const QWidget *parent : qAsConst(found)) {
            for (QWidget *child : parent->findChildren<QWidget *>()) {
                if (child->objectName() == part || part == QLatin1String(child->metaObject()->className())) {
                    next << child;
                }
            }
        }
        found = next;
    }
    return found;
}

QWidget *ScriptApi::find(const QString &name) {
    QList<QWidget *> found = all(name);
    found.erase(std::remove_if(found.begin(), found.end(), [](const QWidget *widget) { return !widget->isVisible(); }),
                found.end());
    if (found.size() == 1) {
        return found.first();
    }
    fail(found.isEmpty() ? QStringLiteral("nothing named \"%1\" is visible").arg(name)
                         : QStringLiteral("%1 visible objects are named \"%2\"").arg(found.size()).arg(name));
    return nullptr;
}

/// Whether a place lies on the screen, or at most \a screens beside it; if not, that is the script's failure.
bool ScriptApi::isInReach(double x, double y, int screens) {
    const QSize size = m_target.window()->size();
    // Written so that "NaN" fails too.
    if (x >= -screens * size.width() && x < (screens + 1) * size.width() && y >= -screens * size.height() &&
        y < (screens + 1) * size.height()) {
        return true;
    }
    fail(QStringLiteral("%1, %2 is outside the screen").arg(x, 0, 'g', 10).arg(y, 0, 'g', 10));
    return false;
}

bool ScriptApi::locate(const QJSValue &place, const QJSValue &x, const QJSValue &y, QPoint *position) {
    if (place.isNumber() && x.isNumber()) {
        *position = QPoint(place.toInt(), x.toInt());
        return isInReach(place.toNumber(), x.toNumber(), 0);
    }
    const bool inside = x.isNumber() && y.isNumber();
    if (!place.isString() || !(inside || x.isUndefined())) {
        fail(QStringLiteral("a place is a name, or x and y, or both"));
        return false;
    }
    QWidget *const widget = find(place.toString());
    if (!widget) {
        return false;
    }
    const QPoint local = inside ? QPoint(x.toInt(), y.toInt()) : widget->rect().center();
    if (!widget->rect().contains(local)) {
        fail(QStringLiteral("%1, %2 is outside \"%3\"").arg(local.x()).arg(local.y()).arg(place.toString()));
        return false;
    }
    *position = widget->mapTo(m_target.window(), local);
    QWidget *const top = m_target.window()->childAt(*position);
    if (top != widget && !widget->isAncestorOf(top)) {
        fail(QStringLiteral("\"%1\" is covered by \"%2\"")
                 .arg(widget->objectName(), top ? top->objectName() : QString()));
        return false;
    }
    return true;
}

void ScriptApi::tap(const QJSValue &place, const QJSValue &y) {
    press(place, y);
    if (m_finger.isDown()) {
        release();
    }
}

void ScriptApi::press(const QJSValue &place, const QJSValue &x, const QJSValue &y) {
    QPoint position;
    if (m_finger.isDown()) {
        fail(QStringLiteral("the finger is down already"));
    } else if (locate(place, x, y, &position)) {
        m_finger.press(position);
    }
}

void ScriptApi::move(double x, double y) {
    if (!m_finger.isDown()) {
        fail(QStringLiteral("the finger is not down"));
    } else if (isInReach(x, y, besideTheScreen)) {
        m_finger.moveTo(QPoint(int(x), int(y)));
    }
}

void ScriptApi::slide(int x, int y) {
    if (m_finger.isDown()) {
        m_finger.slideTo(QPoint(x, y));
    } else {
        fail(QStringLiteral("the finger is not down"));
    }
}

void ScriptApi::release(const QJSValue &x, const QJSValue &y) {
    if (!m_finger.isDown()) {
        fail(QStringLiteral("the finger is not down"));
    } else if (x.isNumber() && y.isNumber()) {
        m_finger.releaseAt(QPoint(x.toInt(), y.toInt()));
    } else {
        m_finger.release();
    }
}

void ScriptApi::sendKey(const QString &name, bool down) {
    const QKeySequence key(name, QKeySequence::PortableText);
    if (key.count() != 1 || key[0] == Qt::Key_unknown) {
        fail(QStringLiteral("there is no key \"%1\"").arg(name));
        return;
    }
    m_finger.key(key[0], down);
}

void ScriptApi::keyDown(const QString &name) {
    sendKey(name, true);
}

void ScriptApi::keyUp(const QString &name) {
    sendKey(name, false);
}

void ScriptApi::lift() {
    if (m_finger.isDown()) {
        m_finger.release();
    }
}

void ScriptApi::drag(const QString &name, const QJSValue &from, const QJSValue &y1, const QJSValue &x2,
                     const QJSValue &y2) {
    QWidget *const widget = find(name);
    if (!widget) {
        return;
    }
    QVector<QPoint> points;
    if (from.isArray()) {
        const int count = from.property(QStringLiteral("length")).toInt();
        for (int i = 0; i < count; ++i) {
            points << QPoint(from.property(i).property(0).toInt(), from.property(i).property(1).toInt());
        }
    } else {
        points << QPoint(from.toInt(), y1.toInt()) << QPoint(x2.toInt(), y2.toInt());
    }
    if (points.size() < 2) {
        fail(QStringLiteral("a drag needs two points at least"));
        return;
    }
    const QPoint origin = widget->mapTo(m_target.window(), QPoint());
    for (const QPoint &point : qAsConst(points)) {
        if (!isInReach(double(origin.x()) + point.x(), double(origin.y()) + point.y(), besideTheScreen)) {
            return;
        }
    }
    const QPoint start = origin + points.takeFirst();
    press(start.x(), start.y());
    for (const QPoint &point : qAsConst(points)) {
        if (m_finger.isDown()) {
            m_finger.moveTo(origin + point);
        }
    }
    if (m_finger.isDown()) {
        release();
    }
}

void ScriptApi::wait(const QJSValue &ms) {
    const double time = ms.isNumber() ? ms.toNumber() : -1;
    if (time >= 0 && time <= INT_MAX) {
        m_finger.wait(int(time));
    } else {
        fail(QStringLiteral("cannot wait %1 ms").arg(ms.toString()));
    }
}

void ScriptApi::shot(const QString &file, const QString &description) {
    const QString path = QDir(m_folder).filePath(file);
    QDir().mkpath(QFileInfo(path).path());
    // The current screen, whatever still fades over it.
    const QList<QWidget *> fading = m_target.screen()->findChildren<QWidget *>(QStringLiteral("fading"));
    for (QWidget *picture : fading) {
        picture->hide();
    }
    if (!m_target.screen()->grab().save(path)) {
        fail(QStringLiteral("cannot write %1").arg(path));
        return;
    }
    if (!description.isEmpty()) {
        log(QStringLiteral("%1  %2").arg(file, description));
    }
}

bool ScriptApi::read(const QString &name, const QString &property, QJSValue *value) {
    QWidget *const widget = find(name);
    if (!widget) {
        return false;
    }
    const QVariant variant = widget->property(property.toLatin1());
    if (!variant.isValid()) {
        fail(QStringLiteral("\"%1\" has no property \"%2\"").arg(name, property));
        return false;
    }
    *value = m_engine->toScriptValue(variant);
    return true;
}

QJSValue ScriptApi::get(const QString &name, const QString &property) {
    QJSValue value;
    read(name, property, &value);
    return value;
}

void ScriptApi::expect(const QJSValue &what, const QJSValue &property, const QJSValue &value) {
    if (value.isUndefined()) {
        if (!what.toBool()) {
            fail(property.isUndefined() ? QStringLiteral("expectation failed") : property.toString());
        }
        return;
    }
    const QString name = what.toString();
    QJSValue actual;
    if (property.toString() == QLatin1String("visible")) {
        // The one property of a widget that is not visible.
        const QList<QWidget *> widgets = all(name);
        actual = std::any_of(widgets.begin(), widgets.end(), [](const QWidget *widget) { return widget->isVisible(); });
    } else if (!read(name, property.toString(), &actual)) {
        return;
    }
    if (!actual.strictlyEquals(value)) {
        fail(QStringLiteral("%1.%2 is %3, expected %4")
                 .arg(name, property.toString(), actual.toString(), value.toString()));
    }
}

void ScriptApi::log(const QJSValue &text) {
    if (m_printer) {
        m_printer(text.toString());
        return;
    }
    print(text.toString());
}

QJSValue ScriptApi::store(const QString &key) {
    const SettingsMap &audio = audioStore().values();
    return m_engine->toScriptValue(audio.contains(key) ? audio.value(key) : sharedStore().values().value(key));
}

void ScriptApi::setStore(const QString &key, const QJSValue &value) {
    // Numbers of scripts are real ones; the unit's settings are whole ones.
    audioStore().set(key, value.isNumber() ? QVariant(value.toInt()) : value.toVariant());
}

void ScriptApi::setup(const QJSValue &settings, const QJSValue &sound, const QJSValue &shared) {
    if (!settings.isObject() || !sound.isArray() || !shared.isObject()) {
        fail(QStringLiteral("a set-up is two objects of settings, with an array of numbers between them"));
        return;
    }
    restoreSetup(settings.toVariant().toMap(), sound.toVariant().toList(), shared.toVariant().toMap(),
                 [this] { m_target.refreshFront(); });
    m_target.wait(0);
}

QJSValue ScriptApi::sound() {
    return soundObject(*m_engine);
}

QJSValue ScriptApi::heard(double hz, int input) {
    if (!(hz > 0 && hz < engine::sampleRate / 2) || input < 0 || input >= static_cast<int>(engine::inputCount)) {
        fail(QStringLiteral("there is no tone of %1 Hz on input %2").arg(hz).arg(input));
        return QJSValue();
    }
    return heardObject(*m_engine, hz, input);
}

QJSValue ScriptApi::arrival() {
    return arrivalArray(*m_engine);
}

QJSValue ScriptApi::meters() {
    const QVariantMap readings = m_target.meters();
    if (readings.isEmpty()) {
        fail(QStringLiteral("no sound is played here"));
    }
    return m_engine->toScriptValue(readings);
}

void ScriptApi::language(const QString &code) {
    if (!m_target.setLanguage(code)) {
        fail(QStringLiteral("there is no language \"%1\"").arg(code));
    }
    m_target.wait(0);
}

void ScriptApi::request() {
    if (!m_target.requestVolumeSettings()) {
        fail(QStringLiteral("there are no audio settings to open"));
    }
    m_target.wait(0);
}

void ScriptApi::volume(int type, int level) {
    qvaudio::AudioService::instance()->setVolumeLevel(level, type);
    m_target.wait(0);
}

void ScriptApi::source(int number) {
    if (!m_target.setSource(number)) {
        fail(QStringLiteral("there is no source %1").arg(number));
    }
}

void ScriptApi::call(bool active) {
    m_target.setCallActive(active);
    m_target.wait(0);
}

void ScriptApi::mute(bool muted) {
    SoundModel::instance().setMuted(muted);
    m_target.wait(0);
}

void ScriptApi::prompt(const QString &name, bool active) {
    for (int i = 0; i < SoundState::prompts; ++i) {
        if (promptName(static_cast<Prompt>(i)) == name) {
            SoundModel::instance().setPromptActive(static_cast<Prompt>(i), active);
            m_target.wait(0);
            return;
        }
    }
    fail(QStringLiteral("there is no prompt \"%1\"").arg(name));
}

void ScriptApi::open(const QString &application) {
    if (!m_target.openApplication(application)) {
        fail(QStringLiteral("there is no application \"%1\"").arg(application));
    }
    m_target.wait(0);
}

void ScriptApi::home() {
    m_target.showHome();
    m_target.wait(0);
}

void ScriptApi::car() {
    m_target.showCar();
    m_target.wait(0);
}

}  // namespace headunit
