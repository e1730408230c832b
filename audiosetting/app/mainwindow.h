// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "basewindow.h"

namespace audiosetting {

class MainWidget;

/// The plug-in's one window, driven by the host.
class MainWindow : public cm::BaseWindow {
    Q_OBJECT
public:
    /// Id of this window towards the host, as window interface and for its main widget.
    enum { interfaceId = 33 };

    explicit MainWindow(QObject *parent);

    /// Builds the main widget the first time; later re-initialises its pages from the store.
    void onCreate() override;
    void onDestroy() override;
    /// Hides the status bar: the application uses the whole screen.
    void onShow() override;
    void onHide() override;
    void onEnter() override;
    void onExit() override;
    /// Always 7, whatever source display is in front.
    int attribute() override;
    /// Always 1: Back is answered inside the pages.
    int backEvent() override;
    int keyEvent(KeyEvent *event) override;
    /// "EQ", the name under which head units know the application although it shows all audio settings.
    QString name() override;

private Q_SLOTS:
    void onDestroyObj();

private:
    MainWidget *m_widget = nullptr;
};

}  // namespace audiosetting
