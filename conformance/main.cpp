// SPDX-License-Identifier: Apache-2.0
#include "options.h"
#include "visit.h"

#include <QDir>
#include <QRegExp>

#include <cstdio>

using namespace conformance;

namespace {

bool chosen(const Check &check, const QStringList &only) {
    for (const QString &pattern : only) {
        if (QRegExp(pattern, Qt::CaseSensitive, QRegExp::Wildcard).exactMatch(QLatin1String(check.name))) {
            return true;
        }
    }
    return only.isEmpty();
}

int wrong(const QString &problem) {
    std::fprintf(stderr, "audiosetting-conformance: %s\n", problem.toLocal8Bit().constData());
    return 2;
}

}  // namespace

int main(int argc, char **argv) {
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    options() = parse(arguments);
    const Options &asked = options();
    if (!asked.problem.isEmpty()) {
        return wrong(asked.problem);
    }
    if (asked.help) {
        std::fputs(usage, stdout);
        return 0;
    }
    registerVisits();
    QVector<Check> wanted;
    for (const Check &check : checks()) {
        if (chosen(check, asked.only)) {
            wanted << check;
        }
    }
    if (wanted.isEmpty()) {
        return wrong(QStringLiteral("no such check: %1").arg(asked.only.join(QStringLiteral(", "))));
    }
    if (asked.list) {
        for (const Check &check : wanted) {
            std::printf("%s: %s\n", check.name, check.sentence);
        }
        return 0;
    }
    Deviations deviations;
    if (!asked.deviations.isEmpty()) {
        const QString problem = deviations.read(asked.deviations);
        if (!problem.isEmpty()) {
            return wrong(problem);
        }
    }
    if (asked.inProcess) {
        if (wanted.size() != 1) {
            return wrong(QStringLiteral("--in-process takes one check"));
        }
        const QString folder = asked.root.isEmpty() ? QDir::tempPath() + QStringLiteral("/conformance") : asked.root;
        QDir().mkpath(folder);
        const Result result =
            runHere(wanted[0], QFile::encodeName(QDir(folder).absolutePath()), asked.restarted, argc, argv);
        printPlan(1);
        printResult(1, result, deviations);
        return conforms({result}, deviations) ? 0 : 1;
    }
    QVector<Result> results;
    if (!asked.record) {
        printPlan(wanted.size());
    }
    for (const Check &check : wanted) {
        results << runApart(check, asked.limits, argc, argv);
        if (!asked.record) {
            printResult(results.size(), results.last(), deviations);
        }
    }
    if (asked.record) {
        return 0;
    }
    printSummary(results, deviations);
    if (!asked.junit.isEmpty() && !writeJUnit(asked.junit, results, deviations)) {
        return wrong(QStringLiteral("cannot write %1").arg(asked.junit));
    }
    return conforms(results, deviations) ? 0 : 1;
}
