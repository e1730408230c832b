// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/endsignals.h"

#include "headunit/settings/lines.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace headunit {

namespace {

volatile sig_atomic_t received = 0;
int ends[2] = {-1, -1};  // of a pipe, from the handler to the thread

void handle(int number) {
    const int error = errno;
    if (received == 0) {
        received = number;
    }
    const char byte = static_cast<char>(number);
    if (write(ends[1], &byte, 1) < 0) {
        received = number;  // a full pipe: it has been told often enough
    }
    errno = error;
}

}  // namespace

EndSignals::EndSignals(std::function<void(int)> ended) : m_ended(std::move(ended)) {
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return;
    }
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error &) {
        sayNoThread();
        close(ends[0]);
        close(ends[1]);
        return;
    }
    struct sigaction action = {};
    action.sa_handler = handle;
    action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
    for (size_t i = 0; i < numbers.size(); ++i) {
        sigaction(numbers[i], nullptr, &m_before[i]);
        if (m_before[i].sa_handler != SIG_IGN) {
            sigaction(numbers[i], &action, nullptr);
        }
    }
}

EndSignals::~EndSignals() {
    if (!m_thread.joinable()) {
        return;
    }
    for (size_t i = 0; i < numbers.size(); ++i) {
        sigaction(numbers[i], &m_before[i], nullptr);
    }
    close(ends[1]);
    m_thread.join();
    close(ends[0]);
}

void EndSignals::run() {
    char byte = 0;
    for (ssize_t got = 0; (got = read(ends[0], &byte, 1)) != 0;) {
        if (got > 0) {
            m_ended(byte);
        } else if (errno != EINTR) {
            return;
        }
    }
}

int receivedEndSignal() {
    return received;
}

}  // namespace headunit
