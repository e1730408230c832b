#include "headunit/host/soundlibrary.h"

#include <QCoreApplication>
#include <QLibrary>

namespace headunit {

QString doSoundJob(const SoundJob &job) {
    QLibrary library(QCoreApplication::applicationDirPath() + QStringLiteral("/../lib/libheadunitsound.so"));
    const auto entry = reinterpret_cast<SoundEntry>(library.resolve(soundEntryName));
    if (!entry) {
        return library.errorString();
    }
    QString problem;
    entry(&job, &problem);
    return problem;
}

}  // namespace headunit
