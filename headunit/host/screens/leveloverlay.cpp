// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/leveloverlay.h"

#include "headunit/audio/service/soundtables.h"
#include "headunit/host/screens/fadingpicture.h"
#include "headunit/host/screens/look.h"
#include "headunit/host/screens/statusbar.h"
#include "translator.h"

#include <QPainter>

namespace headunit {

namespace {

constexpr QRect place(212, 24, 600, 96);
constexpr int spaceBelowStatusBar = 8;
constexpr QRect nameArea(28, 0, 190, 96);
constexpr QRect trackArea(224, 42, 280, 12);
constexpr QRect valueArea(516, 0, 60, 96);
constexpr QRect muteArea(528, 0, 48, 96);

}  // namespace

LevelOverlay::LevelOverlay(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("level_overlay"));
    setGeometry(place);
    // A finger meant for the page below reaches it.
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_hideTimer.setSingleShot(true);
    m_hideTimer.setInterval(showMilliseconds);
    connect(&m_hideTimer, &QTimer::timeout, this, &LevelOverlay::fadeOut);
}

void LevelOverlay::setBelowStatusBar(bool below) {
    move(place.x(), below ? StatusBar::barHeight + spaceBelowStatusBar : place.y());
}

void LevelOverlay::fadeOut() {
    new FadingPicture(grab(), geometry(), fadeMilliseconds, parentWidget());
    hide();
}

void LevelOverlay::showLevel(int nameTextId, int level, bool muted) {
    m_nameTextId = nameTextId;
    m_level = level;
    m_muted = muted;
    show();
    raise();
    update();
    m_hideTimer.start();
}

void LevelOverlay::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    look::paintKey(painter, rect(), look::KeyState::Normal);
    painter.setPen(colour::text);
    painter.setFont(look::font(look::captionPixels));
    painter.drawText(nameArea, Qt::AlignLeft | Qt::AlignVCenter, Translator::translate(m_nameTextId));
    painter.setFont(look::font(look::valuePixels));
    if (m_muted) {
        look::paintPicture(painter, muteArea, QStringLiteral("mute_n"));
    } else {
        painter.drawText(valueArea, Qt::AlignRight | Qt::AlignVCenter, QString::number(m_level));
    }

    const qreal radius = trackArea.height() / 2.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour::background);
    painter.drawRoundedRect(trackArea, radius, radius);
    if (m_level > 0) {
        QRect filled = trackArea;
        filled.setWidth(qMax(trackArea.height(), trackArea.width() * m_level / ranges::channelLevel.high));
        painter.setBrush(m_muted ? look::softText : colour::accent);
        painter.drawRoundedRect(filled, radius, radius);
    }
}

}  // namespace headunit
