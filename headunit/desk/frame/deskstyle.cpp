// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/deskstyle.h"

#include "headunit/toolkit/unitapplication.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>
#include <QWidget>

namespace headunit {

namespace {

constexpr int pointSize = 10;

/// One for all; it outlives every widget.
QStyle *deskStyle() {
    static QStyle *style = nullptr;
    if (!style) {
        style = QStyleFactory::create(QStringLiteral("Fusion"));
        style->setParent(qApp);
        QObject::connect(style, &QObject::destroyed, [] { style = nullptr; });
    }
    return style;
}

QFont deskFont() {
    return QFont(unitFontFamily(), pointSize);
}

}  // namespace

void dressForDesk(QWidget *window) {
    window->setStyle(deskStyle());
    window->setPalette(deskStyle()->standardPalette());
    window->setFont(deskFont());
}

void followDesk(QWidget *widget) {
    if (widget->style() != deskStyle()) {
        widget->setStyle(deskStyle());
    }
    if (widget->windowType() == Qt::ToolTip) {  // it was given those of the application
        widget->setFont(deskFont());
        QPalette palette = deskStyle()->standardPalette();
        palette.setColor(QPalette::Window, palette.color(QPalette::ToolTipBase));
        palette.setColor(QPalette::WindowText, palette.color(QPalette::ToolTipText));
        widget->setPalette(palette);
    } else if (widget->isWindow()) {
        widget->setAttribute(Qt::WA_WindowPropagation);
    }
}

}  // namespace headunit
