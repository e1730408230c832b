// SPDX-License-Identifier: Apache-2.0
#include "basewindow.h"

#include "headunit/settings/trace.h"

#include <QPointer>
#include <QWidget>

namespace cm {

struct BaseWindow::Private {
    QPointer<QWidget> mainWidget;
};

BaseWindow::BaseWindow(QObject *parent) : QObject(parent), d(new Private) {}

BaseWindow::~BaseWindow() {
    delete d;
}

void BaseWindow::onCreate() {}

void BaseWindow::onDestroy() {}

void BaseWindow::onShow() {}

void BaseWindow::onHide() {}

void BaseWindow::onEnter() {}

void BaseWindow::onExit() {}

int BaseWindow::attribute() {
    return 0;
}

int BaseWindow::backEvent() {
    return 0;
}

int BaseWindow::keyEvent(KeyEvent *) {
    return 0;
}

QString BaseWindow::name() {
    return QString::fromLatin1(metaObject()->className());
}

QWidget *BaseWindow::mainWidget() const {
    return d->mainWidget;
}

void BaseWindow::setMainWidget(QWidget *widget, int id) {
    HEADUNIT_TRACE_KIND(
        Window,
        QStringLiteral("setMainWidget(%1, %2)")
            .arg(widget ? QString::fromLatin1(widget->metaObject()->className()) : QStringLiteral("null"))
            .arg(id),
        QStringLiteral("the widget of window %1").arg(id));
    d->mainWidget = widget;
}

}  // namespace cm
