// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/soundlibrary.h"

#include "headunit/desk/frame/deskhost.h"
#include "headunit/host/app/hostlibrary.h"

namespace headunit {

namespace {

/// A function of the library, or null and the reason.
template <typename Entry> Entry resolve(const char *name, QString *problem, const char *library = "sound") {
    return reinterpret_cast<Entry>(hostFunction(library, name, problem));
}

/// Tables and plots are made by the tuner's desk, which shows them in a window, too.
void measureInto(const QString &name, QString *problem) {
    if (const auto entry = resolve<MeasureEntry>(measureEntryName, problem, "desk")) {
        entry(&name, problem);
    }
}

}  // namespace

QString doSoundJob(const SoundJob &job) {
    QString problem;
    if (!job.measureTo.isEmpty()) {
        measureInto(job.measureTo, &problem);
    } else if (const auto entry = resolve<SoundEntry>(soundEntryName, &problem)) {
        entry(&job, &problem);
    }
    return problem;
}

QObject *startSound(const PlayJob &job, QString *problem, SoundMonitor **monitor) {
    const auto entry = resolve<StartSoundEntry>(startSoundEntryName, problem);
    return entry ? entry(&job, problem, monitor) : nullptr;
}

}  // namespace headunit
