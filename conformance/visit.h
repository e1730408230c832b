// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace conformance {

/// Registers a check for each file of visits/: the steps of a finger, and behind each the calls that it brings.
///
///     tap NAME             touches and lets go; a parent's name may stand before it: AudiosettingsTop/Key_update
///     hold NAME MS         touches, lets time pass, lets go
///     drag NAME X Y X Y    draws from one position in the object to another; a class name for an object without one
///     wait MS              lets time pass
///     open, leave          the host opens the application, and leaves it
///     request              another application asks for Volume Settings
///     > call(1, true)      a call of the plug-in's that the step above brings
void registerVisits();

}  // namespace conformance
