// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace headunit {

/// The folder of the unit's libraries, with all that they need beside them: applications in plugins/, the unit's fonts
/// in fontroot/. Found from where this library was loaded, so that an installed unit can be moved.
QString unitFolder();

}  // namespace headunit
