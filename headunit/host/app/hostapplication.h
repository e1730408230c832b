// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QApplication>

namespace headunit {

class ApplicationGuard;

/// The application object, to which applications post their touch events.
///
/// It also takes the finger off what is hidden under it, by a call or by another application's request: a held key does
/// not act when the finger goes up, and nothing follows the finger unseen.
class HostApplication : public QApplication {
    Q_OBJECT
public:
    using QApplication::QApplication;

    /// Has exceptions out of event handlers end there; null: they end the process. It must outlive its use here.
    void setGuard(ApplicationGuard *guard) { m_guard = guard; }

    bool notify(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    /// An application asked the host for a gesture (Qx::Touch, or a code without a name).
    void touched(int code);

protected:
    bool event(QEvent *event) override;

private:
    bool notifyGuarded(QObject *receiver, QEvent *event);

    ApplicationGuard *m_guard = nullptr;
};

}  // namespace headunit
