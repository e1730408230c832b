// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/desksleep.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace headunit {

namespace {

const char service[] = "org.freedesktop.login1";
const char path[] = "/org/freedesktop/login1";
const char interface[] = "org.freedesktop.login1.Manager";

}  // namespace

DeskSleep::DeskSleep(QDBusConnection bus) : m_bus(std::move(bus)) {
    m_bus.connect(service, path, interface, QStringLiteral("PrepareForSleep"), this, SLOT(prepareForSleep(bool)));
    const auto *const comes = new QDBusServiceWatcher(service, m_bus, QDBusServiceWatcher::WatchForRegistration, this);
    connect(comes, &QDBusServiceWatcher::serviceRegistered, this, &DeskSleep::askToWait);
    askToWait();
}

/// Before every sleep anew: what lets the desk sleep is the end of an earlier request.
void DeskSleep::askToWait() {
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Inhibit"));
    call << QStringLiteral("sleep") << QStringLiteral("Head unit") << QStringLiteral("The sound falls to silence")
         << QStringLiteral("delay");
    call.setAutoStartService(false);
    const auto *const answer = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, &DeskSleep::takeDelay);
}

void DeskSleep::takeDelay(QDBusPendingCallWatcher *answer) {
    const QDBusPendingReply<QDBusUnixFileDescriptor> reply = *answer;
    if (reply.isValid() && !m_isSilent) {
        m_delay = reply.value();
    }
    answer->deleteLater();
}

void DeskSleep::prepareForSleep(bool begins) {
    m_sleeps = begins;
    m_isSilent = false;
    if (begins) {
        Q_EMIT aboutToSleep();
    } else {
        askToWait();
        Q_EMIT woke();
    }
}

void DeskSleep::letSleep() {
    if (m_sleeps) {
        m_isSilent = true;
        m_delay = QDBusUnixFileDescriptor();
    }
}

}  // namespace headunit
