// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

namespace headunit {

/// Milliseconds that never run backwards.
qint64 deskClock();
/// Puts another clock in its place, for tests.
void setDeskClock(qint64 (*clock)());

}  // namespace headunit
