// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace headunit {

/// Below the sound server's own threads, which take what the unit's makes.
constexpr int realTimePriority = 4;

/// How a thread is scheduled.
struct Scheduling {
    bool isRealTime;
    int thread;         ///< the kernel's number of it
    std::string words;  ///< the same for people, with the reason if it is not in real time
};

/// Asks for real-time scheduling of the calling thread, as far as this process's own limits allow it (RLIMIT_RTPRIO).
Scheduling askForRealTime();

/// Whoever else gives real time to a thread may demand a limit for how long it works without a pause, in microseconds.
/// Sets that for this process, so that the thread loses its real time at half of it, instead of its life at the whole.
/// False if that cannot be.
bool limitRealTime(int thread, long long longest);
/// Whether the thread has lost its real time so.
bool hasLostRealTime();

}  // namespace headunit
