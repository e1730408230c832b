// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <functional>

namespace headunit {

/// True while an application has the status bar hidden.
PLATFORM_API bool statusBarHidden();

/// Installs the one observer of cm::StatusBarControl; it is told each change, not each call. Empty: none.
PLATFORM_API void setStatusBarObserver(std::function<void(bool hidden)> observer);

}  // namespace headunit
