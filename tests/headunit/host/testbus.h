// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tests/headunit/audio/live/childprocess.h"

#include <QTemporaryDir>

/// A system bus of the test's own, as long as this lives.
class TestBus {
public:
    /// From now on this process and those that it starts find their system bus there, and no other one. Once a process,
    /// before it looks for one: the address is read only once.
    static void setAddress(const QTemporaryDir &folder);

    explicit TestBus(const QTemporaryDir &folder);

private:
    ChildProcess m_process;
};
