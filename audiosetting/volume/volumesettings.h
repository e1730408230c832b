// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/setting.h"

// The settings of the Volume Settings page.

namespace audiosetting {
namespace volume {

/// Volume channels as the services count them. Two more (5 and 7) have no row on any page.
enum Channel { Main = 0, Ringtone = 1, Phone = 2, Navigation = 3, Voice = 4, Announcements = 6, channelCount = 8 };

const int minLevel = 0;
const int maxLevel = 40;

/// Level of a volume channel, minLevel to maxLevel.
inline Setting level(int channel) {
    return Setting(QStringLiteral("inputgain%1"), channel, 16);
}

}  // namespace volume
}  // namespace audiosetting
