// SPDX-License-Identifier: Apache-2.0
#include "report.h"

#include <QFile>
#include <QXmlStreamWriter>

#include <cstdio>

namespace conformance {

namespace {

void print(const QString &line) {
    std::fputs((line + QLatin1Char('\n')).toUtf8().constData(), stdout);
    std::fflush(stdout);
}

int count(const QVector<Result> &results, Outcome outcome) {
    int number = 0;
    for (const Result &result : results) {
        number += result.outcome == outcome;
    }
    return number;
}

}  // namespace

QString Deviations::read(const QString &fileName) {
    QFile file(fileName);
    if (!file.open(QFile::ReadOnly)) {
        return QStringLiteral("%1: %2").arg(fileName, file.errorString());
    }
    for (int number = 1; !file.atEnd(); ++number) {
        const QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        const QString name = line.section(QLatin1Char(':'), 0, 0).trimmed();
        const QString reason = line.section(QLatin1Char(':'), 1).trimmed();
        bool exists = false;
        for (const Check &check : checks()) {
            exists = exists || name == QLatin1String(check.name);
        }
        if (!exists || reason.isEmpty()) {
            const QString why = exists ? QStringLiteral("gives no reason") : QStringLiteral("is no check");
            return QStringLiteral("%1:%2: %3 %4").arg(fileName).arg(number).arg(name, why);
        }
        m_reasons.insert(name, reason);
    }
    return QString();
}

void printPlan(int count) {
    print(QStringLiteral("TAP version 13\n1..%1").arg(count));
}

void printResult(int number, const Result &result, const Deviations &deviations) {
    const QString name = QLatin1String(result.check.name);
    QString line = QStringLiteral("%1 %2 - %3: %4")
                       .arg(QLatin1String(result.outcome == NotOk ? "not ok" : "ok"))
                       .arg(number)
                       .arg(name, QLatin1String(result.check.sentence));
    if (result.outcome == Skipped) {
        line += QStringLiteral(" # SKIP ") + result.reason;
    } else if (deviations.contains(name)) {
        line += QStringLiteral(" # TODO known deviation: ") + deviations.reason(name);
    }
    print(line);
    if (result.outcome == NotOk) {
        print(QStringLiteral("  ---"));
        for (const QString &problem : result.problems) {
            print(QStringLiteral("  - ") + problem);
        }
        print(QStringLiteral("  suffers: %1\n  ...").arg(QLatin1String(result.check.page)));
    } else if (result.outcome == Ok && deviations.contains(name)) {
        print(QStringLiteral("# %1 is ok now: the deviation has healed, take it out of the file").arg(name));
    }
}

bool conforms(const QVector<Result> &results, const Deviations &deviations) {
    for (const Result &result : results) {
        if (result.outcome == NotOk && !deviations.contains(QLatin1String(result.check.name))) {
            return false;
        }
    }
    return true;
}

void printSummary(const QVector<Result> &results, const Deviations &deviations) {
    int known = 0;
    for (const Result &result : results) {
        known += result.outcome == NotOk && deviations.contains(QLatin1String(result.check.name));
    }
    print(QStringLiteral("# %1 ok, %2 not ok, %3 known deviations, %4 left out")
              .arg(count(results, Ok))
              .arg(count(results, NotOk) - known)
              .arg(known)
              .arg(count(results, Skipped)));
}

bool writeJUnit(const QString &fileName, const QVector<Result> &results, const Deviations &deviations) {
    QFile file(fileName);
    if (!file.open(QFile::WriteOnly)) {
        return false;
    }
    QXmlStreamWriter xml(&file);
    xml.setAutoFormatting(true);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("testsuite"));
    xml.writeAttribute(QStringLiteral("name"), QStringLiteral("conformance"));
    xml.writeAttribute(QStringLiteral("tests"), QString::number(results.size()));
    for (const Result &result : results) {
        const QString name = QLatin1String(result.check.name);
        xml.writeStartElement(QStringLiteral("testcase"));
        xml.writeAttribute(QStringLiteral("classname"), name.section(QLatin1Char('.'), 0, 0));
        xml.writeAttribute(QStringLiteral("name"), name);
        const bool known = deviations.contains(name);
        if (result.outcome == Skipped || (result.outcome == NotOk && known)) {
            xml.writeStartElement(QStringLiteral("skipped"));
            xml.writeAttribute(QStringLiteral("message"),
                               result.outcome == Skipped ? result.reason : deviations.reason(name));
            xml.writeEndElement();
        } else if (result.outcome == NotOk) {
            xml.writeStartElement(QStringLiteral("failure"));
            xml.writeAttribute(QStringLiteral("message"), QLatin1String(result.check.sentence));
            xml.writeCharacters(result.problems.join(QLatin1Char('\n')));
            xml.writeEndElement();
        }
        xml.writeEndElement();
    }
    xml.writeEndElement();
    xml.writeEndDocument();
    return file.flush();
}

}  // namespace conformance
