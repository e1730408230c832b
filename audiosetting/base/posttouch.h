// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "touchevent.h"

#include <QCoreApplication>

namespace audiosetting {

/// Asks the host for a gesture: no finger is behind it, so the position is (-1, -1).
inline void postTouch(Qx::Touch code) {
    QCoreApplication::postEvent(QCoreApplication::instance(), new TouchEvent(code, -1, -1));
}

}  // namespace audiosetting
