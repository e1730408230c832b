#pragma once

#include "base/setting.h"

// The settings of the Source Gain page.

namespace audiosetting {
namespace sourcegain {

/// Input gain of a source, -10 to 10. \a source is its number in the microcontroller.
inline Setting gain(int source) {
    return Setting(QStringLiteral("audioinputgain%1"), source, 0);
}

}  // namespace sourcegain
}  // namespace audiosetting
