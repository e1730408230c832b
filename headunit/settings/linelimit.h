// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <functional>

namespace headunit {

/// Whether a line of that \a kind may be written now: one a second, so that a program that has gone astray and is
/// refused thousands of values does not drown what else there is to read. GUI thread only.
bool lineMayPass(const QString &kind);
inline bool lineMayPass(const char *kind) {
    return lineMayPass(QString::fromUtf8(kind));
}

/// Another clock for it, in milliseconds, and no memory of lines that have passed. Empty: the steady clock.
void setLineClock(std::function<qint64()> clock);

}  // namespace headunit
