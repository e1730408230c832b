// SPDX-License-Identifier: Apache-2.0
#include "tests/platform/finger.h"

#include "headunit/virtualtime/virtualtime.h"

#include <QTest>
#include <QWidget>
#include <QWindow>

namespace finger {

namespace {

/// Where the finger is, on the screen's window; stops the test program where there is nothing to touch.
QWindow *windowOf(QWidget *at) {
    if (!at || !at->isVisible() || !at->window()->windowHandle()) {
        qFatal("The finger's target %s is not on the screen", at ? qPrintable(at->objectName()) : "(null)");
    }
    return at->window()->windowHandle();
}

QPoint onWindow(QWidget *at, const QPoint &pos) {
    return at->mapTo(at->window(), pos);
}

}  // namespace

void press(QWidget *at, const QPoint &pos) {
    QWindow *const window = windowOf(at);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, onWindow(at, pos));
}

void move(QWidget *at, const QPoint &pos) {
    QWindow *const window = windowOf(at);
    QTest::mouseMove(window, onWindow(at, pos));
}

void release(QWidget *at, const QPoint &pos) {
    QWindow *const window = windowOf(at);
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, onWindow(at, pos));
}

void tap(QWidget *at, const QPoint &pos) {
    windowOf(at);
    // The target may hide under the finger (a key that opens a page), so the place is kept.
    QWidget *const root = at->window();
    const QPoint place = onWindow(at, pos);
    press(root, place);
    release(root, place);
}

void tap(QWidget *at) {
    tap(at, at->rect().center());
}

void hold(QWidget *at, int ms) {
    windowOf(at);
    QWidget *const root = at->window();
    const QPoint place = onWindow(at, at->rect().center());
    press(root, place);
    headunit::VirtualTime::instance()->advance(ms);
    release(root, place);
}

}  // namespace finger
