// SPDX-License-Identifier: Apache-2.0
#include "realtime.h"

#include <cstring>

#include <pthread.h>
#include <sched.h>

namespace headunit {

std::string askForRealTime() {
    // Below the sound server's own threads, which take what this one makes.
    constexpr int priority = 4;
    sched_param wanted{};
    wanted.sched_priority = priority;
    const int error = pthread_setschedparam(pthread_self(), SCHED_RR | SCHED_RESET_ON_FORK, &wanted);
    return error == 0 ? "real time, priority " + std::to_string(priority)
                      : std::string("no real time: ") + std::strerror(error);
}

}  // namespace headunit
