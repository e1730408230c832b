// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

class SrcDsplCtrl;

/// The host's event hub. One object per process.
class PLATFORM_API EventHandler {
public:
    static EventHandler *instance();
    /// The source display controller, never null.
    SrcDsplCtrl *control();

private:
    EventHandler();
    ~EventHandler();
    struct Private;
    Private *const d;
};
