#pragma once

#include "base/setting.h"

// The settings that only the reset reads, and those that it reads with a type or a default of its own.

namespace audiosetting {
namespace reset {

/// Loudness compensation, read as a truth value.
inline Setting loudness() {
    return Setting(QStringLiteral("Setup_Loudness"), false);
}
/// A band (0 to 12) of the first custom curve.
inline Setting customEq(int band) {
    return Setting(QStringLiteral("customeq1_%1"), band, 12);
}
/// A delay (0 to 5) in 0.1 ms. Not the key that the Timing page writes (timing::delay()): this one depends on the unit,
/// whose factory file may hold delays for its car. Where it holds none, a reset sends 0.
inline Setting delay(int output) {
    return Setting(QStringLiteral("timing/msec%1"), output, 0);
}
/// Level of a volume channel (0 to 4) in the factory state.
inline Setting defaultVolume(int type) {
    return Setting(QStringLiteral("default_volume%1"), type, 20);
}

/// A filter of the crossover: \a channel is "front", "rear" or "subwoofer".
inline Setting filterFrequency(const QString &channel) {
    return Setting(QStringLiteral("crossover/%1freq").arg(channel), 0);
}
inline Setting filterSlope(const QString &channel) {
    return Setting(QStringLiteral("crossover/%1slope").arg(channel), 1);
}
inline Setting filterLevel(const QString &channel) {
    return Setting(QStringLiteral("crossover/%1level").arg(channel), 12);
}

}  // namespace reset
}  // namespace audiosetting
