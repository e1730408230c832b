// SPDX-License-Identifier: Apache-2.0
#include "holdbar.h"

#include <QPainter>

namespace headunit {

namespace {

// ms
constexpr int delay = 250;
constexpr int tickTime = 25;
constexpr int stay = 400;

// px
constexpr int barHeight = 6;
constexpr int side = 16;
constexpr int foot = 7;

// Seen on a key that is pressed, whether it is lit or dark.
constexpr QRgb grooveColour = qRgb(0x04, 0x14, 0x1c);
constexpr QRgb barColour = qRgb(0xff, 0xff, 0xff);

}  // namespace

HoldBar::HoldBar(QWidget *key) : QWidget(key) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &HoldBar::tick);
}

void HoldBar::begin(int interval) {
    cancel();
    m_interval = interval;
    if (interval > delay) {
        m_timer.start(delay);
    }
}

void HoldBar::complete() {
    m_timer.stop();
    if (isHidden()) {
        return;
    }
    m_complete = true;
    update();
    m_timer.start(stay);
}

void HoldBar::cancel() {
    m_timer.stop();
    m_complete = false;
    m_elapsed = 0;
    hide();
}

void HoldBar::tick() {
    if (m_complete) {
        cancel();
        return;
    }
    const int before = filled();
    m_elapsed += m_timer.interval();
    if (isHidden()) {
        const QRect key = parentWidget()->rect();
        setGeometry(side, key.height() - foot - barHeight, key.width() - 2 * side, barHeight);
        raise();
        show();
        m_timer.start(tickTime);
    } else if (filled() != before) {
        update();
    }
}

int HoldBar::filled() const {
    return m_complete ? width() : qMin(m_elapsed, m_interval) * width() / qMax(1, m_interval);
}

void HoldBar::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgb(grooveColour));
    painter.drawRoundedRect(rect(), barHeight / 2, barHeight / 2);
    painter.setBrush(QColor::fromRgb(barColour));
    painter.drawRoundedRect(QRectF(1, 1, filled() - 2, barHeight - 2), barHeight / 2 - 1, barHeight / 2 - 1);
}

}  // namespace headunit
