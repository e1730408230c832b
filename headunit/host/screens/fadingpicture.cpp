// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/fadingpicture.h"

#include <QPainter>

namespace headunit {

namespace {

constexpr int stepMilliseconds = 15;

}  // namespace

FadingPicture::FadingPicture(const QPixmap &picture, const QRect &place, int milliseconds, QWidget *parent)
    : QWidget(parent), m_picture(picture), m_steps(milliseconds / stepMilliseconds), m_stepsLeft(m_steps) {
    setObjectName(QStringLiteral("fading"));
    setGeometry(place);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&m_timer, &QTimer::timeout, this, &FadingPicture::fade);
    m_timer.start(stepMilliseconds);
    show();
    raise();
}

void FadingPicture::fade() {
    if (--m_stepsLeft > 0) {
        update();
    } else {
        m_timer.stop();
        hide();
        deleteLater();
    }
}

void FadingPicture::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setOpacity(qreal(m_stepsLeft) / m_steps);
    painter.drawPixmap(0, 0, m_picture);
}

}  // namespace headunit
