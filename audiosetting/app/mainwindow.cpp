// SPDX-License-Identifier: Apache-2.0
#include "mainwindow.h"

#include "base/debuglog.h"
#include "eventhandler.h"
#include "keyevent.h"
#include "mainwidget.h"
#include "srcdsplctrl.h"
#include "statusbarcontrol.h"

namespace audiosetting {

namespace {
const int fullScreenAttribute = 7;
const int backHandled = 1;
}  // namespace

MainWindow::MainWindow(QObject *parent) : cm::BaseWindow(parent) {}

void MainWindow::onCreate() {
    if (m_widget) {
        m_widget->resume();
    } else {
        m_widget = new MainWidget(nullptr);
        connect(m_widget, SIGNAL(destroyed()), this, SLOT(onDestroyObj()));
        setMainWidget(m_widget, interfaceId);
    }
    cm::BaseWindow::onCreate();
}

void MainWindow::onDestroy() {
    cm::BaseWindow::onDestroy();
}

void MainWindow::onShow() {
    cm::StatusBarControl::instance()->sethide(true);
    cm::BaseWindow::onShow();
}

void MainWindow::onHide() {
    cm::BaseWindow::onHide();
}

void MainWindow::onEnter() {
    cm::BaseWindow::onEnter();
}

void MainWindow::onExit() {
    cm::BaseWindow::onExit();
}

int MainWindow::attribute() {
    // Read for the log line only.
    const int display = EventHandler::instance()->control()->currentDspl();
    AUDIO_LOG << "currentDspl:" << display;
    return fullScreenAttribute;
}

int MainWindow::backEvent() {
    return backHandled;
}

int MainWindow::keyEvent(KeyEvent *event) {
    AUDIO_LOG << "key:" << event->key() << "type:" << event->type();
    return cm::BaseWindow::keyEvent(event);
}

QString MainWindow::name() {
    return QStringLiteral("EQ");
}

void MainWindow::onDestroyObj() {
    m_widget = nullptr;
}

}  // namespace audiosetting
