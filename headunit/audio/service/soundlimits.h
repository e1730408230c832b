#pragma once

#include "soundtables.h"

#include <QDebug>

#include <algorithm>

namespace headunit {

/// Whether \a number names one of \a count things; a debug line if not.
inline bool exists(int number, int count, const char *what) {
    if (number >= 0 && number < count) {
        return true;
    }
    qDebug("sound: %s %d is not one of 0 to %d, ignored", what, number, count - 1);
    return false;
}

/// \a value within \a range; a debug line if it was not.
inline int clamped(int value, const Range &range, const char *what) {
    const int inside = std::clamp(value, range.low, range.high);
    if (inside != value) {
        qDebug("sound: %s %d is not within %d to %d, taken as %d", what, value, range.low, range.high, inside);
    }
    return inside;
}

}  // namespace headunit
