// SPDX-License-Identifier: Apache-2.0
#include "balancefadercontrol.h"

#include "audioservice.h"
#include "base/background.h"
#include "base/picture.h"

#include <QMouseEvent>
#include <QPainter>

namespace settings {

namespace {

const int maxValue = 15;
const int touchStep = 6;       // px a value step takes under the finger
const int touchRoundUp = 4;    // from this remainder on a touch counts for the next step
const int markerTravel = 100;  // px from the centre to the marker's end
const int dragTimeout = 500;   // ms
const int originShift = 2;     // px to the right, matching the artwork
const qreal disabledOpacity = 0.4;
const int farAway = 1 << 20;  // px; keeps marker positions of absurd stored values drawable

// The touch and the marker run on different scales, so away from the centre the marker lies beside the finger:
// required, drivers know where to touch.
int stepsFromPixels(int distance) {
    int steps = distance / touchStep;
    if (qAbs(distance % touchStep) >= touchRoundUp) {
        steps += distance >= 1 ? 1 : -1;
    }
    if (qAbs(steps) > maxValue) {
        return distance >= 1 ? maxValue : -maxValue;
    }
    return steps;
}

int pixelsFromSteps(int steps) {
    return int(qBound<qint64>(-farAway, qint64(markerTravel) * steps / maxValue, farAway));
}

// In pixels of the form, whatever the display's density.
QSize sizeOf(const QPixmap &picture) {
    return picture.size() / picture.devicePixelRatio();
}

QPoint halfSize(const QPixmap &picture) {
    return QPoint(sizeOf(picture).width() / 2, sizeOf(picture).height() / 2);
}

}  // namespace

balanceFaderControl::balanceFaderControl(QWidget *parent, const QRect &geometry)
    : QLabel(parent),
      m_background(audiosetting::picture("balancefader_bg")),
      m_verticalLine(audiosetting::picture("setup_bg_Balance_line_2_n")),
      m_horizontalLine(audiosetting::picture("setup_bg_Balance_line_1_n")),
      m_marker(audiosetting::picture("audiosettings_select")),
      m_dragTimer(this) {
    setGeometry(geometry);
    m_origin = QPoint(geometry.width() / 2 + originShift, geometry.height() / 2);
    m_center = m_origin;
    m_verticalLinePos =
        QPoint(m_origin.x() - halfSize(m_verticalLine).x(), (height() - sizeOf(m_verticalLine).height()) / 2);
    m_horizontalLinePos =
        QPoint((width() - sizeOf(m_horizontalLine).width()) / 2, m_origin.y() - halfSize(m_horizontalLine).y());
    m_markerPos = m_origin - halfSize(m_marker);
    m_dragTimer.setSingleShot(true);
    m_dragTimer.setTimerType(Qt::PreciseTimer);
}

void balanceFaderControl::mousePressEvent(QMouseEvent *event) {
    qvaudio::AudioService::instance()->doBeep(0);
    updateValue(event->pos());
    emit balanceFaderChanged(m_valueX, m_valueY);
}

void balanceFaderControl::mouseMoveEvent(QMouseEvent *event) {
    m_dragTimer.start(dragTimeout);
    updateValue(event->pos());
    emit balanceFaderChanged(m_valueX, m_valueY);
}

void balanceFaderControl::mouseReleaseEvent(QMouseEvent *event) {
    m_dragTimer.stop();
    updateValue(event->pos());
    setBalance(m_valueX, m_valueY);
}

void balanceFaderControl::updateValue(const QPoint &position) {
    m_valueX = stepsFromPixels(position.x() - m_origin.x());
    m_valueY = stepsFromPixels(m_origin.y() - position.y());
}

void balanceFaderControl::updatePos() {
    m_center = QPoint(m_origin.x() + pixelsFromSteps(m_valueX), m_origin.y() - pixelsFromSteps(m_valueY));
    moveMarker(m_center - halfSize(m_marker));
}

void balanceFaderControl::setcircleX(int x) {
    moveMarker(QPoint(x, m_markerPos.y()));
}

void balanceFaderControl::setcircleY(int y) {
    moveMarker(QPoint(m_markerPos.x(), y));
}

void balanceFaderControl::setVlineX(int x) {
    m_verticalLinePos.setX(x);
    m_still = QPixmap();
    update();
}

void balanceFaderControl::setHlineY(int y) {
    m_horizontalLinePos.setY(y);
    m_still = QPixmap();
    update();
}

void balanceFaderControl::moveMarker(const QPoint &topLeft) {
    const QRect before = markerRect();
    m_markerPos = topLeft;
    update(before | markerRect());
}

QRect balanceFaderControl::markerRect() const {
    return QRect(m_markerPos, sizeOf(m_marker));
}

const QPixmap &balanceFaderControl::still() {
    const qreal ratio = audiosetting::displayDensity();
    if (m_still.size() != size() * ratio) {
        m_still = audiosetting::backgroundBehind(this);
        if (m_still.isNull()) {
            m_still = QPixmap(size() * ratio);
            m_still.setDevicePixelRatio(ratio);
            m_still.fill(Qt::transparent);
        }
        setAttribute(Qt::WA_OpaquePaintEvent, !m_still.hasAlphaChannel());
        QPainter painter(&m_still);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setOpacity(opacity());
        painter.drawPixmap(rect(), m_background);
        painter.drawPixmap(m_horizontalLinePos, m_horizontalLine);
        painter.drawPixmap(m_verticalLinePos, m_verticalLine);
    }
    return m_still;
}

qreal balanceFaderControl::opacity() const {
    return isEnabled() ? 1 : disabledOpacity;
}

void balanceFaderControl::updateLabel() {
    QPainter painter(this);
    painter.drawPixmap(0, 0, still());
    painter.setOpacity(opacity());
    painter.drawPixmap(m_markerPos, m_marker);
}

void balanceFaderControl::changeEvent(QEvent *event) {
    if (event->type() == QEvent::EnabledChange) {
        m_still = QPixmap();
    }
    QLabel::changeEvent(event);
}

void balanceFaderControl::paintEvent(QPaintEvent *) {
    updateLabel();
}

}  // namespace settings
