// SPDX-License-Identifier: Apache-2.0
#include <eqwidget.h>
#include <windowinterface.h>

QWidget *panel() {
    return new audiosetting::EQWidget(nullptr);
}

int shownWindow(WindowInterface *window) {
    window->onShow();
    return window->attribute();
}
