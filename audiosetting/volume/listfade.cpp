// SPDX-License-Identifier: Apache-2.0
#include "listfade.h"

#include "base/background.h"

#include <QLinearGradient>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

namespace audiosetting {

namespace {

const int fadeHeight = 24;  // px
const int restTime = 150;   // ms without a step: the list rests

}  // namespace

ListFade::ListFade(QScrollArea *area, End end, int left) : QWidget(area->parentWidget()), m_area(area), m_end(end) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QRect place = area->geometry();
    place.setLeft(left);
    if (end == Top) {
        place.setHeight(fadeHeight);
    } else {
        place.setTop(place.bottom() + 1 - fadeHeight);
    }
    setGeometry(place);
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);
    connect(&m_rest, SIGNAL(timeout()), this, SLOT(updateVisibility()));
    connect(area->verticalScrollBar(), SIGNAL(valueChanged(int)), this, SLOT(scrolled()));
    connect(area->verticalScrollBar(), SIGNAL(rangeChanged(int, int)), this, SLOT(updateVisibility()));
    updateVisibility();
}

void ListFade::scrolled() {
    hide();
    m_rest.start();
}

void ListFade::updateVisibility() {
    const QScrollBar *bar = m_area->verticalScrollBar();
    setVisible(!m_rest.isActive() && (m_end == Top ? bar->value() > bar->minimum() : bar->value() < bar->maximum()));
}

void ListFade::showEvent(QShowEvent *event) {
    if (m_fade.isNull()) {
        // The background itself, from nothing at the list's side to all of it at the end.
        QImage image = backgroundBehind(this).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        if (!image.isNull()) {
            QLinearGradient gradient(0, 0, 0, height());
            gradient.setColorAt(m_end == Top ? 0 : 1, Qt::black);
            gradient.setColorAt(m_end == Top ? 1 : 0, Qt::transparent);
            QPainter painter(&image);
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.fillRect(rect(), gradient);
        }
        m_fade = QPixmap::fromImage(image);
    }
    QWidget::showEvent(event);
}

void ListFade::paintEvent(QPaintEvent *) {
    QPainter(this).drawPixmap(0, 0, m_fade);
}

}  // namespace audiosetting
