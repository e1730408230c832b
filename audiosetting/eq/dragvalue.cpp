// SPDX-License-Identifier: Apache-2.0
#include "dragvalue.h"

#include "eqtable.h"
#include "sliderbarwidget.h"

#include <QPainter>
#include <QStyle>

namespace audiosetting {

namespace {

const QSize valueSize(82, 26);  // px: "+12 dB"
const int pointSize = 18;
const int radius = 8;        // px
const double edgeWidth = 2;  // px

const QRgb backgroundColour = qRgb(0x10, 0x15, 0x1c);
const QRgb edgeColour = qRgb(0x0a, 0x66, 0x88);
const QRgb textColour = qRgb(11, 183, 237);

}  // namespace

DragValue::DragValue(QWidget *parent, int top, int lowest) : QLabel(parent), m_top(top), m_lowest(lowest) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAlignment(Qt::AlignCenter);
    resize(valueSize);
    QFont valueFont = font();
    valueFont.setPointSize(pointSize);
    setFont(valueFont);
    QPalette colours = palette();
    colours.setColor(foregroundRole(), QColor::fromRgb(textColour));
    setPalette(colours);
    hide();
}

void DragValue::follow(cm::SliderBarWidget *slider) {
    connect(slider, SIGNAL(press(int, int)), this, SLOT(dragged()));
    connect(slider, SIGNAL(release(int, int)), this, SLOT(hide()));
}

void DragValue::dragged() {
    const cm::SliderBarWidget *slider = qobject_cast<cm::SliderBarWidget *>(sender());
    if (!slider) {
        return;
    }
    const int level = slider->getLevel();
    const int gain = eq::fromOtherEnd(eq::maxGain, level);
    setText((gain > 0 ? QStringLiteral("+%1 dB") : QStringLiteral("%1 dB")).arg(gain));
    const int centre = slider->mapTo(parentWidget(), slider->rect().center()).x();
    move(qBound(0, centre - width() / 2, parentWidget()->width() - width()), m_top);
    raise();
    setVisible(slider->level2Point(level) <= m_lowest);
}

void DragValue::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgb(edgeColour), edgeWidth));
    painter.setBrush(QColor::fromRgb(backgroundColour));
    painter.drawRoundedRect(QRectF(rect()).adjusted(edgeWidth / 2, edgeWidth / 2, -edgeWidth / 2, -edgeWidth / 2),
                            radius, radius);
    style()->drawItemText(&painter, rect(), Qt::AlignCenter, palette(), true, text(), foregroundRole());
}

void DragValue::hideEvent(QHideEvent *event) {
    // A page that is shown again under no finger shows no value.
    QLabel::hideEvent(event);
    hide();
}

}  // namespace audiosetting
