// SPDX-License-Identifier: Apache-2.0
#include "check.h"

#include "unit.h"

#include <QEventLoop>
#include <QTimer>

namespace conformance {

Findings &findings() {
    static Findings instance;
    return instance;
}

QVector<Check> &checks() {
    static QVector<Check> all;
    return all;
}

void fail(const QString &problem) {
    findings().problems << problem;
}

void skip(const QString &reason) {
    findings().skipped = reason;
}

void pass(int ms) {
    if (conformanceUnit()->advance) {
        conformanceUnit()->advance(ms);
        return;
    }
    QEventLoop loop;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    timer.setSingleShot(true);
    QObject::connect(&timer, SIGNAL(timeout()), &loop, SLOT(quit()));
    timer.start(ms);
    loop.exec();
}

}  // namespace conformance
