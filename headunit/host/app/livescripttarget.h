// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/host/app/deskscripttarget.h"

#include <QPointer>

class QEventLoop;

namespace headunit {

/// The unit that somebody works with, as a controller drives it beside them: its end is not the controller's.
class LiveScriptTarget : public DeskScriptTarget {
public:
    LiveScriptTarget(DeskWindow &window, Unit &unit) : DeskScriptTarget(window, unit, nullptr) {}

    void wait(int ms) override;
    void endWait() override;
    QVariantMap meters() override;
    /// What plays, see startSound().
    void setSound(QObject *sound) { m_sound = sound; }
    void setInterrupt(std::function<void()> interrupt) override { m_interrupt = std::move(interrupt); }

private:
    QPointer<QObject> m_sound;
    QEventLoop *m_loop = nullptr;
    std::function<void()> m_interrupt;
};

}  // namespace headunit
