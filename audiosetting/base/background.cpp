// SPDX-License-Identifier: Apache-2.0
#include "background.h"

#include "picture.h"

#include <QPainter>
#include <QPaintEvent>

namespace audiosetting {

namespace {

const int columnsWidth = 512;  // px of the composed background: wide enough that few pieces cover the screen

// The picture of the background is a narrow strip; side by side it makes one that is quick to lay out.
QPixmap composedColumns() {
    const QPixmap strip = picture("audiosettings_bg");
    const qreal ratio = strip.devicePixelRatio();
    QPixmap columns(int(columnsWidth * ratio), strip.height());
    columns.setDevicePixelRatio(ratio);
    QPainter painter(&columns);
    painter.drawTiledPixmap(QRect(0, 0, columnsWidth, int(strip.height() / ratio)), strip);
    return columns;
}

}  // namespace

Background::Background(QWidget *parent) : QWidget(parent), m_columns(composedColumns()) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Background::paintBackground(QPainter *painter, const QRect &rect) const {
    const qreal ratio = m_columns.devicePixelRatio();
    const int height = qMin(int(m_columns.height() / ratio), rect.bottom() + 1) - rect.top();
    for (int x = rect.left(); x <= rect.right();) {
        const int column = x % columnsWidth;
        const int width = qMin(columnsWidth - column, rect.right() + 1 - x);
        const QRectF source(QPointF(column, rect.top()) * ratio, QSizeF(width, height) * ratio);
        painter->drawPixmap(QRectF(x, rect.top(), width, height), m_columns, source);
        x += width;
    }
}

void Background::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    // Piece by piece, each within a plain rectangle: Qt then copies whole lines instead of testing spans of them.
    const QVector<QRect> pieces = event->region().rects();
    for (const QRect &piece : pieces) {
        painter.setClipRect(piece);
        paintBackground(&painter, piece);
    }
}

QPixmap backgroundBehind(const QWidget *widget) {
    // The background holds the widget, or lies behind it beside one of the widgets that do.
    const QWidget *ancestor = widget->parentWidget();
    const Background *found = nullptr;
    QPoint position = widget->pos();
    while (ancestor && !(found = qobject_cast<const Background *>(ancestor))) {
        found = ancestor->findChild<Background *>(QString(), Qt::FindDirectChildrenOnly);
        if (found) {
            position -= found->pos();
            break;
        }
        position += ancestor->pos();
        ancestor = ancestor->parentWidget();
    }
    if (!found) {
        return QPixmap();
    }
    const QRect place(position, widget->size());
    const qreal ratio = displayDensity();
    QImage background(place.size() * ratio, QImage::Format_RGB32);
    background.setDevicePixelRatio(ratio);
    QPainter painter(&background);
    painter.translate(-place.topLeft());
    found->paintBackground(&painter, place);
    painter.end();
    return QPixmap::fromImage(background);
}

}  // namespace audiosetting
