// SPDX-License-Identifier: Apache-2.0
#include "curvelabel.h"

#include "base/picture.h"
#include "curveline.h"

#include <QLineF>

using namespace audiosetting::crossover;

namespace {

const double outside = 8;  // px beyond the graph that a line runs on: more than it is wide

/// Cuts \a line to what lies between two places along one axis; false if nothing does. Coordinates may be beyond any
/// pixel.
bool cut(QLineF &line, double start, double way, double low, double high) {
    if (way == 0) {
        return start >= low && start <= high;
    }
    const double a = (low - start) / way;
    const double b = (high - start) / way;
    const double from = qMax(0.0, qMin(a, b));
    const double to = qMin(1.0, qMax(a, b));
    line = QLineF(line.pointAt(from), line.pointAt(to));
    return from <= to;
}

}  // namespace

CurveLabel::CurveLabel(QWidget *parent) : QLabel(parent) {}

void CurveLabel::setCurve(const char *name) {
    if (m_line && name == QByteArray(m_line->picture)) {
        return;
    }
    m_line = curveLine(name);
    setPixmap(audiosetting::picture(name));
}

QPointF CurveLabel::inGraph(const QPointF &inPicture) const {
    return QPointF(x() + inPicture.x() * width() / curvePictureWidth,
                   y() + inPicture.y() * height() / curvePictureHeight);
}

QPolygonF CurveLabel::seenLine() const {
    QPolygonF seen;
    if (!m_line || size().isEmpty()) {
        return seen;
    }
    const QRectF area = QRectF(parentWidget()->rect()).adjusted(-outside, -outside, outside, outside);
    const auto add = [&seen](const QPointF &point) {
        if (seen.isEmpty() || seen.last() != point) {
            seen << point;
        }
    };
    const auto along = [&area](const QPointF &point) {
        return QPointF(point.x(), qBound(area.top(), point.y(), area.bottom()));
    };
    const QPolygonF points = m_line->points();
    for (int i = 1; i < points.size(); ++i) {
        QLineF part(inGraph(points[i - 1]), inGraph(points[i]));
        if (!cut(part, part.x1(), part.dx(), area.left(), area.right())) {
            continue;
        }
        add(along(part.p1()));
        QLineF within = part;
        if (cut(within, part.y1(), part.dy(), area.top(), area.bottom())) {
            add(within.p1());
            add(within.p2());
        }
        add(along(part.p2()));
    }
    return seen;
}

QPointF CurveLabel::corner() const {
    return m_line ? inGraph(m_line->corner()) : QPointF();
}

void CurveLabel::paintEvent(QPaintEvent *) {
    // The graph has painted it.
}
