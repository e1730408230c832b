// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class KeyEvent;
class QWidget;

/// A window of an application, as the host drives it. All calls come on the GUI thread.
class WindowInterface {
public:
    virtual ~WindowInterface() {}

    /// The window is wanted, for the first time or again: build or refresh its content.
    virtual void onCreate() = 0;
    /// The window is no longer wanted. The content may be kept for the next onCreate().
    virtual void onDestroy() = 0;
    /// The window is about to be shown.
    virtual void onShow() = 0;
    /// The window was hidden.
    virtual void onHide() = 0;
    /// The window became the one that the driver works with.
    virtual void onEnter() = 0;
    /// Another window became the one that the driver works with.
    virtual void onExit() = 0;
    /// The host's layout attribute of the window; 7 is a full-screen window without status bar.
    virtual int attribute() = 0;
    /// The hardware Back key was pressed. 1: the window answers Back itself, 0: the host leaves the window.
    virtual int backEvent() = 0;
    /// A hard key. 1: the window used it, 0: the host goes on with it.
    virtual int keyEvent(KeyEvent *event) = 0;
    /// The window's name towards the host.
    virtual QString name() = 0;
    /// The widget that was handed over with BaseWindow::setMainWidget(), or null.
    virtual QWidget *mainWidget() const = 0;
};
