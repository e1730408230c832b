// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/realtimekit.h"

#include "headunit/audio/live/realtime.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>

#include <algorithm>

namespace headunit {

namespace {

constexpr char service[] = "org.freedesktop.RealtimeKit1";
constexpr char path[] = "/org/freedesktop/RealtimeKit1";

QDBusMessage callOf(const char *interface, const char *method) {
    return QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(path), QLatin1String(interface),
                                          QLatin1String(method));
}

}  // namespace

void RealtimeKit::call(const QDBusMessage &message, const Receiver &receive) {
    auto *const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, receive] {
        watcher->deleteLater();
        const QDBusError error = watcher->error();
        if (!error.isValid()) {
            receive(watcher->reply().arguments().value(0));
        } else if (error.type() != QDBusError::ServiceUnknown) {
            Q_EMIT answered(false, QStringLiteral("RealtimeKit: ") + error.message());
        }
    });
}

void RealtimeKit::get(const char *property, const Receiver &receive) {
    QDBusMessage message = callOf("org.freedesktop.DBus.Properties", "Get");
    message << QLatin1String(service) << QLatin1String(property);
    call(message, [receive](const QVariant &value) { receive(value.value<QDBusVariant>().variant()); });
}

void RealtimeKit::ask(int thread) {
    get("MaxRealtimePriority", [this, thread](const QVariant &highest) {
        get("RTTimeUSecMax", [this, thread, highest](const QVariant &longest) {
            // It refuses a process that could keep a processor for itself for longer.
            if (limitRealTime(thread, longest.toLongLong())) {
                make(thread, std::min(realTimePriority, highest.toInt()));
            }
        });
    });
}

void RealtimeKit::make(int thread, int priority) {
    QDBusMessage message = callOf(service, "MakeThreadRealtime");
    message << static_cast<qulonglong>(thread) << static_cast<uint>(priority);
    call(message, [this, priority](const QVariant &) {
        Q_EMIT answered(true, QStringLiteral("real time by RealtimeKit, priority %1").arg(priority));
    });
}

}  // namespace headunit
