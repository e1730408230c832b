#include "c20_060_audiosetting_container_widget.h"

#include "resources/picture.h"
#include "ui_c20_060_setup_container.h"

#include <QPainter>
#include <QPaintEvent>

namespace {

const int groundColumns = 512;  // px of the composed ground: wide enough that few pieces cover the screen

// The picture of the ground is a narrow strip; side by side it makes one that is quick to lay out.
QPixmap composedGround() {
    const QPixmap strip = audiosetting::picture("audiosettings_bg");
    const qreal ratio = strip.devicePixelRatio();
    QPixmap ground(int(groundColumns * ratio), strip.height());
    ground.setDevicePixelRatio(ratio);
    QPainter painter(&ground);
    painter.drawTiledPixmap(QRect(0, 0, groundColumns, int(strip.height() / ratio)), strip);
    return ground;
}

}  // namespace

c20_060_audiosetting_container_widget::c20_060_audiosetting_container_widget(QWidget *parent,
                                                                             Ui::c20_060_setup_container *form)
    : QWidget(parent), m_ground(composedGround()), m_form(form) {
    m_form->setupUi(this);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void c20_060_audiosetting_container_widget::paintGround(QPainter *painter, const QRect &rect) const {
    const qreal ratio = m_ground.devicePixelRatio();
    const int height = qMin(int(m_ground.height() / ratio), rect.bottom() + 1) - rect.top();
    for (int x = rect.left(); x <= rect.right();) {
        const int column = x % groundColumns;
        const int width = qMin(groundColumns - column, rect.right() + 1 - x);
        const QRectF source(QPointF(column, rect.top()) * ratio, QSizeF(width, height) * ratio);
        painter->drawPixmap(QRectF(x, rect.top(), width, height), m_ground, source);
        x += width;
    }
}

void c20_060_audiosetting_container_widget::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    // Piece by piece, each within a plain rectangle: Qt then copies whole lines instead of testing spans of them.
    const QVector<QRect> pieces = event->region().rects();
    for (const QRect &piece : pieces) {
        painter.setClipRect(piece);
        paintGround(&painter, piece);
    }
}
