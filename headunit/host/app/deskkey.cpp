// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/deskkey.h"

#include "headunit/host/screens/look.h"
#include "headunit/host/screens/texts.h"
#include "translator.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace headunit {

namespace {

// Three sliders, as on a mixing desk: where each knob stands, from the top.
constexpr int knobs[] = {10, 4, 7};
constexpr int trackHeight = 18;
constexpr int trackWidth = 2;
constexpr int trackSpace = 10;
constexpr int knobWidth = 8;
constexpr int knobHeight = 4;

}  // namespace

DeskKey::DeskKey(QWidget *parent) : QAbstractButton(parent) {
    setObjectName(QStringLiteral("key_desk"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(Translator::translate(texts::tunersDesk));
}

bool DeskKey::event(QEvent *event) {
    if (event->type() == QEvent::ToolTip) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           Translator::translate(texts::tunersDesk) + QStringLiteral(" (F12)"), this);
        return true;
    }
    if (event->type() == QEvent::LanguageChange) {
        setAccessibleName(Translator::translate(texts::tunersDesk));
    }
    return QAbstractButton::event(event);
}

void DeskKey::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), isDown() ? colour::raised : look::bezel);
    int x = width() / 2 - trackSpace;
    const int top = (height() - trackHeight) / 2;
    for (const int knob : knobs) {
        painter.fillRect(x - trackWidth / 2, top, trackWidth, trackHeight, colour::hairline);
        painter.fillRect(x - knobWidth / 2, top + knob, knobWidth, knobHeight, colour::handle);
        x += trackSpace;
    }
}

}  // namespace headunit
