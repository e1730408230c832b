// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/layout.h"

#include <array>
#include <string>

namespace headunit {

/// The device's channel that each output sounds from, by the sound server's name of it ("front-left", "aux0"); empty
/// for an output that stays silent. All empty: as usual for the device (see routing()).
using OutputMap = std::array<std::string, engine::outputCount>;

/// Reads "FL=aux0,FR=aux1,…". False, with a reason in \a error, if it cannot be read; \a map is then undefined.
bool parseOutputMap(const std::string &text, OutputMap *map, std::string *error);

}  // namespace headunit
