// SPDX-License-Identifier: Apache-2.0
#include "headunit/virtualtime/virtualtimelibrary.h"

#include "headunit/virtualtime/virtualtime.h"

extern "C" Q_DECL_EXPORT headunit::MoveTime headunitStartVirtualTime() {
    new headunit::VirtualTime;  // Qt's from here on
    return [](int ms) { headunit::VirtualTime::instance()->advance(ms); };
}
