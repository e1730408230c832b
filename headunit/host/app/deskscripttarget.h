// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/host/app/endsignals.h"
#include "headunit/host/script/scripttarget.h"
#include "headunit/virtualtime/virtualtimelibrary.h"

#include <memory>

namespace headunit {

class DeskWindow;
class Unit;

/// The desk head unit, as scripts drive it.
class DeskScriptTarget : public ScriptTarget {
public:
    /// \a moveTime is null where time passes by itself.
    DeskScriptTarget(DeskWindow &window, Unit &unit, MoveTime moveTime);

    QWidget *window() override;
    QWidget *screen() override;
    void wait(int ms) override;
    void setInterrupt(std::function<void()> interrupt) override;
    void refreshFront() override;
    bool openApplication(const QString &id) override;
    void showHome() override;
    void showCar() override;
    bool requestVolumeSettings() override;
    void setCallActive(bool active) override;
    bool setSource(int source) override;
    bool setLanguage(const QString &code) override;

private:
    DeskWindow &m_window;
    Unit &m_unit;
    const MoveTime m_moveTime;
    std::unique_ptr<EndSignals> m_endSignals;
};

/// Loads the script library that stands beside the host and runs a script, or with an empty \a file the tour.
/// Pictures go to \a folder. Returns the process's exit code.
int runScript(ScriptTarget &target, const QString &file, const QString &folder);

}  // namespace headunit
