// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/virtualtime/virtualtime.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

/// The common part of floor and product, so that only their difference is measured.
namespace bench {

constexpr QSize screen(1024, 600);

/// Milliseconds between two touch events of a finger that moves.
constexpr int touchInterval = 10;

/// Virtual time first, then the application: both programs run without waiting.
class Application {
public:
    Application(int &argc, char **argv) : m_time(new headunit::VirtualTime), m_app(argc, argv) {}
    QStringList arguments() const { return QCoreApplication::arguments(); }
    headunit::VirtualTime &time() { return *m_time; }

private:
    headunit::VirtualTime *const m_time;  // Qt's, once the application is there
    QApplication m_app;
};

/// Delivers what is posted, paints included.
inline void settle() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

inline void showAndPaint(QWidget *window) {
    window->show();
    settle();
}

inline void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &pos) {
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, pos, widget->mapToGlobal(pos), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

/// A finger down and up again in the middle, each painted.
inline void tap(QWidget *widget) {
    sendMouse(widget, QEvent::MouseButtonPress, widget->rect().center());
    settle();
    sendMouse(widget, QEvent::MouseButtonRelease, widget->rect().center());
    settle();
}

/// Drags a finger over \a area of \a widget in \a steps moves, to and fro along the given axes; \a afterStep runs
/// after each. Every move paints.
template <class AfterStep>
void drag(QWidget *widget, const QRect &area, int steps, Qt::Orientations axes, AfterStep afterStep) {
    // A triangle wave of a length that shares no factor with the other axis, so that the path is not one line.
    const auto wave = [](int step, int length) {
        const int phase = step % (2 * length);
        return phase < length ? phase : 2 * length - phase;
    };
    const auto at = [&](int step) {
        const int x = axes & Qt::Horizontal ? wave(7 * step, area.width() - 1) : area.width() / 2;
        const int y = axes & Qt::Vertical ? wave(5 * step, area.height() - 1) : area.height() / 2;
        return area.topLeft() + QPoint(x, y);
    };
    sendMouse(widget, QEvent::MouseButtonPress, at(0));
    for (int i = 1; i <= steps; ++i) {
        sendMouse(widget, QEvent::MouseMove, at(i));
        settle();
        afterStep();
    }
    sendMouse(widget, QEvent::MouseButtonRelease, at(steps));
    settle();
}

inline void drag(QWidget *widget, const QRect &area, int steps, Qt::Orientations axes) {
    drag(widget, area, steps, axes, [] {});
}

}  // namespace bench
