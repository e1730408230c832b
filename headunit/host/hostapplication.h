#pragma once

#include <QApplication>

namespace headunit {

/// The application object, to which applications post their touch events.
class HostApplication : public QApplication {
    Q_OBJECT
public:
    using QApplication::QApplication;

Q_SIGNALS:
    /// An application asked the host for a gesture (Qx::Touch, or a code without a name).
    void touched(int code);

protected:
    bool event(QEvent *event) override;
};

}  // namespace headunit
