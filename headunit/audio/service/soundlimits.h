// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "soundtables.h"

#include "headunit/settings/linelimit.h"

#include <QDebug>

#include <algorithm>

namespace headunit {

/// Whether \a number names one of \a count things; a debug line if not.
inline bool exists(int number, int count, const char *what) {
    if (number >= 0 && number < count) {
        return true;
    }
    if (lineMayPass(what)) {
        qDebug("sound: %s %d is not one of 0 to %d, ignored", what, number, count - 1);
    }
    return false;
}

/// Whether \a value lies above \a range: clamped, it might be far louder than what was in force. A debug line if so.
inline bool tooLoud(int value, const Range &range, const char *what) {
    if (value <= range.high) {
        return false;
    }
    if (lineMayPass(what)) {
        qDebug("sound: %s %d is above %d, ignored", what, value, range.high);
    }
    return true;
}

/// \a value within \a range; a debug line if it was not.
inline int clamped(int value, const Range &range, const char *what) {
    const int inside = std::clamp(value, range.low, range.high);
    if (inside != value && lineMayPass(what)) {
        qDebug("sound: %s %d is not within %d to %d, taken as %d", what, value, range.low, range.high, inside);
    }
    return inside;
}

}  // namespace headunit
