// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/setups/unitstate.h"

#include <QJsonObject>
#include <QUndoCommand>

namespace headunit {

class ChangeHistory;

/// A change of the settings, whoever made it, as a step that can be undone. Changes with one id make one step.
class ChangeStep : public QUndoCommand {
public:
    /// The cause of a step, for its text.
    enum Cause { Page, Reset, FlatCrossover, FlatDelays, ByTheDesk };

    ChangeStep(ChangeHistory &history, int id, Cause cause, const QString &origin, const UnitState &before,
               const UnitState &after);
    /// A step of an earlier run.
    ChangeStep(ChangeHistory &history, const QJsonObject &saved);
    QJsonObject toJson() const;

    int id() const override { return m_id; }
    bool mergeWith(const QUndoCommand *later) override;
    void undo() override;
    void redo() override;
    /// The text in the language in force.
    void describe();
    int changedKeys() const { return m_before.keys.size(); }

private:
    ChangeHistory &m_history;
    int m_id;
    Cause m_cause;
    QString m_origin;    ///< of a page its name (see pageOf()), of the desk what it did
    UnitState m_before;  ///< of the keys only those that changed; an invalid value: not set
    UnitState m_after;
};

/// For files.
QJsonObject settingsToJson(const SettingsMap &settings);
SettingsMap settingsFromJson(const QJsonObject &object);

}  // namespace headunit
