// SPDX-License-Identifier: Apache-2.0
#include "platform/basewindow.h"
#include "platform/commsystemutils.h"
#include "platform/eventhandler.h"
#include "platform/keyevent.h"
#include "platform/srcdsplctrl.h"
#include "platform/statusbarcontrol.h"
#include "platform/translator.h"
#include "tests/platform/recorder_p.h"

#include <QPointer>
#include <QWidget>

using recording::call;
using recording::state;

namespace {

QString name(const QObject *object) {
    return object ? QString::fromLatin1(object->metaObject()->className()) : QStringLiteral("null");
}

}  // namespace

namespace cm {

struct BaseWindow::Private {
    QPointer<QWidget> widget;
};

BaseWindow::BaseWindow(QObject *parent) : QObject(parent), d(new Private) {}

BaseWindow::~BaseWindow() {
    delete d;
}

void BaseWindow::onCreate() {
    call("BaseWindow::onCreate");
}

void BaseWindow::onDestroy() {
    call("BaseWindow::onDestroy");
}

void BaseWindow::onShow() {
    call("BaseWindow::onShow");
}

void BaseWindow::onHide() {
    call("BaseWindow::onHide");
}

void BaseWindow::onEnter() {
    call("BaseWindow::onEnter");
}

void BaseWindow::onExit() {
    call("BaseWindow::onExit");
}

int BaseWindow::attribute() {
    return 0;
}

int BaseWindow::backEvent() {
    return 0;
}

int BaseWindow::keyEvent(KeyEvent *event) {
    call("BaseWindow::keyEvent", event->key());
    return state().keyEventResult;
}

QString BaseWindow::name() {
    return ::name(this);
}

QWidget *BaseWindow::mainWidget() const {
    return d->widget;
}

void BaseWindow::setMainWidget(QWidget *widget, int id) {
    recording::note(QStringLiteral("setMainWidget(%1, %2)").arg(::name(widget)).arg(id));
    d->widget = widget;
}

struct StatusBarControl::Private {};

StatusBarControl::StatusBarControl() : d(nullptr) {}
StatusBarControl::~StatusBarControl() {}

StatusBarControl *StatusBarControl::instance() {
    static StatusBarControl control;
    return &control;
}

void StatusBarControl::sethide(bool hide) {
    call("sethide", hide);
    state().statusBarHidden = hide;
}

}  // namespace cm

struct SrcDsplCtrl::Private {};

SrcDsplCtrl::SrcDsplCtrl() : d(nullptr) {}
SrcDsplCtrl::~SrcDsplCtrl() {}

int SrcDsplCtrl::currentDspl() {
    call(recording::Reads, "currentDspl");
    return state().display;
}

struct EventHandler::Private {
    SrcDsplCtrl control;
};

EventHandler::EventHandler() : d(new Private) {}

EventHandler::~EventHandler() {
    delete d;
}

EventHandler *EventHandler::instance() {
    static EventHandler handler;
    return &handler;
}

SrcDsplCtrl *EventHandler::control() {
    return &d->control;
}

CommSystemUtils::CommSystemUtils() {}
CommSystemUtils::~CommSystemUtils() {}

CommSystemUtils *CommSystemUtils::instance() {
    static CommSystemUtils utils;
    return &utils;
}

void CommSystemUtils::sync_default_font(QWidget *parent, const QString &prefix) {
    if (recording::isLogged(recording::Toolkit)) {
        recording::note(QStringLiteral("sync_default_font(%1, \"%2\")").arg(name(parent), prefix));
    }
}

void CommSystemUtils::sync_custom_font(QWidget *parent, QFont &font, const QString &prefix) {
    if (recording::isLogged(recording::Toolkit)) {
        recording::note(QStringLiteral("sync_custom_font(%1, %2, \"%3\")").arg(name(parent), font.toString(), prefix));
    }
    const QList<QWidget *> children = parent->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->objectName().startsWith(prefix)) {
            child->setFont(font);
        }
    }
}

QString Translator::translate(int id) {
    call(recording::Reads, "translate", id);
    return state().texts.value(id, QStringLiteral("#%1").arg(id));
}
