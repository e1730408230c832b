// SPDX-License-Identifier: Apache-2.0
#include "plugin.h"

#include "mainwindow.h"

namespace audiosetting {

void Plugin::create() {}

QList<int> Plugin::windowInterfaceID() {
    return QList<int>() << MainWindow::interfaceId;
}

QList<int> Plugin::sourceInterfaceID() {
    return QList<int>();
}

WindowInterface *Plugin::requestWindowInterface(int id) {
    if (id != MainWindow::interfaceId) {
        return nullptr;
    }
    if (!m_window) {
        m_window = new MainWindow(this);
    }
    return m_window;
}

SourceInterface *Plugin::requestSourceInterface(int) {
    return nullptr;
}

}  // namespace audiosetting
