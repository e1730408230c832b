// SPDX-License-Identifier: Apache-2.0
#include "curvegraph.h"

#include "curvelabel.h"
#include "curveline.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>

#include <algorithm>
#include <cmath>

using audiosetting::crossover::CurveLine;

namespace {

// The background: the page's own behind rounded corners, a frame and lines 3 dB and an octave's worth apart. 21 px are
// 1 dB, as far as a step of the level moves a curve; 0 dB is where the pass band of an unmoved one lies.
const QRgb behindCorners = qRgb(0x13, 0x19, 0x22);
const QRgb backgroundColour = qRgb(0x0c, 0x10, 0x16);
const QRgb gridColour = qRgb(0x23, 0x2c, 0x37);
const QRgb frameColour = qRgb(0x36, 0x41, 0x4f);
const int edgeWidth = 2;
const int cornerRadius = 6;
const int gridWidth = 2;
const int firstLevelLine = 8;
const int levelLineStep = 63;
const int columnStep = 86;

// px
const double dimWidth = 3;
const double brightWidth = 4;
const double dotRadius = 7;
const double dotHole = 3;

const int figuresMargin = 8;

// Of the fill: from this to nothing, over this share of the label's height.
const double fillOpacity = 0.26;
const double fillShare = 0.3;

/// The part of a line that is not level: its first and its last point. The pass band is level, at one end or the other.
struct Bend {
    int first;
    int last;
};

Bend bendOf(const QPolygonF &line) {
    Bend bend = {0, line.size() - 1};
    const auto isLevel = [&line](int from, int to) { return line[from].y() == line[to].y(); };
    while (bend.first < bend.last && isLevel(bend.first, bend.first + 1)) {
        ++bend.first;
    }
    while (bend.last > bend.first && isLevel(bend.last - 1, bend.last)) {
        --bend.last;
    }
    return bend;
}

void drawLine(QPainter &painter, QPolygonF line, QRgb colour, double width) {
    if (line.isEmpty()) {
        return;
    }
    // The level part is most of the line: a rectangle is much cheaper than a stroke. They meet between two pixels, so
    // that no seam is seen.
    const auto drawLevel = [&](const QPointF &from, double to) {
        painter.fillRect(QRectF(from.x(), from.y() - width / 2, to - from.x(), width), QColor::fromRgb(colour));
    };
    const Bend bend = bendOf(line);
    QPointF &first = line[bend.first];
    QPointF &last = line[bend.last];
    if (bend.first > 0) {
        first.setX(std::floor(first.x()));
        drawLevel(line.first(), first.x());
    }
    if (bend.last < line.size() - 1) {
        last.setX(std::ceil(last.x()));
        drawLevel(last, line.last().x());
    }
    painter.setPen(QPen(QColor::fromRgb(colour), width, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPolyline(line.constData() + bend.first, bend.last - bend.first + 1);
}

/// From where to where two lines with the same fill differ.
QRectF differenceOf(const QPolygonF &a, const QPolygonF &b) {
    if (a.isEmpty() || b.isEmpty()) {
        return a.boundingRect() | b.boundingRect();
    }
    const Bend bendA = bendOf(a);
    const Bend bendB = bendOf(b);
    QRectF difference;
    difference.setLeft(a.first() == b.first() ? qMin(a[bendA.first].x(), b[bendB.first].x())
                                              : qMin(a.first().x(), b.first().x()));
    difference.setRight(a.last() == b.last() ? qMax(a[bendA.last].x(), b[bendB.last].x())
                                             : qMax(a.last().x(), b.last().x()));
    return difference;
}

/// Makes \a pixmap one of that size and density, if it is not yet.
void prepare(QPixmap &pixmap, const QSize &size, qreal density) {
    if (pixmap.size() != size * density || pixmap.devicePixelRatio() != density) {
        pixmap = QPixmap(size * density);
        pixmap.setDevicePixelRatio(density);
    }
}

}  // namespace

/// True if what is below the line looks the same, wherever both are as high.
bool CurveGraph::Shown::hasFillOf(const Shown &other) const {
    return line && other.line && line->colour == other.line->colour && place.top() == other.place.top() &&
           place.height() == other.place.height();
}

CurveGraph::CurveGraph(QWidget *parent) : QFrame(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void CurveGraph::setFigures(const QPixmap &figures) {
    m_figures = figures;
    m_dimOf.clear();
    m_composedOf.clear();
    update();
}

void CurveGraph::paintEvent(QPaintEvent *) {
    compose();
    QPainter(this).drawPixmap(0, 0, m_composed);
}

void CurveGraph::compose() {
    std::vector<const CurveLabel *> labels;
    std::vector<Shown> shown;
    for (QObject *child : children()) {
        if (const CurveLabel *label = qobject_cast<CurveLabel *>(child)) {
            labels.push_back(label);
            shown.push_back(Shown{label->line(), label->geometry()});
        }
    }
    if (!shown.empty() && m_composedOf == shown) {
        return;
    }
    const CurveLabel *const uppermost = labels.empty() ? nullptr : labels.back();
    QPolygonF bright = uppermost ? uppermost->seenLine() : QPolygonF();
    const qreal density = m_figures.isNull() ? 1 : m_figures.devicePixelRatio();
    QRect changed = rect();
    if (uppermost) {
        const bool onlyItsLine = m_composed.size() == size() * density && m_composedOf.size() == shown.size() &&
                                 std::equal(m_dimOf.begin(), m_dimOf.end(), shown.begin()) &&
                                 m_composedOf.back().hasFillOf(shown.back());
        if (onlyItsLine) {
            const QRectF difference = differenceOf(m_bright, bright);
            const double reach = dotRadius + 1;
            changed.setLeft(qFloor(difference.left() - reach));
            changed.setRight(qCeil(difference.right() + reach) - 1);
        }
    }
    m_bright.swap(bright);
    m_composedOf = shown;
    if (uppermost) {
        labels.pop_back();
        shown.pop_back();
    }
    if (shown.empty() || m_dimOf != shown) {
        m_dimOf = shown;
        prepare(m_dim, size(), density);
        QPainter painter(&m_dim);
        paintBackground(painter);
        painter.setRenderHint(QPainter::Antialiasing);
        for (const CurveLabel *label : labels) {
            if (label->line()) {
                painter.setClipRect(label->geometry());
                drawLine(painter, label->seenLine(), label->line()->dimColour, dimWidth);
            }
        }
    }
    // Painted, not copied: that takes the lines one by one into the pixels that are there already.
    prepare(m_composed, size(), density);
    QPainter painter(&m_composed);
    painter.setClipRect(changed);
    painter.drawPixmap(0, 0, m_dim);
    if (!m_bright.isEmpty()) {
        painter.setClipRect(changed & uppermost->geometry());
        paintBright(painter, *uppermost);
        painter.setClipRect(changed);
    }
    painter.drawPixmap(QPointF(width() - figuresMargin - m_figures.width() / m_figures.devicePixelRatio(), 0),
                       m_figures);
}

void CurveGraph::paintBackground(QPainter &painter) {
    const QColor grid = QColor::fromRgb(gridColour);
    painter.fillRect(rect(), QColor::fromRgb(backgroundColour));
    for (int y = firstLevelLine; y < height(); y += levelLineStep) {
        painter.fillRect(0, y - gridWidth / 2, width(), gridWidth, grid);
    }
    for (int x = columnStep; x < width(); x += columnStep) {
        painter.fillRect(x - gridWidth / 2, 0, gridWidth, height(), grid);
    }
    // Its foot is the label's below.
    QPainterPath outside;
    outside.addRect(QRectF(rect()));
    QPainterPath inside;
    inside.addRoundedRect(QRectF(rect()).adjusted(0, 0, 0, 2 * cornerRadius), cornerRadius + 1, cornerRadius + 1);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outside - inside, QColor::fromRgb(behindCorners));
    const double half = edgeWidth / 2.0;
    painter.setPen(QPen(QColor::fromRgb(frameColour), edgeWidth));
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, 2 * cornerRadius), cornerRadius, cornerRadius);
}

void CurveGraph::paintBright(QPainter &painter, const CurveLabel &label) {
    const QColor colour = QColor::fromRgb(label.line()->colour);
    QColor from = colour;
    from.setAlphaF(fillOpacity);
    QColor to = colour;
    to.setAlpha(0);
    const double end = label.y() + fillShare * label.height();
    QLinearGradient fill(0, label.y(), 0, end);
    fill.setColorAt(0, from);
    fill.setColorAt(1, to);
    QPolygonF below;
    for (const QPointF &point : m_bright) {
        below << QPointF(point.x(), qMin(point.y(), end));  // nothing is seen of it further down
    }
    below << QPointF(m_bright.last().x(), end) << QPointF(m_bright.first().x(), end);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawPolygon(below);  // its edge lies under the line: no need to smooth it
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    drawLine(painter, m_bright, label.line()->colour, brightWidth);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(label.corner(), dotRadius, dotRadius);
    painter.setBrush(QColor(0x0c, 0x10, 0x16));
    painter.drawEllipse(label.corner(), dotHole, dotHole);
}
