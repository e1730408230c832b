// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QObject>

#include <functional>

class QDBusMessage;

namespace headunit {

/// Asks RealtimeKit, the desk's service that gives real-time scheduling to programs which may not take it themselves.
/// On the thread of its system bus.
class RealtimeKit : public QObject {
    Q_OBJECT
public:
    explicit RealtimeKit(const QDBusConnection &bus) : m_bus(bus) {}

    /// Asks for the thread of that number, of this process.
    void ask(int thread);

Q_SIGNALS:
    /// The answer, and for people what it means. None comes where there is no RealtimeKit.
    void answered(bool granted, const QString &words);

private:
    using Receiver = std::function<void(const QVariant &)>;

    void call(const QDBusMessage &message, const Receiver &receive);
    void get(const char *property, const Receiver &receive);
    void make(int thread, int priority);

    QDBusConnection m_bus;
};

}  // namespace headunit
