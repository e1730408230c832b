// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/settings/unitsettings.h"

#include <QTest>

/// Saves both stores, however slow the disk is, so that nothing is left to do when they are closed.
inline bool saved() {
    constexpr int patienceMs = 60000;
    return QTest::qWaitFor(&headunit::flushSettings, patienceMs);
}
