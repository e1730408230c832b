#pragma once

#include <QString>

class QObject;

namespace headunit {

/// What the sound's library is to do and be done with. Sound files, plots and sound servers need libraries that take
/// time to load, so the first screen does not wait for them.
struct SoundJob {
    QString renderFrom;  ///< sound file to play into ...
    QString renderTo;    ///< ... this one
    QString measureTo;   ///< file for the outputs' responses: .csv or .png

    bool isEmpty() const { return renderFrom.isEmpty() && measureTo.isEmpty(); }
};

/// Does a job under the unit's current settings. An empty text, or a line that says why it cannot be done. What there
/// is to say of a job that is done goes to standard output.
QString doSoundJob(const SoundJob &job);

/// Plays \a what on the desk, under the unit's settings, until the object that it returns is deleted; with \a meters, a
/// line a second on standard output says how loud that is. \a problem is a line that says what of it cannot be, or an
/// empty text; then there may be no object.
QObject *startSound(const QString &what, bool meters, QString *problem);

/// Exported by the library under these names.
using SoundEntry = void (*)(const SoundJob *job, QString *problem);
constexpr char soundEntryName[] = "headunitDoSoundJob";
using StartSoundEntry = QObject *(*)(const QString *what, bool meters, QString *problem);
constexpr char startSoundEntryName[] = "headunitStartSound";

}  // namespace headunit
