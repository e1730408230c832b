// SPDX-License-Identifier: Apache-2.0
#include "linelimit.h"

#include <QHash>

#include <chrono>
#include <utility>

namespace headunit {

namespace {

constexpr qint64 spacing = 1000;  // ms

qint64 steadyTime() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

struct Limit {
    std::function<qint64()> clock = steadyTime;
    QHash<QString, qint64> passed;  ///< when a line of a kind was last written
};

Limit &limit() {
    static Limit instance;
    return instance;
}

}  // namespace

bool lineMayPass(const QString &kind) {
    const qint64 now = limit().clock();
    const auto last = limit().passed.constFind(kind);
    if (last != limit().passed.cend() && now - *last < spacing) {
        return false;
    }
    limit().passed.insert(kind, now);
    return true;
}

void setLineClock(std::function<qint64()> clock) {
    limit() = Limit();
    if (clock) {
        limit().clock = std::move(clock);
    }
}

}  // namespace headunit
