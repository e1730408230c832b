// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/touchlog.h"
#include "headunit/desk/setups/changestep.h"
#include "headunit/settings/trace.h"

#include <QTimer>
#include <QUndoStack>

#include <functional>

namespace headunit {

class DeskHost;

/// Every change of the settings while the desk is open, by whatever page, as steps that can be undone and redone: what
/// one touch changed is one step. The last fifty are kept over a restart, with what was changed while the desk was
/// closed as a step of its own.
class ChangeHistory : public QObject {
    Q_OBJECT
public:
    static constexpr int mostSteps = 50;

    ChangeHistory(DeskHost &host, TouchLog &touches);
    ~ChangeHistory() override;

    QUndoStack &stack() { return m_stack; }
    /// The text of the last step, empty where there is none.
    QString lastStep() const { return m_stack.undoText(); }
    /// Changes the settings on behalf of the desk. \a name is a text of the desk, in English; calls with one \a id that
    /// follow each other are one step, -1 never.
    void change(const char *name, int id, const SettingsMap &keys, const SoundState *sound);
    /// Takes up now what was changed.
    void commit();
    /// Puts a step's side in force; for ChangeStep.
    void putBack(const UnitState &side);
    void retranslate();

Q_SIGNALS:
    /// A step was made, or grew.
    void stepped(const QString &text);
    /// The desk itself changed the settings: a set-up, an undo.
    void changedByDesk();

private:
    void takeEntry(const TraceEntry &entry);
    void push(ChangeStep *step);
    void load();
    void save();

    DeskHost &m_host;
    TouchLog &m_touches;
    QUndoStack m_stack;
    UnitState m_last;                              ///< as of the last step
    ChangeStep::Cause m_cause = ChangeStep::Page;  ///< of what is not committed yet ...
    QString m_page;                                ///< ... and where it came from
    int m_touch = 0;                               ///< ... with which touch
    UnitState m_silent;                            ///< where keys were written, and no reader finds a difference ...
    int m_silentTouch = -1;                        ///< ... and with which touch; -1: nowhere
    bool m_passive = false;                        ///< steps are put on the stack, and nothing is put in force
    bool m_acting = false;                         ///< the changes are the desk's own
    QTimer m_commit;
    QTimer m_save;
    TraceListener m_listener;
};

}  // namespace headunit
