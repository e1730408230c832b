// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/meters/meterbar.h"

#include "headunit/desk/meters/ballistics.h"
#include "headunit/toolkit/unitapplication.h"

#include <QPainter>

namespace headunit {

namespace {

constexpr int scaleWidth = 20;
constexpr int edge = 6;  ///< above and below, for half a number
constexpr int scalePixels = 9;

const QColor good(0x3F, 0xD9, 0x7F);
const QColor near(0xFF, 0xD2, 0x3F);
const QColor high(0xFF, 0x64, 0x64);

QColor levelColour(double decibels) {
    constexpr double nearFrom = -9;
    constexpr double highFrom = -1;
    return decibels >= highFrom ? high : decibels >= nearFrom ? near : good;
}

}  // namespace

MeterBar::MeterBar(Kind kind, QWidget *parent)
    : QWidget(parent), m_kind(kind), m_value(kind == Level ? Ballistics::lowest : 0), m_mark(m_value), m_mean(m_value) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
}

QRect MeterBar::bar() const {
    return QRect(scaleWidth, edge, width() - scaleWidth - 2, height() - 2 * edge);
}

int MeterBar::place(double decibels) const {
    const double range = m_kind == Level ? lowestLevel : mostReduction;
    return bar().top() + qRound(qBound(0.0, decibels / range, 1.0) * bar().height());
}

void MeterBar::setValues(double value, double mark, double mean) {
    const bool same = place(value) == place(m_value) && place(mark) == place(m_mark) && place(mean) == place(m_mean) &&
                      levelColour(mark) == levelColour(m_mark);
    m_value = value;
    m_mark = mark;
    m_mean = mean;
    if (!same) {
        update();
    }
}

void MeterBar::paintEvent(QPaintEvent *) {
    ++m_paints;
    QPainter painter(this);
    const QRect whole = bar();
    painter.fillRect(whole, colour::background);
    if (m_kind == Reduction) {
        painter.fillRect(QRect(whole.topLeft(), QPoint(whole.right(), place(m_value) - 1)), near);
        if (m_mark < 0) {
            painter.fillRect(QRect(whole.left(), place(m_mark) - 1, whole.width(), 2), near);
        }
    } else {
        // The parts that are well below full scale, near it, and at it.
        const struct {
            double from;
            double to;
        } parts[] = {{lowestLevel, -9}, {-9, -1}, {-1, 0}};
        for (const auto &part : parts) {
            const int top = place(qMin(m_value, part.to));
            const int bottom = place(part.from);
            if (m_value > part.from) {
                painter.fillRect(QRect(QPoint(whole.left(), top), QPoint(whole.right(), bottom - 1)),
                                 levelColour(part.from).darker(150));
            }
            const int meanTop = place(qMin(m_mean, part.to));
            if (m_mean > part.from) {
                painter.fillRect(QRect(QPoint(whole.left() + 4, meanTop), QPoint(whole.right() - 4, bottom - 1)),
                                 levelColour(part.from));
            }
        }
        if (m_mark > lowestLevel) {
            painter.fillRect(QRect(whole.left(), place(m_mark) - 1, whole.width(), 2), levelColour(m_mark));
        }
    }
    QFont font(unitFontFamily());
    font.setPixelSize(scalePixels);
    painter.setFont(font);
    painter.setPen(palette().color(QPalette::WindowText));
    const double step = m_kind == Level ? -12 : -5;
    for (int i = 0; place(i * step) < whole.bottom() || i == 0; ++i) {
        const int y = place(i * step);
        painter.drawText(QRect(0, y - scalePixels, scaleWidth - 4, 2 * scalePixels), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(qRound(i * step)));
        painter.fillRect(QRect(scaleWidth - 3, y, 3, 1), palette().color(QPalette::WindowText));
    }
}

}  // namespace headunit
