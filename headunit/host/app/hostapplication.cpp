// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/hostapplication.h"

#include "headunit/host/app/applicationguard.h"
#include "headunit/settings/trace.h"
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

QString touchText(int code) {
    switch (code) {
        case Qx::TouchBack:
            return QStringLiteral("leave by Back");
        case Qx::TouchClose:
            return QStringLiteral("close, to the home screen");
        default:
            return QStringLiteral("touch code %1 (has no meaning here)").arg(code);
    }
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
    return m_guard ? notifyGuarded(receiver, event) : QApplication::notify(receiver, event);
}

bool HostApplication::notifyGuarded(QObject *receiver, QEvent *event) {
    if (m_guard->isSilenced(receiver)) {
        return true;
    }
    const char *const receiverClass = receiver->metaObject()->className();  // the receiver may be gone afterwards
    const ApplicationGuard::Present present(m_guard, m_guard->nameOf(receiver), receiverClass);
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        m_guard->caught(receiverClass);
        return true;
    }
}

bool HostApplication::event(QEvent *event) {
    if (event->type() == TouchEvent::eventType()) {
        const auto touch = static_cast<TouchEvent *>(event);
        HEADUNIT_TRACE_KIND(Touch, traceCall("TouchEvent", {int(touch->code()), touch->x(), touch->y()}),
                            touchText(touch->code()));
        Q_EMIT touched(touch->code());
        return true;
    }
    return QApplication::event(event);
}

}  // namespace headunit
