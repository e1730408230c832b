// SPDX-License-Identifier: Apache-2.0
#include "realtime.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstring>

#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>
#include <unistd.h>

namespace headunit {

namespace {

std::atomic<int> limitedThread{0};
std::atomic<bool> lost{false};

void loseRealTime(int) {
    const int error = errno;
    const sched_param none{};
    // Whoever may not take real time may not take this flag away, either.
    sched_setscheduler(limitedThread, SCHED_OTHER | SCHED_RESET_ON_FORK, &none);
    lost = true;
    errno = error;
}

}  // namespace

Scheduling askForRealTime() {
    // The kernel tells of the limit by a signal, first of all the thread that it is about.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGXCPU);
    pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);

    sched_param wanted{};
    wanted.sched_priority = realTimePriority;
    const int error = pthread_setschedparam(pthread_self(), SCHED_RR | SCHED_RESET_ON_FORK, &wanted);
    return {error == 0, gettid(),
            error == 0 ? "real time, priority " + std::to_string(realTimePriority)
                       : std::string("no real time: ") + std::strerror(error)};
}

bool limitRealTime(int thread, long long longest) {
    if (longest <= 0) {
        return false;
    }
    limitedThread = thread;
    struct sigaction action = {};
    action.sa_handler = loseRealTime;
    action.sa_flags = static_cast<int>(SA_RESTART);
    sigaction(SIGXCPU, &action, nullptr);
    rlimit limit{};
    getrlimit(RLIMIT_RTTIME, &limit);
    limit.rlim_max = std::min(limit.rlim_max, static_cast<rlim_t>(longest));
    limit.rlim_cur = std::min(limit.rlim_cur, limit.rlim_max / 2);
    return setrlimit(RLIMIT_RTTIME, &limit) == 0;
}

bool hasLostRealTime() {
    return lost;
}

}  // namespace headunit
