// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "check.h"

#include <QHash>

namespace conformance {

enum Outcome { Ok, NotOk, Skipped };

struct Result {
    Check check;
    Outcome outcome;
    QStringList problems;  ///< of one that is not ok
    QString reason;        ///< of one that was left out
};

/// The deviations that a unit hands in: a line each, the check's name, a colon, the reason.
class Deviations {
public:
    /// The fault of the file; empty where there is none.
    QString read(const QString &file);
    QString reason(const QString &check) const { return m_reasons.value(check); }
    bool contains(const QString &check) const { return m_reasons.contains(check); }

private:
    QHash<QString, QString> m_reasons;
};

/// TAP, version 13, on standard output, as the checks go.
void printPlan(int count);
void printResult(int number, const Result &result, const Deviations &deviations);
/// Whether the unit conforms: every check is ok, left out, or a known deviation.
bool conforms(const QVector<Result> &results, const Deviations &deviations);
void printSummary(const QVector<Result> &results, const Deviations &deviations);
/// The same as JUnit XML; false where the file cannot be written.
bool writeJUnit(const QString &file, const QVector<Result> &results, const Deviations &deviations);

}  // namespace conformance
