// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

/// Knows which source's display is in front. Reached through EventHandler::control().
class PLATFORM_API SrcDsplCtrl {
public:
    /// Number of the current source display.
    int currentDspl();

private:
    friend class EventHandler;
    SrcDsplCtrl();
    ~SrcDsplCtrl();
    struct Private;
    Private *const d;
};
