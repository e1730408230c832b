// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QThread>

namespace headunit {

/// The services of the desk's system bus that the sound has to do with, on a thread of their own: a bus may take its
/// time to answer. Without a bus, nothing happens.
class SystemBus : public QThread {
    Q_OBJECT
public:
    SystemBus();
    ~SystemBus() override;

Q_SIGNALS:
    /// The desk is about to sleep, and waits for silent().
    void aboutToSleep();
    void woke();
    /// To be emitted, by any thread, once the sound has ended because of aboutToSleep().
    void silent();

protected:
    void run() override;
};

}  // namespace headunit
