// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QObject;
class QWidget;

namespace headunit {

class SoundMonitor;

/// The unit as the tuner's desk knows it. The desk is a library of its own, loaded only when it is
/// opened; this is all that it knows of the host.
class DeskHost {
public:
    virtual ~DeskHost() = default;

    /// The unit's window, with the screen and the hard keys.
    virtual QWidget *window() = 0;
    /// The screen of 1024 x 600.
    virtual QWidget *screen() = 0;
    /// Has what is in front show what is stored now, as when it is opened.
    virtual void refreshFront() = 0;
    /// Ends the applications and makes them anew, with the home screen in front, as after power-up.
    virtual void restart() = 0;
    /// The sound that plays now; null while there is none.
    virtual SoundMonitor *sound() { return nullptr; }
};

/// Opens the desk, and one of its windows: \a panel is its name (see panels.cpp), or empty for those that were open
/// last. Returns the desk, which deletes itself when it is closed. Calling it again brings the same desk to the front.
/// Exported by the desk's library under the name deskEntryName.
using DeskEntry = QObject *(*)(DeskHost *host, const QString *panel);
constexpr char deskEntryName[] = "headunitOpenDesk";

/// Puts the set-up of one file in force, writes the present one into another; either may be empty. Returns the
/// process's exit code. Exported by the same library under the name setupEntryName.
using SetupEntry = int (*)(const QString *exportTo, const QString *importFrom);
constexpr char setupEntryName[] = "headunitSetupJob";

/// Measures the outputs' responses into a file, .csv or .png; \a problem is a line that says why it cannot be done, or
/// an empty text. Exported likewise.
using MeasureEntry = void (*)(const QString *name, QString *problem);
constexpr char measureEntryName[] = "headunitMeasureJob";

}  // namespace headunit
