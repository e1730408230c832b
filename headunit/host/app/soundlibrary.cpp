// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/soundlibrary.h"

#include "headunit/host/app/hostlibrary.h"

namespace headunit {

namespace {

/// A function of the library, or null and the reason.
template <typename Entry> Entry resolve(const char *name, QString *problem) {
    return reinterpret_cast<Entry>(hostFunction("sound", name, problem));
}

}  // namespace

QString doSoundJob(const SoundJob &job) {
    QString problem;
    if (const auto entry = resolve<SoundEntry>(soundEntryName, &problem)) {
        entry(&job, &problem);
    }
    return problem;
}

QObject *startSound(const PlayJob &job, QString *problem) {
    const auto entry = resolve<StartSoundEntry>(startSoundEntryName, problem);
    return entry ? entry(&job, problem) : nullptr;
}

}  // namespace headunit
