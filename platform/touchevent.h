// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "simpleevent.h"

namespace Qx {

/// Gestures that an application asks of the host. Codes without a name here may arrive as well.
enum Touch : int {
    TouchClose = 1,  ///< close the application and show the home screen
    TouchBack = 15,  ///< leave the application by Back
};

}  // namespace Qx

template <> struct SimpleEventType<Qx::Touch> {
    enum { value = QEvent::User + 0x54 };
};

/// Posted to the application object to ask the host for a gesture; the position is (-1, -1) where no finger
/// is behind it.
typedef SimpleEvent<Qx::Touch> TouchEvent;
