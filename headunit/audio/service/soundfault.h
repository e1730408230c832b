// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace headunit {

/// Why what plays is not heard although it should be.
enum class SoundFault { None, NothingToPlay, NoLibrary, NoServer, NoDevice };

}  // namespace headunit
