#include "headunit/host/hostapplication.h"

#include "touchevent.h"

namespace headunit {

bool HostApplication::event(QEvent *event) {
    if (event->type() == TouchEvent::eventType()) {
        Q_EMIT touched(static_cast<TouchEvent *>(event)->code());
        return true;
    }
    return QApplication::event(event);
}

}  // namespace headunit
