// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace headunit {

/// Moves virtual time by so many milliseconds; see VirtualTime::advance().
using MoveTime = void (*)(int ms);

/// Before the application object: time is virtual from here on. A library of its own, because it needs Qt's private
/// headers, which a program that outlives an update of Qt must not.
using StartVirtualTime = MoveTime (*)();
constexpr char startVirtualTimeName[] = "headunitStartVirtualTime";

}  // namespace headunit
