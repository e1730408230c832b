#pragma once

#include <QString>

namespace headunit {

/// What the sound's library is to do and be done with. Sound files and plots need libraries that a unit on the screen
/// does not, so they are loaded only for such a job.
struct SoundJob {
    QString renderFrom;  ///< sound file to play into ...
    QString renderTo;    ///< ... this one
    QString measureTo;   ///< file for the outputs' responses: .csv or .png

    bool isEmpty() const { return renderFrom.isEmpty() && measureTo.isEmpty(); }
};

/// Does a job under the unit's current settings. An empty text, or a line that says why it cannot be done.
QString doSoundJob(const SoundJob &job);

/// Exported by the library under the name soundEntryName.
using SoundEntry = void (*)(const SoundJob *job, QString *problem);
constexpr char soundEntryName[] = "headunitDoSoundJob";

}  // namespace headunit
