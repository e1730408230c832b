// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/recording/report.h"

#include "headunit/desk/console/consolemodel.h"
#include "headunit/desk/recording/namescrubber.h"
#include "headunit/desk/setups/setupfile.h"
#include "headunit/settings/unitsettings.h"
#include "headunit/toolkit/language.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>

namespace headunit {

namespace {

constexpr int mostRows = 5000;  // of the trace, the newest: more would take longer than a moment

QString versions() {
    QString text;
    const auto add = [&text](const char *name, const QString &value) {
        text += QStringLiteral("%1: %2\n").arg(QLatin1String(name), value);
    };
    add("headunit", QStringLiteral(HEADUNIT_VERSION));
    add("Qt", QString::fromLatin1(qVersion()));
    add("system", QSysInfo::prettyProductName());
    add("kernel", QSysInfo::kernelType() + QLatin1Char(' ') + QSysInfo::kernelVersion());
    add("processor", QSysInfo::currentCpuArchitecture());
    add("platform", QGuiApplication::platformName());
    if (const QScreen *const display = QGuiApplication::primaryScreen()) {
        add("display", QStringLiteral("%1 x %2, scale %3")
                           .arg(display->size().width())
                           .arg(display->size().height())
                           .arg(display->devicePixelRatio()));
    }
    add("language", Language::current());
    return text;
}

}  // namespace

QVector<ArchiveEntry> reportEntries(const ReportParts &parts, const PersonalNames &names) {
    const struct {
        const char *name;
        QString text;
    } files[] = {
        {"problem.txt", parts.words + QLatin1Char('\n')},
        {"setup.txt", QString::fromUtf8(setupText(audioStore().values()))},
        {"recording.js", parts.recording},
        {"trace.jsonl", QString::fromUtf8(parts.trace)},
        {"versions.txt", versions()},
    };
    QVector<ArchiveEntry> entries;
    for (const auto &file : files) {
        if (!file.text.isEmpty()) {
            entries << ArchiveEntry{QStringLiteral("report/") + QLatin1String(file.name),
                                    withoutNames(file.text, names).toUtf8()};
        }
    }
    return entries;
}

QByteArray traceLines(const ConsoleModel &rows) {
    QByteArray lines;
    for (int i = qMax(0, rows.rowCount() - mostRows); i < rows.rowCount(); ++i) {
        lines += rowAsJson(rows.row(i)) + '\n';
    }
    return lines;
}

}  // namespace headunit
