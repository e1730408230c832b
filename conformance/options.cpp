// SPDX-License-Identifier: Apache-2.0
#include "options.h"

namespace conformance {

const char usage[] =
    "usage: audiosetting-conformance [option...]\n"
    "\n"
    "Checks the head unit that this program is linked with against the contract of the Audio Settings plug-in.\n"
    "Each check runs in a process of its own and is a line of TAP; the exit code is 0 if the unit conforms,\n"
    "1 if it does not, 2 for a wrong option.\n"
    "\n"
    "  --list              prints name and sentence of every check\n"
    "  --only NAME         runs this check only; \"store.*\" for a group; may be given several times\n"
    "  --plugin FILE.so    the plug-in, built for this unit; without it its checks are left out\n"
    "  --deviations FILE   known deviations, a line each: NAME: reason\n"
    "  --junit FILE        writes the results as JUnit XML, too\n"
    "  --in-process        runs the one check of --only in this process, for the debugger\n"
    "  --root DIR          with --in-process: the unit's folder, which is kept\n"
    "  --restarted         with --in-process and --root: the half of the check that follows a restart\n"
    "  --record            prints the visits of the pages with the calls of this unit's plug-in\n"
    "  --cpu-limit S       CPU seconds of a check (60)\n"
    "  --limit S           seconds of a check (600)\n";

Options &options() {
    static Options instance;
    return instance;
}

Options parse(const QStringList &arguments) {
    Options parsed;
    const struct {
        const char *name;
        bool *flag;
    } flags[] = {{"--list", &parsed.list},
                 {"--help", &parsed.help},
                 {"-h", &parsed.help},
                 {"--in-process", &parsed.inProcess},
                 {"--restarted", &parsed.restarted},
                 {"--record", &parsed.record}};
    const struct {
        const char *name;
        QString *value;
    } values[] = {{"--plugin", &parsed.plugin},
                  {"--deviations", &parsed.deviations},
                  {"--junit", &parsed.junit},
                  {"--root", &parsed.root}};
    const struct {
        const char *name;
        int *value;
    } numbers[] = {{"--cpu-limit", &parsed.limits.cpuSeconds}, {"--limit", &parsed.limits.wallSeconds}};

    for (int i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments[i];
        bool known = false;
        for (const auto &row : flags) {
            if (argument == QLatin1String(row.name)) {
                *row.flag = known = true;
            }
        }
        if (known) {
            continue;
        }
        const QString value = arguments.value(i + 1);
        for (const auto &row : values) {
            if (argument == QLatin1String(row.name)) {
                *row.value = value;
                known = true;
            }
        }
        for (const auto &row : numbers) {
            if (argument == QLatin1String(row.name)) {
                bool ok = false;
                *row.value = value.toInt(&ok);
                known = true;
                if (!ok || *row.value <= 0) {
                    parsed.problem = QStringLiteral("%1 takes a number of seconds").arg(argument);
                }
            }
        }
        if (argument == QLatin1String("--only")) {
            parsed.only << value;
            known = true;
        }
        if (!known) {
            parsed.problem = QStringLiteral("unknown option %1").arg(argument);
        } else if (value.isEmpty()) {
            parsed.problem = QStringLiteral("%1 takes a value").arg(argument);
        }
        ++i;
    }
    if (parsed.inProcess && parsed.only.size() != 1) {
        parsed.problem = QStringLiteral("--in-process takes exactly one --only");
    }
    return parsed;
}

}  // namespace conformance
