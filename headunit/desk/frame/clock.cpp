// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/clock.h"

#include <QElapsedTimer>

namespace headunit {

namespace {

qint64 elapsed() {
    static const QElapsedTimer timer = [] {
        QElapsedTimer started;
        started.start();
        return started;
    }();
    return timer.elapsed();
}

qint64 (*clockInUse)() = elapsed;

}  // namespace

qint64 deskClock() {
    return clockInUse();
}

void setDeskClock(qint64 (*clock)()) {
    clockInUse = clock;
}

}  // namespace headunit
