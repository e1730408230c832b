#include "c20_060_audiosetting_container_widget.h"

#include "resources/picture.h"
#include "ui_c20_060_setup_container.h"

#include <QPainter>
#include <QPaintEvent>

namespace {

// Repeating a narrow strip costs more than all else on a page; one of this width costs little, and little memory.
const int groundWidth = 256;  // px

QPixmap widened(const QPixmap &strip) {
    const qreal ratio = strip.devicePixelRatio();
    const QSize size(groundWidth, qRound(strip.height() / ratio));
    QPixmap ground(size * ratio);
    ground.setDevicePixelRatio(ratio);
    QPainter(&ground).drawTiledPixmap(QRect(QPoint(0, 0), size), strip);
    return ground;
}

}  // namespace

c20_060_audiosetting_container_widget::c20_060_audiosetting_container_widget(QWidget *parent,
                                                                             Ui::c20_060_setup_container *form)
    : QWidget(parent), m_ground(widened(audiosetting::picture("audiosettings_bg"))), m_form(form) {
    m_form->setupUi(this);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void c20_060_audiosetting_container_widget::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    painter.drawTiledPixmap(event->rect(), m_ground, event->rect().topLeft());
}
