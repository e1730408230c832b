// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

namespace headunit {

/// Sets the number that SrcDsplCtrl::currentDspl() answers; 0 until set.
PLATFORM_API void setCurrentSourceDisplay(int number);

}  // namespace headunit
