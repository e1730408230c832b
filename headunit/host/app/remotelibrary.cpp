// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/remotelibrary.h"

#include "headunit/host/app/hostlibrary.h"
#include "headunit/settings/lines.h"

namespace headunit {

namespace {

template <typename Entry> Entry resolve(const char *name, QString *problem) {
    return reinterpret_cast<Entry>(hostFunction("script", name, problem));
}

}  // namespace

QObject *startRemote(ScriptTarget &target, QString *problem) {
    const auto entry = resolve<StartRemoteEntry>(startRemoteEntryName, problem);
    return entry ? entry(&target, problem) : nullptr;
}

int doControl(const QString &command) {
    constexpr int exitUnusable = 2;
    QString problem;
    const auto entry = resolve<ControlEntry>(controlEntryName, &problem);
    if (!entry) {
        say(QStringLiteral("--control: ") + problem);
        return exitUnusable;
    }
    return entry(&command);
}

}  // namespace headunit
