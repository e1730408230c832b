// SPDX-License-Identifier: Apache-2.0
#include "childprocess.h"

#include <csignal>

#include <sys/prctl.h>

ChildProcess::~ChildProcess() {
    constexpr int patience = 60000;  // ms
    terminate();
    waitForFinished(patience);
}

void ChildProcess::setupChildProcess() {
    prctl(PR_SET_PDEATHSIG, SIGTERM);
}
