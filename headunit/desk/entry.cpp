// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/desk.h"

#include <QPointer>

extern "C" Q_DECL_EXPORT QObject *headunitOpenDesk(headunit::DeskHost *host, const QString *panel) {
    static QPointer<headunit::Desk> desk;
    if (!desk) {
        desk = new headunit::Desk(*host);
    }
    desk->open(*panel);
    return desk;
}
