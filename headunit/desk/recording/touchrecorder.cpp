// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/recording/touchrecorder.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/audio/service/soundtext.h"
#include "headunit/desk/frame/clock.h"
#include "headunit/desk/frame/deskcontext.h"
#include "headunit/desk/recording/objectpath.h"
#include "headunit/desk/setups/changestep.h"
#include "headunit/desk/setups/soundjson.h"
#include "headunit/settings/unitsettings.h"
#include "headunit/toolkit/language.h"

#include <QJsonDocument>
#include <QKeySequence>
#include <QWidget>

namespace headunit {

namespace {

/// A text as a script has it.
QString quoted(const QString &text) {
    const QString array = QString::fromUtf8(QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact));
    return array.mid(1, array.size() - 2);
}

/// All that is stored and sounds, as a call of a script.
QStringList setupCall() {
    const auto object = [](const SettingsMap &settings) {
        return QString::fromUtf8(QJsonDocument(settingsToJson(settings)).toJson()).trimmed();
    };
    const QByteArray sound = QJsonDocument(soundToJson(SoundModel::instance().state())).toJson(QJsonDocument::Compact);
    const QString call =
        QStringLiteral("setup(%1, %2, %3);")
            .arg(object(audioStore().values()), QString::fromUtf8(sound), object(sharedStore().values()));
    return call.split(QLatin1Char('\n'));
}

/// What else the unit was at, as calls.
QStringList circumstances() {
    const SoundState &state = SoundModel::instance().state();
    QStringList lines;
    lines << QStringLiteral("language(%1);").arg(quoted(Language::current()));
    lines << QStringLiteral("source(%1);").arg(state.activeSource);
    lines << QStringLiteral("mute(%1);").arg(state.muted ? QStringLiteral("true") : QStringLiteral("false"));
    for (int i = 0; i < SoundState::prompts; ++i) {
        if (state.activePrompts[static_cast<size_t>(i)]) {
            lines << QStringLiteral("prompt(%1, true);").arg(quoted(promptName(static_cast<Prompt>(i))));
        }
    }
    return lines;
}

/// The name of a key of the keyboard, if scripts know it by one.
QString keyName(int key) {
    const QString name = QKeySequence(key).toString(QKeySequence::PortableText);
    return QKeySequence(name, QKeySequence::PortableText) == QKeySequence(key) ? name : QString();
}

}  // namespace

TouchRecorder::TouchRecorder(DeskContext &context) : m_context(context) {
    connect(&context.touches, &TouchLog::touched, this, &TouchRecorder::take);
    connect(&context.history, &ChangeHistory::changedByDesk, this, &TouchRecorder::takeChange);
}

void TouchRecorder::start() {
    m_context.history.commit();
    m_context.host.restart();
    m_lines =
        QStringList{QStringLiteral("// A recording of the unit, see docs/scripts.md. It begins on the home screen.")};
    m_lines << setupCall() << circumstances() << QString();
    m_recording = true;
    m_down = false;
    m_keys.clear();
    m_touches = 0;
    m_start = deskClock();
    m_last = 0;
    Q_EMIT changed(m_lines);
}

void TouchRecorder::stop() {
    if (m_recording) {
        if (m_down) {
            add(QStringLiteral("release();"));  // or the script would end with the finger down
        }
        for (const int key : qAsConst(m_keys)) {
            add(QStringLiteral("keyUp(%1);").arg(quoted(keyName(key))));
        }
        m_recording = false;
        Q_EMIT changed({});
    }
}

QString TouchRecorder::script() const {
    return m_lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

/// A press names what it is on, so that a script says what is gone.
QString TouchRecorder::press(const QPoint &position) const {
    const QWidget *const window = m_context.host.window();
    const QWidget *named = nullptr;
    const QString path = objectPath(window, window->childAt(position), &named);
    if (path.isEmpty()) {
        return QStringLiteral("press(%1, %2);").arg(position.x()).arg(position.y());
    }
    const QPoint inside = named->mapFrom(window, position);
    return QStringLiteral("press(%1, %2, %3);").arg(quoted(path)).arg(inside.x()).arg(inside.y());
}

void TouchRecorder::take(const Touch &touch) {
    if (!m_recording) {
        return;
    }
    const QString place = QStringLiteral("(%1, %2);").arg(touch.position.x()).arg(touch.position.y());
    switch (touch.kind) {
        case Touch::Down:
            if (!m_down) {  // a double click comes as two presses
                m_down = true;
                ++m_touches;
                add(press(touch.position));
            }
            break;
        case Touch::Move:
            if (m_down) {
                add(QStringLiteral("slide") + place);
            }
            break;
        case Touch::Up:
            if (m_down) {
                m_down = false;
                add(QStringLiteral("release") + place);
            }
            break;
        case Touch::KeyDown:
            if (touch.key != Qt::Key_F12 && !keyName(touch.key).isEmpty()) {  // F12 is the desk's
                m_touches += m_keys.contains(touch.key) ? 0 : 1;
                m_keys << touch.key;
                add(QStringLiteral("keyDown(%1);").arg(quoted(keyName(touch.key))));
            }
            break;
        case Touch::KeyUp:
            if (m_keys.remove(touch.key)) {
                add(QStringLiteral("keyUp(%1);").arg(quoted(keyName(touch.key))));
            }
            break;
    }
}

/// What the desk changes meanwhile is part of what happened.
void TouchRecorder::takeChange() {
    if (m_recording) {
        add(setupCall().join(QLatin1Char('\n')));
    }
}

void TouchRecorder::add(const QString &line) {
    const qint64 now = deskClock() - m_start;
    const QString wait = now > m_last ? QStringLiteral("wait(%1); ").arg(now - m_last) : QString();
    m_last = now;
    m_lines << wait + line;
    Q_EMIT changed({m_lines.last()});
}

}  // namespace headunit
