// SPDX-License-Identifier: Apache-2.0
#include "fakelogind.h"

#include <QDBusError>

#include <algorithm>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

FakeLogind::FakeLogind() : m_bus(QDBusConnection::connectToBus(QDBusConnection::SystemBus, "logind")) {
    m_bus.registerObject("/org/freedesktop/login1", this,
                         QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    if (!m_bus.registerService("org.freedesktop.login1")) {
        qFatal("no service on the bus: %s", qPrintable(m_bus.lastError().message()));
    }
}

FakeLogind::~FakeLogind() {
    QDBusConnection::disconnectFromBus("logind");
    std::for_each(m_delays.begin(), m_delays.end(), close);
}

bool FakeLogind::isDelayed() {
    return std::any_of(m_delays.begin(), m_delays.end(), [](int end) {
        pollfd state = {end, 0, 0};
        return poll(&state, 1, 0) == 0;  // else nobody has the other one
    });
}

QDBusUnixFileDescriptor FakeLogind::Inhibit(const QString &what, const QString &, const QString &,
                                            const QString &mode) {
    m_requests << what + ' ' + mode;
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        return QDBusUnixFileDescriptor();
    }
    m_delays.push_back(ends[0]);
    QDBusUnixFileDescriptor delay(ends[1]);
    close(ends[1]);
    return delay;
}
