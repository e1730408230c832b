// SPDX-License-Identifier: Apache-2.0
#include "bandscale.h"

#include <QPainter>

#include <algorithm>

namespace audiosetting {

namespace {

const int lineWidth = 2;  // px
const int zeroLine = 1;   // which of the lines

// As behind the band-adjust panel.
const QRgb lineColour = qRgb(0x2b, 0x35, 0x41);
const QRgb zeroColour = qRgb(0x46, 0x53, 0x63);

}  // namespace

BandScale::BandScale(QWidget *parent, const int (&lines)[3]) : QWidget(parent) {
    std::copy(lines, lines + 3, m_lines);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void BandScale::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    for (int i = 0; i < 3; ++i) {
        painter.fillRect(0, m_lines[i] - lineWidth / 2, width(), lineWidth,
                         QColor::fromRgb(i == zeroLine ? zeroColour : lineColour));
    }
}

}  // namespace audiosetting
