// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/stage.h"

#include "headunit/host/app/applicationguard.h"
#include "headunit/host/screens/fadingpicture.h"
#include "headunit/settings/trace.h"
#include "keyevent.h"
#include "windowinterface.h"

#include <QWidget>

namespace headunit {

/// One of the calls of a window's life.
struct WindowCall {
    void (WindowInterface::*call)();
    const char *name;
    const char *meaning;
};

namespace {

constexpr WindowCall onCreate{&WindowInterface::onCreate, "onCreate", "the window is wanted"};
constexpr WindowCall onShow{&WindowInterface::onShow, "onShow", "the window is about to be shown"};
constexpr WindowCall onEnter{&WindowInterface::onEnter, "onEnter", "the driver works with the window"};
constexpr WindowCall onExit{&WindowInterface::onExit, "onExit", "the driver works with another"};
constexpr WindowCall onHide{&WindowInterface::onHide, "onHide", "the window was hidden"};
constexpr WindowCall onDestroy{&WindowInterface::onDestroy, "onDestroy", "the window is no longer wanted"};

}  // namespace

Stage::Stage(QWidget *stage, ApplicationGuard &guard, QObject *parent)
    : QObject(parent), m_stage(stage), m_guard(guard) {}

bool Stage::tell(WindowInterface *window, const WindowCall &call) {
    if (m_guard.hasFailed(window)) {
        return false;
    }
    HEADUNIT_TRACE_KIND(Window, traceCall(call.name), QLatin1String(call.meaning));
    return m_guard.call(window, call.name, [&] { (window->*call.call)(); });
}

QWidget *Stage::widgetOf(WindowInterface *window) {
    QWidget *widget = nullptr;
    m_guard.call(window, "mainWidget", [&] { widget = window->mainWidget(); });
    return widget;
}

bool Stage::open(WindowInterface *window) {
    if (window == m_front && !m_guard.hasFailed(window)) {
        return true;
    }
    fadeFromPresent();
    takeOffFront();
    if (!tell(window, onCreate)) {
        return false;
    }
    if (!m_created.contains(window)) {
        m_created << window;
    }
    QWidget *const widget = widgetOf(window);
    if (!widget) {
        return false;
    }
    takeUpWidget(widget, window);
    m_front = window;
    m_frontWidget = widget;
    // Whatever the window does in these may take its widget away, or show that it does not work.
    if (!tell(window, onShow) || !m_frontWidget) {
        return giveUpFront();
    }
    m_frontWidget->show();
    if (!m_frontWidget || m_guard.hasFailed(window)) {
        return giveUpFront();
    }
    m_frontWidget->raise();
    raiseFade();
    if (!tell(window, onEnter)) {
        return giveUpFront();
    }
    Q_EMIT frontChanged();
    return true;
}

/// What was to come to the front does not.
bool Stage::giveUpFront() {
    WindowInterface *const window = m_front;
    m_front = nullptr;
    if (m_frontWidget) {
        m_frontWidget->hide();
    }
    tell(window, onHide);
    return false;
}

void Stage::takeUpWidget(QWidget *widget, WindowInterface *window) {
    if (widget->parentWidget() != m_stage) {
        widget->setParent(m_stage);
        m_widgets << widget;
        m_guard.own(widget, window);
    }
    widget->setGeometry(m_stage->rect());
}

void Stage::refresh() {
    if (const QPointer<QWidget> widget = m_front ? widgetOf(m_front) : nullptr) {
        widget->hide();
        if (widget) {
            widget->show();
        }
    }
}

void Stage::leave() {
    if (m_front) {
        fadeFromPresent();
        takeOffFront();
    }
}

void Stage::takeOffFront() {
    if (!m_front) {
        return;
    }
    WindowInterface *const left = m_front;
    m_front = nullptr;
    tell(left, onExit);
    QWidget *const widget = m_guard.hasFailed(left) ? m_frontWidget.data() : widgetOf(left);
    if (widget) {
        widget->hide();
    }
    tell(left, onHide);
    Q_EMIT frontChanged();
}

/// Has what is seen now fade away, over whatever is shown next.
void Stage::fadeFromPresent() {
    if (m_stage->isVisible()) {
        delete m_fade;
        m_fade = new FadingPicture(m_stage->grab(), m_stage->rect(), fadeMilliseconds, m_stage);
    }
}

void Stage::raiseFade() {
    if (m_fade) {
        m_fade->raise();
    }
}

void Stage::shutDown() {
    takeOffFront();
    for (WindowInterface *window : qAsConst(m_created)) {
        tell(window, onDestroy);
    }
    m_created.clear();
}

void Stage::releaseWidgets() {
    for (const QPointer<QWidget> &widget : qAsConst(m_widgets)) {
        delete widget.data();
    }
    m_widgets.clear();
}

bool Stage::offerKey(KeyEvent *event) {
    if (!m_front) {
        return false;
    }
    bool used = false;
    m_guard.call(m_front, "keyEvent", [&] { used = m_front->keyEvent(event) == 1; });
    HEADUNIT_TRACE_KIND(Window, traceCall("keyEvent", {event->key(), int(event->type())}),
                        used ? QStringLiteral("hard key, used by the window") : QStringLiteral("hard key, the unit's"));
    return used;
}

bool Stage::offerBack() {
    if (!m_front) {
        return false;
    }
    bool answered = false;
    m_guard.call(m_front, "backEvent", [&] { answered = m_front->backEvent() == 1; });
    HEADUNIT_TRACE_KIND(
        Window, traceCall("backEvent"),
        answered ? QStringLiteral("Back, answered by the window") : QStringLiteral("Back, the unit leaves the window"));
    return answered;
}

}  // namespace headunit
