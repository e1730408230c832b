// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QThread>

#include <atomic>

namespace headunit {

/// The services of the desk's system bus that the sound has to do with, on a thread of their own: a bus may take its
/// time to answer. Without a bus, nothing happens.
class SystemBus : public QThread {
    Q_OBJECT
public:
    SystemBus();
    ~SystemBus() override;

    /// Asks for a thread of this process, by the kernel's number of it. From any thread.
    void askForRealTime(int thread);

Q_SIGNALS:
    /// The desk is about to sleep, and waits for silent().
    void aboutToSleep();
    void woke();
    /// To be emitted, by any thread, once the sound has ended because of aboutToSleep().
    void silent();
    /// The answer to askForRealTime(), for people, too. None comes where nobody gives real time.
    void answeredRealTime(bool granted, const QString &words);
    /// Between askForRealTime() and the bus.
    void wantsRealTime();

protected:
    void run() override;

private:
    std::atomic<int> m_wanted{0};  ///< thread that is to have real time
};

}  // namespace headunit
