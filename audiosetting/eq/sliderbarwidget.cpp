// SPDX-License-Identifier: Apache-2.0
#include "sliderbarwidget.h"

#include "base/colours.h"
#include "base/picture.h"
#include "sliderbaraccess.h"

#include <QAccessible>
#include <QEvent>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>

namespace cm {

namespace {

const int lastLevel = 24;
const int barRadius = 5;
const int numberPointSize = 19;

QColor numberColor() {
    return QColor(17, 17, 17);
}

// Finds a picture that an equal slider has made already, or makes it with draw(). The number makes the key unique.
template <class Draw> QPixmap sharedPicture(const QString &key, const QSize &size, qreal ratio, Draw draw) {
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap(size * ratio);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
        draw(painter);
        painter.end();
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

/// As long as the library is loaded.
struct Role {
    Role() { QAccessible::installFactory(makeSliderBarAccess); }
    ~Role() { QAccessible::removeFactory(makeSliderBarAccess); }
};

void drawBar(QPainter &painter, const QRect &rect) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(audiosetting::accentColour));
    painter.drawRoundedRect(rect, barRadius, barRadius);
}

}  // namespace

SliderBarWidget::SliderBarWidget(QWidget *parent) : QWidget(parent) {
    static const Role role;
    std::fill(m_centerPoints, m_centerPoints + maxCenterPoints, 0);
    std::fill(m_borderPoints, m_borderPoints + maxBorderPoints, 0);
}

void SliderBarWidget::setImage(QImage *&image) {
    m_image = image;
    m_halfKnob = (knobSize().height() + 1) / 2;
    dropPictures();
}

void SliderBarWidget::setBarWidth(int width) {
    m_barWidth = width;
    dropPictures();
}

void SliderBarWidget::setCenterPoint(const int *points, unsigned int count) {
    // A count of more than 25, as which a negative one arrives too, stands for 24. Required: owners count on it, and no
    // count may read beyond the table.
    m_centerCount = count > maxCenterPoints ? maxCenterPoints - 1 : int(count);
    std::copy(points, points + m_centerCount, m_centerPoints);
    update();
}

void SliderBarWidget::setBorderPoint(const int *points, unsigned int count) {
    // A table of 25 loses its last entry. Required: the lowest level has no lower limit, or a touch below the last
    // border would be level 25.
    m_borderCount = count > maxBorderPoints ? int(maxBorderPoints) : int(count);
    std::copy(points, points + m_borderCount, m_borderPoints);
}

void SliderBarWidget::setId(int id) {
    m_id = id;
}

void SliderBarWidget::addFreqLevel(const QList<int> &texts) {
    m_texts = texts;
    dropPictures();
}

void SliderBarWidget::setBarLevel(int level) {
    moveTo(level);
}

int SliderBarWidget::level2Point(int level) const {
    // It is the current level that is compared with the count, not the argument. Required: a level of another scale is
    // drawn at the top, whatever an owner asks for meanwhile.
    const bool known = m_level < m_centerCount && level >= 0 && level < maxCenterPoints;
    return m_centerPoints[known ? level : 0];
}

int SliderBarWidget::point2Level(int y) const {
    return int(std::find_if(m_borderPoints, m_borderPoints + m_borderCount, [y](int border) { return border > y; }) -
               m_borderPoints);
}

void SliderBarWidget::clickNext() {
    // From 24 the next level is 1, not 0. Required: the EQ page's keys never get there, owners that step on do.
    setBarLevel((m_level >= lastLevel ? 0 : m_level) + 1);
    emit valueChanged(m_id, m_level);
}

void SliderBarWidget::clickPrev() {
    // From 0 the previous level is 23, not 24. Required: the EQ page's keys never get there, owners that step on do.
    setBarLevel((m_level < 1 ? lastLevel : m_level) - 1);
    emit valueChanged(m_id, m_level);
}

void SliderBarWidget::mousePressEvent(QMouseEvent *event) {
    touch(event->pos().y());
    emit press(m_id, m_level);
}

void SliderBarWidget::mouseMoveEvent(QMouseEvent *event) {
    touch(event->pos().y());
    // A move is announced as a press. Required: the band-adjust panel follows a drag by this signal alone.
    emit press(m_id, m_level);
}

void SliderBarWidget::mouseReleaseEvent(QMouseEvent *event) {
    touch(event->pos().y());
    emit release(m_id, m_level);
}

void SliderBarWidget::touch(int y) {
    m_lastTouchY = y;
    const int level = point2Level(y);
    if (level != m_level) {
        moveTo(level);
        emit valueChanged(m_id, m_level);
    } else {
        update(knobRect());  // painting keeps the last touch on the bar
    }
}

void SliderBarWidget::moveTo(int level) {
    const QRect before = knobRect();
    m_level = level;
    m_currentPoint = level2Point(level);
    // Above and below the knob's way nothing changes. A pixel more on each side: on a display of density 1.5 the knob
    // ends in the middle of one.
    update((before | knobRect()).adjusted(0, -1, 0, 1));
}

// Painting --------------------------------------------------------------------------------------------------------

void SliderBarWidget::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    m_currentPoint = level2Point(m_level);
    paintBar(painter);
    m_lastTouchY = std::max(m_halfKnob, std::min(m_lastTouchY, height() - m_halfKnob));
    painter.drawPixmap(0, m_currentPoint, knob());
}

// A bar of any height is the end of the full bar below the full bar's upper cap.
void SliderBarWidget::paintBar(QPainter &painter) {
    const int x = (knobSize().width() - m_barWidth) / 2;
    const int barHeight = height() - m_currentPoint;
    if (m_barWidth <= 0 || barHeight <= 0) {
        return;
    }
    if (barHeight <= 2 * barRadius || m_currentPoint < 0) {
        painter.setRenderHint(QPainter::Antialiasing);
        drawBar(painter, QRect(x, m_currentPoint, m_barWidth, barHeight));
        return;
    }
    const qreal ratio = audiosetting::displayDensity();
    const QSize size(m_barWidth, height());
    if (m_bar.size() != size * ratio) {
        const QString key =
            QStringLiteral("sliderbar/bar/%1/%2/%3").arg(size.width()).arg(size.height()).arg(double(ratio));
        m_bar = sharedPicture(key, size, ratio, [size](QPainter &p) { drawBar(p, QRect(QPoint(0, 0), size)); });
    }
    const int rest = barHeight - barRadius;
    painter.drawPixmap(QRectF(x, m_currentPoint, m_barWidth, barRadius), m_bar,
                       QRectF(0, 0, m_barWidth * ratio, barRadius * ratio));
    painter.drawPixmap(QRectF(x, height() - rest, m_barWidth, rest), m_bar,
                       QRectF(0, (height() - rest) * ratio, m_barWidth * ratio, rest * ratio));
}

const QPixmap &SliderBarWidget::knob() {
    const int texts = m_texts.size();
    const int index = m_level >= 0 && m_level < texts ? m_level : texts;
    const qint64 imageKey = m_image ? m_image->cacheKey() : 0;
    if (m_knobs.size() != texts + 1 || m_knobsKey != imageKey) {
        m_knobs = QVector<QPixmap>(texts + 1);
        m_knobsKey = imageKey;  // the owner may have drawn into the image
    }
    QPixmap &picture = m_knobs[index];
    const QSize size = knobSize();
    const qreal ratio = audiosetting::displayDensity();
    if (picture.size() != size * ratio && !size.isEmpty()) {
        QFont numberFont = font();
        numberFont.setPointSize(numberPointSize);
        const QString text = index < texts ? QString::number(m_texts.at(index)) : QString();
        const QString key =
            QStringLiteral("sliderbar/knob/%1/%2/%3/%4").arg(imageKey).arg(double(ratio)).arg(text, numberFont.key());
        picture = sharedPicture(key, size, ratio, [&](QPainter &p) {
            const QRect area(QPoint(0, 0), size);
            p.drawImage(area, *m_image);
            p.setFont(numberFont);
            p.setPen(numberColor());
            p.drawText(area, Qt::AlignCenter, p.fontMetrics().elidedText(text, Qt::ElideMiddle, size.width()));
        });
    }
    return picture;
}

QSize SliderBarWidget::knobSize() const {
    return m_image ? m_image->size() / m_image->devicePixelRatio() : QSize(0, 0);
}

QRect SliderBarWidget::knobRect() const {
    return QRect(0, m_currentPoint, width(), std::max(knobSize().height(), 2 * barRadius));
}

void SliderBarWidget::dropPictures() {
    m_bar = QPixmap();
    m_knobs.clear();
    update();
}

void SliderBarWidget::changeEvent(QEvent *event) {
    if (event->type() == QEvent::FontChange) {
        dropPictures();
    }
    QWidget::changeEvent(event);
}

}  // namespace cm
