// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace headunit {

/// Asks for real-time scheduling of the calling thread, as far as this process's own limits allow it (RLIMIT_RTPRIO).
/// A few words about what it got.
std::string askForRealTime();

}  // namespace headunit
