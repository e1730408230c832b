// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/systembus.h"

#include "headunit/host/sound/desksleep.h"

namespace headunit {

SystemBus::SystemBus() {
    setObjectName(QStringLiteral("system bus"));
    start();
}

SystemBus::~SystemBus() {
    quit();
    wait();
}

void SystemBus::run() {
    const QString name = QStringLiteral("headunit-%1").arg(reinterpret_cast<quintptr>(this));
    {
        const QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SystemBus, name);
        if (bus.isConnected()) {
            DeskSleep sleep(bus);
            connect(&sleep, &DeskSleep::aboutToSleep, this, &SystemBus::aboutToSleep);
            connect(&sleep, &DeskSleep::woke, this, &SystemBus::woke);
            connect(this, &SystemBus::silent, &sleep, &DeskSleep::letSleep);
            exec();
        }
    }
    QDBusConnection::disconnectFromBus(name);
}

}  // namespace headunit
