// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/callscreen.h"

#include "headunit/host/screens/key.h"
#include "headunit/host/screens/look.h"
#include "headunit/host/screens/texts.h"
#include "translator.h"

#include <QEvent>
#include <QPainter>

namespace headunit {

namespace {

constexpr QRect pictureArea(362, 128, 300, 160);
constexpr QRect captionArea(0, 304, look::screenWidth, 64);
constexpr QRect endKey(362, 424, 300, 96);

}  // namespace

CallScreen::CallScreen(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("call"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setGeometry(0, 0, look::screenWidth, look::screenHeight);
    setFont(look::font(look::valuePixels));
    Key *end = new Key(QStringLiteral("call_end"), endKey, this);
    end->setTextId(texts::endCall);
    end->setWarns(true);
    connect(end, &Key::clicked, this, &CallScreen::ended);
}

void CallScreen::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    look::paintBackground(painter, rect());
    look::paintPicture(painter, pictureArea, QStringLiteral("call"));
    painter.setPen(colour::text);
    painter.drawText(captionArea, Qt::AlignCenter, Translator::translate(texts::callInProgress));
}

void CallScreen::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        update();
    }
    QWidget::changeEvent(event);
}

}  // namespace headunit
