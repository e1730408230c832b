// SPDX-License-Identifier: Apache-2.0
// Set-ups without a screen: --export and --import.

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/bridges/curvefile.h"
#include "headunit/desk/frame/deskhost.h"
#include "headunit/desk/setups/setupfile.h"
#include "headunit/desk/setups/unitstate.h"
#include "headunit/settings/lines.h"
#include "headunit/settings/unitsettings.h"

namespace headunit {

namespace {

constexpr int exitGood = 0;
constexpr int exitUnusable = 2;

int refuse(const QString &reason) {
    say(reason);
    return exitUnusable;
}

int exportSetup(const QString &path) {
    const SoundState &state = SoundModel::instance().state();
    const QString problem = path.endsWith(QLatin1String(".frd"))   ? writeResponses(path, state)
                            : path.endsWith(QLatin1String(".peq")) ? writeCurve(path, state)
                                                                   : writeSetup(path, audioStore().values());
    return problem.isEmpty() ? exitGood : refuse(QStringLiteral("--export ") + problem);
}

int importSetup(const QString &path) {
    const SetupFile file = readSetup(path);
    if (!file.problem.isEmpty()) {
        return refuse(QStringLiteral("--import ") + file.problem);
    }
    if (!flushSettings()) {
        return refuse(
            QStringLiteral("--import %1: the unit's settings cannot be written, nothing is changed").arg(path));
    }
    for (const QString &remark : file.remarks) {
        say(path + QStringLiteral(": ") + remark);
    }
    const QVector<SetupChange> changes = setupChanges(audioStore().values(), file.values);
    for (const SetupChange &change : changes) {
        print(oneLine(setupChangeText(change)));
    }
    print(QStringLiteral("%1 values changed").arg(changes.size()));
    putInForce(file.values, nullptr, {});
    return flushSettings() ? exitGood : refuse(QStringLiteral("--import %1: the settings cannot be saved").arg(path));
}

}  // namespace

}  // namespace headunit

extern "C" Q_DECL_EXPORT int headunitSetupJob(const QString *exportTo, const QString *importFrom) {
    const int result = importFrom->isEmpty() ? 0 : headunit::importSetup(*importFrom);
    return result != 0 || exportTo->isEmpty() ? result : headunit::exportSetup(*exportTo);
}
