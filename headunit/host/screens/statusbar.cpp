// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/statusbar.h"

#include "headunit/host/screens/look.h"
#include "translator.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace headunit {

namespace {
constexpr int pictureSize = 32;
constexpr int clockCheckMilliseconds = 1000;
}  // namespace

StatusBar::StatusBar(Clock clock, QWidget *parent) : QWidget(parent), m_clock(std::move(clock)), m_time(m_clock()) {
    setObjectName(QStringLiteral("status_bar"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setGeometry(0, 0, look::screenWidth, barHeight);
    setFont(look::font(look::captionPixels));
    startTimer(clockCheckMilliseconds);
}

void StatusBar::setSourceTextId(int id) {
    m_sourceTextId = id;
    update();
}

void StatusBar::setCallActive(bool active) {
    m_callActive = active;
    update();
}

void StatusBar::setSilent(bool silent) {
    if (silent != m_silent) {
        m_silent = silent;
        update();
    }
}

void StatusBar::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    look::paintBackground(painter, rect());
    QRect area = rect().adjusted(look::margin, 0, -look::margin, 0);
    if (m_silent) {
        look::paintPicture(painter, QRect(area.left(), 0, pictureSize, height()), QStringLiteral("status_silent"));
        area.setLeft(area.left() + pictureSize + look::gap);
    }
    painter.setPen(look::softText);
    if (m_sourceTextId) {
        painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, Translator::translate(m_sourceTextId));
    }
    if (m_callActive) {
        look::paintPicture(painter, rect(), QStringLiteral("status_call"));
    }
    painter.setPen(colour::text);
    painter.drawText(area, Qt::AlignRight | Qt::AlignVCenter, m_time);
    painter.setPen(colour::hairline);
    painter.drawLine(0, height() - 1, width(), height() - 1);
}

void StatusBar::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        update();
    }
    QWidget::changeEvent(event);
}

void StatusBar::timerEvent(QTimerEvent *) {
    const QString time = m_clock();
    if (time != m_time) {
        m_time = time;
        update();
    }
}

}  // namespace headunit
