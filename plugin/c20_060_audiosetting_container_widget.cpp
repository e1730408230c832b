#include "c20_060_audiosetting_container_widget.h"

#include "resources/picture.h"
#include "ui_c20_060_setup_container.h"

#include <QPainter>
#include <QPaintEvent>

namespace {

const int groundColumns = 256;  // px of the composed ground: wide enough that few pieces cover the screen

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

void c20_060_audiosetting_container_widget::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    const QRect dirty = event->rect();
    const int height = qMin(int(m_ground.height() / m_ground.devicePixelRatio()), dirty.bottom() + 1) - dirty.top();
    for (int x = dirty.left(); x <= dirty.right();) {
        const int column = x % groundColumns;
        const int width = qMin(groundColumns - column, dirty.right() + 1 - x);
        painter.drawPixmap(QRect(x, dirty.top(), width, height), m_ground,
                           QRectF(QPointF(column, dirty.top()) * m_ground.devicePixelRatio(),
                                  QSizeF(width, height) * m_ground.devicePixelRatio())
                               .toRect());
        x += width;
    }
}
