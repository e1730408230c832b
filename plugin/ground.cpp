#include "ground.h"

#include "c20_060_audiosetting_container_widget.h"

#include <QPainter>
#include <QStyle>

namespace audiosetting {

QPixmap groundBehind(const QWidget *widget) {
    const QWidget *ancestor = widget->parentWidget();
    while (ancestor && !qobject_cast<const c20_060_audiosetting_container_widget *>(ancestor)) {
        ancestor = ancestor->parentWidget();
    }
    if (!ancestor) {
        return QPixmap();
    }
    const QRect place(widget->mapTo(ancestor, QPoint()), widget->size());
    const qreal ratio = widget->devicePixelRatio();
    QImage ground(place.size() * ratio, QImage::Format_RGB32);
    ground.setDevicePixelRatio(ratio);
    QPainter painter(&ground);
    painter.translate(-place.topLeft());
    static_cast<const c20_060_audiosetting_container_widget *>(ancestor)->paintGround(&painter, place);
    painter.end();
    return QPixmap::fromImage(ground);
}

void ValueLabel::showEvent(QShowEvent *event) {
    m_ground = groundBehind(this);
    setAttribute(Qt::WA_OpaquePaintEvent, !m_ground.isNull());
    QLabel::showEvent(event);
}

void ValueLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    if (!m_ground.isNull()) {
        painter.drawPixmap(0, 0, m_ground);
    }
    style()->drawItemText(&painter, contentsRect(), int(alignment()), palette(), isEnabled(), text(), foregroundRole());
}

}  // namespace audiosetting
