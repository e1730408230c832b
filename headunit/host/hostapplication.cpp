#include "headunit/host/hostapplication.h"

#include "touchevent.h"

#include <QAbstractButton>
#include <QMouseEvent>

namespace headunit {

namespace {

/// Takes the finger off a key: the key is up, and forgets that it was pressed, without a click.
void takeFingerOff(QAbstractButton *key) {
    key->setDown(false);
    QMouseEvent up(QEvent::MouseButtonRelease, QPointF(), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    static_cast<QObject *>(key)->event(&up);
}

}  // namespace

bool HostApplication::notify(QObject *receiver, QEvent *event) {
    if (event->type() == QEvent::Hide && mouseButtons() != Qt::NoButton) {
        if (QAbstractButton *const key = qobject_cast<QAbstractButton *>(receiver)) {
            takeFingerOff(key);
        }
    } else if (event->type() == QEvent::MouseMove && receiver->isWidgetType() &&
               !static_cast<QWidget *>(receiver)->isVisible()) {
        // Qt goes on delivering to the widget that was pressed.
        return true;
    }
    return QApplication::notify(receiver, event);
}

bool HostApplication::event(QEvent *event) {
    if (event->type() == TouchEvent::eventType()) {
        Q_EMIT touched(static_cast<TouchEvent *>(event)->code());
        return true;
    }
    return QApplication::event(event);
}

}  // namespace headunit
