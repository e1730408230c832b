// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

namespace cm {

/// The host's status bar.
class PLATFORM_API StatusBarControl {
public:
    static StatusBarControl *instance();
    /// Hides (true) or shows (false) the status bar.
    void sethide(bool hide);

private:
    StatusBarControl();
    ~StatusBarControl();
    struct Private;
    Private *const d;
};

}  // namespace cm
