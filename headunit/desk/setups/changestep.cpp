// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/changestep.h"

#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/pages.h"
#include "headunit/desk/setups/changehistory.h"
#include "headunit/desk/setups/setupfile.h"
#include "headunit/desk/setups/setupnumber.h"
#include "headunit/desk/setups/setuptable.h"
#include "headunit/desk/setups/soundjson.h"

#include <QJsonArray>

namespace headunit {

namespace {

const QString causeKey = QStringLiteral("cause");
const QString originKey = QStringLiteral("origin");
const QString beforeKey = QStringLiteral("before");
const QString afterKey = QStringLiteral("after");
const QString soundBeforeKey = QStringLiteral("soundBefore");
const QString soundAfterKey = QStringLiteral("soundAfter");

/// The value of \a key, as in a set-up file where it is part of one.
QString valueText(const QString &key, const SettingsMap &settings) {
    const SetupValue *const value = setupValueOfKey(key);
    return value ? setupNumberText(*value, setupNumber(*value, settings)) : settings.value(key).toString();
}

}  // namespace

QJsonObject settingsToJson(const SettingsMap &settings) {
    QJsonObject object;
    for (auto it = settings.cbegin(); it != settings.cend(); ++it) {
        object[it.key()] = QJsonValue::fromVariant(it.value());  // null: not set
    }
    return object;
}

SettingsMap settingsFromJson(const QJsonObject &object) {
    SettingsMap settings;
    for (auto it = object.begin(); it != object.end(); ++it) {
        settings.insert(it.key(), it.value().isNull() ? QVariant() : storableValue(it.value().toVariant()));
        // JSON has one kind of number
        const QVariant value = settings.value(it.key());
        if (value.userType() == QMetaType::Double && value.toDouble() == int(value.toDouble())) {
            settings.insert(it.key(), value.toInt());
        }
    }
    return settings;
}

ChangeStep::ChangeStep(ChangeHistory &history, int id, Cause cause, const QString &origin, const UnitState &before,
                       const UnitState &after)
    : m_history(history), m_id(id), m_cause(cause), m_origin(origin) {
    m_before.sound = before.sound;
    m_after.sound = after.sound;
    for (const SettingsMap *map : {&before.keys, &after.keys}) {
        for (auto it = map->cbegin(); it != map->cend(); ++it) {
            const QVariant old = before.keys.value(it.key());
            const QVariant now = after.keys.value(it.key());
            if (!sameValue(old, now)) {
                m_before.keys.insert(it.key(), old);
                m_after.keys.insert(it.key(), now);
            }
        }
    }
    describe();
}

ChangeStep::ChangeStep(ChangeHistory &history, const QJsonObject &saved)
    : m_history(history),
      m_id(-1),  // touches are counted anew
      m_cause(static_cast<Cause>(qBound(int(Page), saved[causeKey].toInt(), int(ByTheDesk)))),
      m_origin(saved[originKey].toString()) {
    m_before.keys = settingsFromJson(saved[beforeKey].toObject());
    m_after.keys = settingsFromJson(saved[afterKey].toObject());
    m_before.sound = soundFromJson(saved[soundBeforeKey].toArray());
    m_after.sound = soundFromJson(saved[soundAfterKey].toArray());
    describe();
}

QJsonObject ChangeStep::toJson() const {
    QJsonObject object;
    object[causeKey] = m_cause;
    object[originKey] = m_origin;
    object[beforeKey] = settingsToJson(m_before.keys);
    object[afterKey] = settingsToJson(m_after.keys);
    object[soundBeforeKey] = soundToJson(m_before.sound);
    object[soundAfterKey] = soundToJson(m_after.sound);
    return object;
}

bool ChangeStep::mergeWith(const QUndoCommand *later) {
    const auto &next = static_cast<const ChangeStep &>(*later);
    for (auto it = next.m_after.keys.cbegin(); it != next.m_after.keys.cend(); ++it) {
        if (!m_before.keys.contains(it.key())) {
            m_before.keys.insert(it.key(), next.m_before.keys.value(it.key()));
        }
        m_after.keys.insert(it.key(), it.value());
        if (sameValue(m_before.keys.value(it.key()), it.value())) {
            m_before.keys.remove(it.key());
            m_after.keys.remove(it.key());
        }
    }
    m_after.sound = next.m_after.sound;
    if (next.m_cause != Page) {
        m_cause = next.m_cause;
        m_origin = next.m_origin;
    }
    setObsolete(m_before.keys.isEmpty());  // back where it began
    describe();
    return true;
}

void ChangeStep::describe() {
    const int count = changedKeys();
    QString text;
    switch (m_cause) {
        case Reset:
            text = deskText("Reset: %1 settings").arg(count);
            break;
        case FlatCrossover:
            text = deskText("Crossover flat: %1 settings").arg(count);
            break;
        case FlatDelays:
            text = deskText("Delays flat: %1 settings").arg(count);
            break;
        case ByTheDesk:
            text = deskText("%1: %2 settings").arg(deskText(m_origin.toUtf8().constData())).arg(count);
            break;
        case Page:
            text = deskText("%1: %2 settings").arg(pageTitle(m_origin)).arg(count);
            break;
    }
    if (m_cause == Page && count == 1) {
        const QString key = m_before.keys.cbegin().key();
        const SetupValue *const value = setupValueOfKey(key);
        text =
            setupChangeText({value ? value->name : key, valueText(key, m_before.keys), valueText(key, m_after.keys)});
    }
    setText(text);
}

void ChangeStep::undo() {
    m_history.putBack(m_before);
}

void ChangeStep::redo() {
    m_history.putBack(m_after);
}

}  // namespace headunit
