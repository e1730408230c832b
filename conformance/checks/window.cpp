// SPDX-License-Identifier: Apache-2.0
// Windows, touches, keys, and the host's small services.

#include "basewindow.h"
#include "check.h"
#include "eventhandler.h"
#include "keyevent.h"
#include "srcdsplctrl.h"
#include "statusbarcontrol.h"
#include "touchevent.h"

#include <QApplication>
#include <QWidget>

using namespace conformance;

namespace {

/// Notes the touches that reach the application object.
class TouchWatch : public QObject {
public:
    QStringList lines;
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == qApp && event->type() == TouchEvent::eventType()) {
            const TouchEvent *const touch = static_cast<TouchEvent *>(event);
            lines << QStringLiteral("%1, %2, %3").arg(int(touch->code())).arg(touch->x()).arg(touch->y());
        }
        return false;
    }
};

class CustomWindow : public cm::BaseWindow {};

}  // namespace

CHECK(windowDefaults, "window.defaults", "BaseWindow answers attribute(), backEvent() and keyEvent() with 0.",
      "the hard keys would do nothing in the application") {
    cm::BaseWindow window;
    KeyEvent key(QEvent::KeyPress, KeyEvent::VolumeUp);
    expect("attribute()", 0, window.attribute());
    expect("backEvent()", 0, window.backEvent());
    expect("keyEvent()", 0, window.keyEvent(&key));
}

CHECK(windowName, "window.name", "BaseWindow::name() is the class name.",
      "none: the application has a name of its own") {
    cm::BaseWindow window;
    expect("name()", QStringLiteral("cm::BaseWindow"), window.name());
}

CHECK(windowWidget, "window.main-widget",
      "mainWidget() is what setMainWidget() was given, and null once it is deleted.",
      "the application: it would not be shown, or the host would crash") {
    cm::BaseWindow window;
    expectTrue("null at first", window.mainWidget() == nullptr);
    QWidget *const widget = new QWidget;
    window.setMainWidget(widget, 33);
    expectTrue("the widget handed over", window.mainWidget() == widget);
    delete widget;
    expectTrue("null once it is deleted", window.mainWidget() == nullptr);
}

CHECK(windowLife, "window.life-cycle", "The operations of a window's life return, in any order and number.",
      "the application") {
    cm::BaseWindow window;
    void (cm::BaseWindow::*const calls[])() = {&cm::BaseWindow::onCreate, &cm::BaseWindow::onShow,
                                               &cm::BaseWindow::onEnter,  &cm::BaseWindow::onExit,
                                               &cm::BaseWindow::onHide,   &cm::BaseWindow::onDestroy};
    for (int round = 0; round < 2; ++round) {
        for (auto call : calls) {
            (window.*call)();
            (window.*call)();
        }
    }
}

CHECK(windowParent, "window.parent", "A window is a QObject of the parent that it was given.", "the application") {
    QObject parent;
    const cm::BaseWindow *const window = new cm::BaseWindow(&parent);
    expectTrue("parent()", window->parent() == &parent);
}

CHECK(touchArrives, "touch.arrives", "A TouchEvent posted to the application object arrives there, in its turn.",
      "Back and Close do nothing") {
    TouchWatch watch;
    qApp->installEventFilter(&watch);
    QCoreApplication::postEvent(qApp, new TouchEvent(Qx::TouchBack, -1, -1));
    QCoreApplication::postEvent(qApp, new TouchEvent(Qx::TouchClose, -1, -1));
    expect("nothing before the event loop runs", QStringList(), watch.lines);
    pass(0);
    QCoreApplication::processEvents();
    qApp->removeEventFilter(&watch);
    expect("touches", QStringList({"15, -1, -1", "1, -1, -1"}), watch.lines);
}

CHECK(keyCodes, "key.codes", "A KeyEvent carries the type and the key that it was made with.", "the hard keys") {
    const KeyEvent event(QEvent::KeyRelease, KeyEvent::Home);
    expect("key()", int(KeyEvent::Home), event.key());
    expect("type()", int(QEvent::KeyRelease), int(event.type()));
}

CHECK(statusBar, "status.hides", "sethide() returns, for true and for false, twice as well.",
      "the application's opening") {
    expectTrue("one object", cm::StatusBarControl::instance() == cm::StatusBarControl::instance());
    for (bool hide : {true, true, false, false}) {
        cm::StatusBarControl::instance()->sethide(hide);
    }
}

CHECK(displayControl, "display.control", "EventHandler::control() is never null, and always the same.",
      "the application's opening") {
    SrcDsplCtrl *const control = EventHandler::instance()->control();
    expectTrue("not null", control != nullptr);
    if (control) {
        expectTrue("the same again", EventHandler::instance()->control() == control);
        control->currentDspl();
    }
}
