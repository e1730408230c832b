// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "appplugin.h"

#include <QObject>

namespace audiosetting {

/// The root object of the plug-in: hands the host its one window.
class Plugin : public QObject, public AppPlugin {
    Q_OBJECT
    Q_INTERFACES(AppPlugin)
public:
    void create() override;
    QList<int> windowInterfaceID() override;
    QList<int> sourceInterfaceID() override;
    WindowInterface *requestWindowInterface(int id) override;
    SourceInterface *requestSourceInterface(int id) override;

private:
    WindowInterface *m_window = nullptr;
};

}  // namespace audiosetting
