// SPDX-License-Identifier: Apache-2.0
#include "finger.h"

#include "check.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWidget>

namespace conformance {

namespace {

void send(QWidget *to, QEvent::Type type, QWidget *at, const QPoint &pos) {
    const QPoint global = at->mapToGlobal(pos);
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, to->mapFromGlobal(global), global, button, held, Qt::NoModifier);
    QApplication::sendEvent(to, &event);
}

}  // namespace

void Finger::press(QWidget *at, const QPoint &pos) {
    QWidget *const root = at->window();
    QWidget *const top = root->childAt(at->mapTo(root, pos));
    m_grabber = top ? top : root;
    send(m_grabber, QEvent::MouseButtonPress, at, pos);
}

void Finger::move(QWidget *at, const QPoint &pos) {
    if (m_grabber) {
        send(m_grabber, QEvent::MouseMove, at, pos);
    }
}

void Finger::release(QWidget *at, const QPoint &pos) {
    QWidget *const to = m_grabber;
    m_grabber = nullptr;
    if (to) {
        send(to, QEvent::MouseButtonRelease, at, pos);
    }
}

void Finger::tap(QWidget *at) {
    // The widget may hide under the finger, so the place is kept.
    QWidget *const root = at->window();
    const QPoint place = at->mapTo(root, at->rect().center());
    press(root, place);
    release(root, place);
}

void show(QWidget *widget) {
    widget->show();
    pass(0);
    QApplication::processEvents();
}

}  // namespace conformance
