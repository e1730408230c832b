// SPDX-License-Identifier: Apache-2.0
#include "commsystemutils.h"

#include "headunit/toolkit/unitapplication.h"

#include <QFont>
#include <QWidget>

namespace {

template <typename Change> void forEachNamed(QWidget *parent, const QString &prefix, Change change) {
    if (!parent) {
        return;
    }
    const QList<QWidget *> children = parent->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (child->objectName().startsWith(prefix)) {
            change(child);
        }
    }
}

}  // namespace

CommSystemUtils::CommSystemUtils() = default;

CommSystemUtils::~CommSystemUtils() = default;

CommSystemUtils *CommSystemUtils::instance() {
    static CommSystemUtils utils;
    return &utils;
}

void CommSystemUtils::sync_default_font(QWidget *parent, const QString &prefix) {
    forEachNamed(parent, prefix, [](QWidget *child) {
        QFont font = child->font();
        font.setFamily(headunit::unitFontFamily());
        child->setFont(font);
    });
}

void CommSystemUtils::sync_custom_font(QWidget *parent, QFont &font, const QString &prefix) {
    forEachNamed(parent, prefix, [&font](QWidget *child) { child->setFont(font); });
}
