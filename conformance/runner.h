// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "report.h"

namespace conformance {

struct Limits {
    int cpuSeconds;   ///< of a process: a check that spins ends here, however busy the machine is
    int wallSeconds;  ///< of a process: a check that waits for ever ends here
};

/// Runs a check in processes of its own, on a unit that was never used before.
Result runApart(const Check &check, const Limits &limits, int argc, char **argv);
/// Runs a check here, on the root folder given, for the debugger.
Result runHere(const Check &check, const QByteArray &root, bool restarted, int argc, char **argv);

}  // namespace conformance
