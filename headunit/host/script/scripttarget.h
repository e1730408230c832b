// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>

class QWidget;

namespace headunit {

/// The operations on the unit that a script has besides touching it. The script engine is a library of its own, loaded
/// only when there is a script; this is all that it knows of the host.
class ScriptTarget {
public:
    virtual ~ScriptTarget() = default;

    /// The desk window, with the screen and the hard keys.
    virtual QWidget *window() = 0;
    /// The screen of 1024 x 600.
    virtual QWidget *screen() = 0;
    /// Lets \a ms milliseconds pass, delivering what falls due. 0: delivers what is pending.
    virtual void wait(int ms) = 0;

    /// Ends a wait() that goes on; the script's next one waits again.
    virtual void endWait() {}

    /// From now on \a interrupt is called, on another thread, when the process is to end; an empty one ends that.
    virtual void setInterrupt(std::function<void()> interrupt) = 0;

    /// Has what is in front read its settings again, as when it is opened.
    virtual void refreshFront() = 0;
    virtual bool openApplication(const QString &id) = 0;
    virtual void showHome() = 0;
    virtual void showCar() = 0;
    virtual bool requestVolumeSettings() = 0;
    virtual void setCallActive(bool active) = 0;
    virtual bool setSource(int source) = 0;
    virtual bool setLanguage(const QString &code) = 0;
    /// What the unit has played since the last call (see LiveSound::readings()); empty where nothing is played.
    virtual QVariantMap meters() { return {}; }
};

/// Runs a script; an empty \a file is the built-in tour. Pictures go to \a folder. Returns the process's exit code.
/// Exported by the script library under the name scriptEntryName.
using ScriptEntry = int (*)(ScriptTarget *target, const QString *file, const QString *folder);
constexpr char scriptEntryName[] = "headunitRunScript";

}  // namespace headunit
