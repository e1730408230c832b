#include "headunit/host/stage.h"

#include "keyevent.h"
#include "windowinterface.h"

#include <QWidget>

namespace headunit {

Stage::Stage(QWidget *stage, QObject *parent) : QObject(parent), m_stage(stage) {}

bool Stage::open(WindowInterface *window) {
    if (window == m_front) {
        return true;
    }
    leave();
    window->onCreate();
    if (!m_created.contains(window)) {
        m_created << window;
    }
    QWidget *widget = window->mainWidget();
    if (!widget) {
        return false;
    }
    takeUpWidget(widget);
    m_front = window;
    window->onShow();
    widget->show();
    widget->raise();
    window->onEnter();
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

void Stage::leave() {
    if (!m_front) {
        return;
    }
    WindowInterface *const left = m_front;
    m_front = nullptr;
    left->onExit();
    if (QWidget *widget = left->mainWidget()) {
        widget->hide();
    }
    left->onHide();
    Q_EMIT frontChanged();
}

void Stage::shutDown() {
    leave();
    for (WindowInterface *window : qAsConst(m_created)) {
        window->onDestroy();
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
    return m_front && m_front->keyEvent(event) == 1;
}

bool Stage::offerBack() {
    return m_front && m_front->backEvent() == 1;
}

}  // namespace headunit
