// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>
#include <QObject>

class QDBusPendingCallWatcher;

namespace headunit {

/// Hears from logind that the desk is about to sleep, and has it wait, for the five seconds that logind allows, until
/// the sound has ended. Where no logind answers, nothing is heard of it. On the thread of its system bus.
class DeskSleep : public QObject {
    Q_OBJECT
public:
    explicit DeskSleep(QDBusConnection bus);

    /// All sound has ended: the desk may sleep now, if it is about to.
    void letSleep();

Q_SIGNALS:
    void aboutToSleep();
    void woke();

private Q_SLOTS:
    void prepareForSleep(bool begins);

private:
    void askToWait();
    void takeDelay(QDBusPendingCallWatcher *answer);

    QDBusConnection m_bus;
    QDBusUnixFileDescriptor m_delay;  ///< the desk waits as long as this is open
    bool m_sleeps = false;            ///< or is about to
    bool m_isSilent = false;          ///< ... and need not wait
};

}  // namespace headunit
