// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/touchlog.h"

#include "headunit/desk/frame/clock.h"
#include "headunit/desk/frame/pages.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace headunit {

TouchLog::TouchLog(QWidget *window) : m_window(window), m_start(deskClock()) {
    window->winId();  // so that there is a window to follow
    window->windowHandle()->installEventFilter(this);
}

bool TouchLog::eventFilter(QObject *, QEvent *event) {
    switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            ++m_number;
            m_down = true;
            report(Touch::Down, static_cast<QMouseEvent *>(event)->pos(), 0);
            break;
        case QEvent::MouseMove:
            if (m_down) {
                report(Touch::Move, static_cast<QMouseEvent *>(event)->pos(), 0);
            }
            break;
        case QEvent::MouseButtonRelease:
            if (m_down) {
                m_down = false;
                report(Touch::Up, static_cast<QMouseEvent *>(event)->pos(), 0);
            }
            break;
        case QEvent::KeyPress:
            if (!static_cast<QKeyEvent *>(event)->isAutoRepeat()) {
                ++m_number;
            }
            report(Touch::KeyDown, QPoint(), static_cast<QKeyEvent *>(event)->key());
            break;
        case QEvent::KeyRelease:
            report(Touch::KeyUp, QPoint(), static_cast<QKeyEvent *>(event)->key());
            break;
        default:
            break;
    }
    return false;
}

void TouchLog::report(Touch::Kind kind, const QPoint &position, int key) {
    Touch touch;
    touch.kind = kind;
    touch.number = m_number;
    touch.position = position;
    touch.key = key;
    touch.time = deskClock() - m_start;
    if (kind == Touch::Down || kind == Touch::Up) {
        const QWidget *widget = m_window->childAt(position);
        touch.page = pageOf(widget);
        while (widget && widget->objectName().isEmpty()) {
            widget = widget->parentWidget();
        }
        touch.object = widget ? widget->objectName() : QString();
    }
    Q_EMIT touched(touch);
}

}  // namespace headunit
