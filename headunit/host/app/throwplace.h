// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

namespace headunit {

/// Where the library that holds this address was loaded, or null.
const void *libraryOf(const void *address);

/// The libraries through which the exception last thrown on this thread was thrown, innermost first.
std::vector<const void *> librariesOfThrow();

}  // namespace headunit
