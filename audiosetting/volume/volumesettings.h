#pragma once

#include "base/setting.h"

// The settings of the Volume Settings page.

namespace audiosetting {
namespace volume {

/// Level of a volume channel, 0 to 40. \a type is the channel's number in the services.
inline Setting level(int type) {
    return Setting(QStringLiteral("inputgain%1"), type, 16);
}

}  // namespace volume
}  // namespace audiosetting
