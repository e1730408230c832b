// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/changehistory.h"

#include "headunit/desk/frame/deskhost.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/pages.h"
#include "headunit/desk/setups/setupnumber.h"
#include "headunit/desk/setups/setuptable.h"
#include "headunit/desk/setups/soundjson.h"
#include "headunit/settings/unitroot.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>
#include <QScopedValueRollback>

namespace headunit {

namespace {

constexpr int saveGatherTime = 500;  // ms
constexpr int formatVersion = 1;
constexpr qint64 sizeLimit = qint64(8) << 20;
const QString versionKey = QStringLiteral("version");
const QString stepsKey = QStringLiteral("steps");
const QString indexKey = QStringLiteral("index");
const QString keysKey = QStringLiteral("keys");
const QString soundKey = QStringLiteral("sound");

QString historyFolder() {
    return unitRoot() + QStringLiteral("/desk");
}

QString historyFile() {
    return historyFolder() + QStringLiteral("/history.json");
}

/// Whether readers find the same in both: a page that is shown for the first time writes what it reads by default.
bool sameReadings(const SettingsMap &a, const SettingsMap &b) {
    for (const SettingsMap *map : {&a, &b}) {
        for (auto it = map->cbegin(); it != map->cend(); ++it) {
            const SetupValue *const value = setupValueOfKey(it.key());
            if (value ? setupNumber(*value, a) != setupNumber(*value, b)
                      : !sameValue(a.value(it.key()), b.value(it.key()))) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

ChangeHistory::ChangeHistory(DeskHost &host, TouchLog &touches)
    : m_host(host),
      m_touches(touches),
      m_last(currentState()),
      m_listener([this](const TraceEntry &entry) { takeEntry(entry); }) {
    m_stack.setUndoLimit(mostSteps);
    m_commit.setSingleShot(true);
    m_commit.setInterval(0);
    connect(&m_commit, &QTimer::timeout, this, &ChangeHistory::commit);
    m_save.setSingleShot(true);
    m_save.setInterval(saveGatherTime);
    connect(&m_save, &QTimer::timeout, this, &ChangeHistory::save);
    load();
    connect(&m_stack, &QUndoStack::indexChanged, &m_save, QOverload<>::of(&QTimer::start));
}

ChangeHistory::~ChangeHistory() {
    commit();
    save();
}

void ChangeHistory::takeEntry(const TraceEntry &entry) {
    if (m_acting) {
        return;
    }
    // Changes by an earlier touch are a step of their own.
    if (m_commit.isActive() && m_touch != m_touches.number()) {
        commit();
    }
    if (entry.call.startsWith(QLatin1String("clear("))) {
        m_cause = ChangeStep::Reset;
    } else if (entry.call == QLatin1String("flatCrossover()")) {
        m_cause = ChangeStep::FlatCrossover;
    } else if (entry.call == QLatin1String("flatTimeDelay()")) {
        m_cause = ChangeStep::FlatDelays;
    }
    if (!m_commit.isActive()) {
        m_touch = m_touches.number();
        m_page = frontPage(m_host.screen());
        m_commit.start();
    }
}

void ChangeHistory::commit() {
    m_commit.stop();
    if (m_silentTouch >= 0 && m_silentTouch != m_touch) {
        m_last = m_silent;
    }
    m_silentTouch = -1;
    const UnitState now = currentState();
    if (sameReadings(now.keys, m_last.keys)) {
        // No step, but part of one if the same touch goes on to change something.
        m_silent = now;
        m_silentTouch = m_touch;
        m_last.sound = now.sound;
    } else {
        const int id = m_touch > 0 ? m_touch : -1;
        push(new ChangeStep(*this, id, m_cause, m_page, m_last, now));
        m_last = now;
        Q_EMIT stepped(m_stack.undoText());
    }
    m_cause = ChangeStep::Page;
}

void ChangeHistory::push(ChangeStep *step) {
    const QScopedValueRollback<bool> passive(m_passive, true);  // what a step did is done
    m_stack.push(step);
    m_save.start();
}

void ChangeHistory::change(const char *name, int id, const SettingsMap &keys, const SoundState *sound) {
    commit();
    {
        const QScopedValueRollback<bool> acting(m_acting, true);
        putInForce(keys, sound, [this] { m_host.refreshFront(); });
    }
    const UnitState now = currentState();
    if (!sameReadings(now.keys, m_last.keys)) {
        push(new ChangeStep(*this, id, ChangeStep::ByTheDesk, QString::fromUtf8(name), m_last, now));
        Q_EMIT stepped(m_stack.undoText());
    }
    m_last = now;
    m_silentTouch = -1;
    Q_EMIT changedByDesk();
}

void ChangeHistory::putBack(const UnitState &side) {
    if (m_passive) {
        return;
    }
    {
        const QScopedValueRollback<bool> acting(m_acting, true);
        putInForce(side.keys, &side.sound, [this] { m_host.refreshFront(); });
    }
    m_last = currentState();
    m_silentTouch = -1;
    Q_EMIT changedByDesk();
}

void ChangeHistory::retranslate() {
    for (int i = 0; i < m_stack.count(); ++i) {
        // The stack shows its steps as constant, for whoever is not their owner.
        static_cast<ChangeStep *>(const_cast<QUndoCommand *>(m_stack.command(i)))->describe();
    }
}

void ChangeHistory::save() {
    m_save.stop();
    QJsonArray steps;
    for (int i = 0; i < m_stack.count(); ++i) {
        steps.append(static_cast<const ChangeStep *>(m_stack.command(i))->toJson());
    }
    QJsonObject object;
    object[versionKey] = formatVersion;
    object[stepsKey] = steps;
    object[indexKey] = m_stack.index();
    object[keysKey] = settingsToJson(m_last.keys);
    object[soundKey] = soundToJson(m_last.sound);
    QDir().mkpath(historyFolder());
    QSaveFile file(historyFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(QJsonDocument(object).toJson(QJsonDocument::Compact)) < 0 ||
        !file.commit()) {
        qWarning("%s: %s; what can be undone will be forgotten", qUtf8Printable(file.fileName()),
                 qUtf8Printable(file.errorString()));
    }
}

void ChangeHistory::load() {
    QFile file(historyFile());
    if (!file.open(QIODevice::ReadOnly)) {
        return;  // the first time
    }
    const QJsonObject object = QJsonDocument::fromJson(file.read(sizeLimit)).object();
    if (object[versionKey].toInt() != formatVersion) {
        qWarning("%s: not a history of changes; begun anew", qUtf8Printable(file.fileName()));
        return;
    }
    const QScopedValueRollback<bool> passive(m_passive, true);
    for (const QJsonValue &step : object[stepsKey].toArray()) {
        auto *const command = new ChangeStep(*this, step.toObject());
        m_stack.push(command);
    }
    m_stack.setIndex(qBound(0, object[indexKey].toInt(), m_stack.count()));
    UnitState then;
    then.keys = settingsFromJson(object[keysKey].toObject());
    then.sound = soundFromJson(object[soundKey].toArray());
    if (!sameReadings(then.keys, m_last.keys)) {
        m_stack.push(new ChangeStep(*this, -1, ChangeStep::ByTheDesk,
                                    QString::fromUtf8(DESK_TEXT("Changed while the desk was closed")), then, m_last));
    }
}

}  // namespace headunit
