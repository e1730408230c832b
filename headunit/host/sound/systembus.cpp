// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/systembus.h"

#include "headunit/host/sound/desksleep.h"
#include "headunit/host/sound/realtimekit.h"

namespace headunit {

SystemBus::SystemBus() {
    setObjectName(QStringLiteral("system bus"));
    start();
}

SystemBus::~SystemBus() {
    quit();
    wait();
}

void SystemBus::askForRealTime(int thread) {
    m_wanted = thread;
    Q_EMIT wantsRealTime();
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
            RealtimeKit kit(bus);
            connect(&kit, &RealtimeKit::answered, this, &SystemBus::answeredRealTime);
            const auto ask = [this, &kit] {
                if (const int thread = m_wanted.exchange(0)) {
                    kit.ask(thread);
                }
            };
            connect(this, &SystemBus::wantsRealTime, &kit, ask);
            ask();  // it may have been wanted before
            exec();
        }
    }
    QDBusConnection::disconnectFromBus(name);
}

}  // namespace headunit
