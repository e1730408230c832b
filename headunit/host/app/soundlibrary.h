// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QObject;

namespace headunit {

class SoundMonitor;

/// A single job for the sound's library. Sound files, plots and sound servers need libraries that take
/// time to load, so the first screen does not wait for them.
struct SoundJob {
    QString renderFrom;  ///< sound file to play into ...
    QString renderTo;    ///< ... this one
    QString measureTo;   ///< file for the outputs' responses: .csv or .png

    bool isEmpty() const { return renderFrom.isEmpty() && measureTo.isEmpty(); }
};

/// The unit's sound on the desk while it is shown.
struct PlayJob {
    QString what{};    ///< music, noise, sweep, loudspeakers, silence, desk, or a file
    QString device{};  ///< of the sound server; empty: its default
    QString map{};     ///< the device's channels, "FL=aux0,…" (see parseOutputMap()); empty: as usual for the device
    bool meters = false;  ///< a line a second on standard output says how loud it is
};

/// Does a job under the unit's current settings. An empty text, or a line that says why it cannot be done. The output
/// of a job that is done goes to standard output.
QString doSoundJob(const SoundJob &job);

/// Plays on the desk, under the unit's settings, until the object that it returns is deleted. \a problem is empty,
/// or one line that says why \a job cannot be played as it is; then there may be no object.
/// \a monitor is a part of it.
QObject *startSound(const PlayJob &job, QString *problem, SoundMonitor **monitor);

/// Exported by the library under these names.
using SoundEntry = void (*)(const SoundJob *job, QString *problem);
constexpr char soundEntryName[] = "headunitDoSoundJob";
using StartSoundEntry = QObject *(*)(const PlayJob *job, QString *problem, SoundMonitor **monitor);
constexpr char startSoundEntryName[] = "headunitStartSound";

}  // namespace headunit
