#include "curvelabel.h"

#include "base/picture.h"

#include <QPainter>

CurveLabel::CurveLabel(QWidget *parent) : QLabel(parent) {}

void CurveLabel::setCurve(const char *name) {
    if (m_name == name) {
        return;
    }
    m_name = name;
    m_curve = audiosetting::picture(name);
    m_stretched = QPixmap();
    setPixmap(m_curve);
}

void CurveLabel::paintEvent(QPaintEvent *) {
    // The graph has painted it.
}

void CurveLabel::paintCurve(QPainter &painter) {
    const QRect visible = rect() & parentWidget()->rect().translated(-pos());
    if (m_curve.isNull() || visible.isEmpty()) {
        return;
    }
    if (m_stretched.isNull() || m_stretchedSize != size() || !m_stretchedPart.contains(visible)) {
        stretch(visible);
    }
    painter.drawPixmap(pos() + m_stretchedPart.topLeft(), m_stretched);
}

void CurveLabel::stretch(const QRect &visible) {
    m_stretchedSize = size();
    // Shrinking averages, so that a thin line stays a line; the result is never larger than the picture.
    const int density = m_curve.devicePixelRatio();
    const QSize wanted = size() * density;
    const QSize shrunk = wanted.boundedTo(m_curve.size());
    const QPixmap base =
        shrunk == m_curve.size() ? m_curve : m_curve.scaled(shrunk, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (shrunk == wanted) {
        m_stretched = base;
        m_stretchedPart = rect();
        return;
    }
    // Growing computes only what is seen.
    m_stretchedPart = visible;
    m_stretched = QPixmap(visible.size() * density);
    m_stretched.setDevicePixelRatio(density);
    m_stretched.fill(Qt::transparent);
    const double x = double(shrunk.width()) / width();
    const double y = double(shrunk.height()) / height();
    QPainter painter(&m_stretched);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(QRectF(QPointF(0, 0), QSizeF(visible.size())), base,
                       QRectF(visible.x() * x, visible.y() * y, visible.width() * x, visible.height() * y));
}
