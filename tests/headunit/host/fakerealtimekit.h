// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QObject>

/// What of RealtimeKit programs see, on the system bus, in the process that asks for its own threads. It gives none of
/// them real time.
class FakeRealtimeKit : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.RealtimeKit1")
    Q_PROPERTY(qlonglong RTTimeUSecMax MEMBER longest)
    Q_PROPERTY(int MaxRealtimePriority MEMBER highest)
public:
    struct Request {
        qulonglong thread;
        uint priority;
        bool isLimited;  ///< whether the process can work for no longer than the longest time then
    };

    FakeRealtimeKit();
    ~FakeRealtimeKit() override;

    qlonglong longest = 200000;  ///< microseconds
    int highest = 20;
    QString refusal;  ///< the reason for it, if the next request is refused
    QList<Request> requests;

public Q_SLOTS:
    void MakeThreadRealtime(qulonglong thread, uint priority);

private:
    QDBusConnection m_bus;
};
