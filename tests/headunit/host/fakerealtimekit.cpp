// SPDX-License-Identifier: Apache-2.0
#include "fakerealtimekit.h"

#include <QDBusError>

#include <sys/resource.h>

FakeRealtimeKit::FakeRealtimeKit() : m_bus(QDBusConnection::connectToBus(QDBusConnection::SystemBus, "rtkit")) {
    m_bus.registerObject("/org/freedesktop/RealtimeKit1", this,
                         QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties);
    if (!m_bus.registerService("org.freedesktop.RealtimeKit1")) {
        qFatal("no service on the bus: %s", qPrintable(m_bus.lastError().message()));
    }
}

FakeRealtimeKit::~FakeRealtimeKit() {
    QDBusConnection::disconnectFromBus("rtkit");
}

void FakeRealtimeKit::MakeThreadRealtime(qulonglong thread, uint priority) {
    rlimit limit{};
    getrlimit(RLIMIT_RTTIME, &limit);
    requests.append({thread, priority, limit.rlim_max <= static_cast<rlim_t>(longest)});
    if (!refusal.isEmpty()) {
        sendErrorReply(QDBusError::AccessDenied, refusal);
    }
}
