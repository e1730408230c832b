// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/script/finger.h"

#include "headunit/host/script/scripttarget.h"

#include <QWidget>

#include <cmath>

QT_BEGIN_NAMESPACE
// Delivers a mouse event to a window the way the window system does, so that it takes the road of a real one.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow *window, const QPointF &local, const QPointF &global,
                                      Qt::MouseButtons state, Qt::MouseButton button, QEvent::Type type,
                                      Qt::KeyboardModifiers mods, int timestamp);
// The same for a key.
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow *window, QEvent::Type type, int key, Qt::KeyboardModifiers mods,
                                    const QString &text, bool autoRepeat, ushort count);
QT_END_NAMESPACE

namespace headunit {

namespace {

// A finger as a touch screen reports it: a position each 16 ms, at most so far from the one before.
constexpr int moveInterval = 16;
constexpr double moveStep = 8;

}  // namespace

void Finger::press(QPoint position) {
    m_position = position;
    m_down = true;
    send(QEvent::MouseButtonPress);
}

void Finger::moveTo(QPoint position) {
    const QPoint start = m_position;
    const QPoint way = position - start;
    const int steps = qMax(1, int(std::ceil(std::hypot(way.x(), way.y()) / moveStep)));
    for (int i = 1; i <= steps; ++i) {
        m_position = start + way * (double(i) / steps);
        wait(moveInterval);
        send(QEvent::MouseMove);
    }
}

void Finger::slideTo(QPoint position) {
    m_position = position;
    send(QEvent::MouseMove);
}

void Finger::release() {
    m_down = false;
    send(QEvent::MouseButtonRelease);
}

void Finger::releaseAt(QPoint position) {
    m_position = position;
    release();
}

void Finger::key(int key, bool down) {
    qt_handleKeyEvent(m_target.window()->windowHandle(), down ? QEvent::KeyPress : QEvent::KeyRelease, key,
                      Qt::NoModifier, QString(), false, 1);
    m_target.wait(0);
}

void Finger::wait(int ms) {
    m_timestamp += ms;
    m_target.wait(ms);
}

void Finger::send(QEvent::Type type) {
    QWidget *const window = m_target.window();
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    qt_handleMouseEvent(window->windowHandle(), m_position, window->mapToGlobal(m_position),
                        m_down ? Qt::LeftButton : Qt::NoButton, button, type, Qt::NoModifier, m_timestamp);
    m_target.wait(0);
}

}  // namespace headunit
