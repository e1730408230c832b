// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/stage.h"

#include "headunit/host/screens/fadingpicture.h"
#include "headunit/settings/trace.h"
#include "keyevent.h"
#include "windowinterface.h"

#include <QWidget>

namespace headunit {

namespace {

struct WindowCall {
    void (WindowInterface::*call)();
    const char *name;
    const char *meaning;
};

constexpr WindowCall onCreate{&WindowInterface::onCreate, "onCreate", "the window is wanted"};
constexpr WindowCall onShow{&WindowInterface::onShow, "onShow", "the window is about to be shown"};
constexpr WindowCall onEnter{&WindowInterface::onEnter, "onEnter", "the driver works with the window"};
constexpr WindowCall onExit{&WindowInterface::onExit, "onExit", "the driver works with another"};
constexpr WindowCall onHide{&WindowInterface::onHide, "onHide", "the window was hidden"};
constexpr WindowCall onDestroy{&WindowInterface::onDestroy, "onDestroy", "the window is no longer wanted"};

void tell(WindowInterface *window, const WindowCall &call) {
    HEADUNIT_TRACE_KIND(Window, traceCall(call.name), QLatin1String(call.meaning));
    (window->*call.call)();
}

}  // namespace

Stage::Stage(QWidget *stage, QObject *parent) : QObject(parent), m_stage(stage) {}

bool Stage::open(WindowInterface *window) {
    if (window == m_front) {
        return true;
    }
    fadeFromPresent();
    takeOffFront();
    tell(window, onCreate);
    if (!m_created.contains(window)) {
        m_created << window;
    }
    QWidget *widget = window->mainWidget();
    if (!widget) {
        return false;
    }
    takeUpWidget(widget);
    m_front = window;
    tell(window, onShow);
    widget->show();
    widget->raise();
    raiseFade();
    tell(window, onEnter);
    Q_EMIT frontChanged();
    return true;
}

void Stage::takeUpWidget(QWidget *widget) {
    if (widget->parentWidget() != m_stage) {
        widget->setParent(m_stage);
        m_widgets << widget;
    }
    widget->setGeometry(m_stage->rect());
}

void Stage::refresh() {
    if (QWidget *const widget = m_front ? m_front->mainWidget() : nullptr) {
        widget->hide();
        widget->show();
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
    if (QWidget *widget = left->mainWidget()) {
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
    const bool used = m_front->keyEvent(event) == 1;
    HEADUNIT_TRACE_KIND(Window, traceCall("keyEvent", {event->key(), int(event->type())}),
                        used ? QStringLiteral("hard key, used by the window") : QStringLiteral("hard key, the unit's"));
    return used;
}

bool Stage::offerBack() {
    if (!m_front) {
        return false;
    }
    const bool answered = m_front->backEvent() == 1;
    HEADUNIT_TRACE_KIND(
        Window, traceCall("backEvent"),
        answered ? QStringLiteral("Back, answered by the window") : QStringLiteral("Back, the unit leaves the window"));
    return answered;
}

}  // namespace headunit
