// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/headunitstyle.h"

#include "headunit/toolkit/picture.h"
#include "headunit/toolkit/unitapplication.h"

#include <QAbstractButton>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleOptionButton>

namespace headunit {

namespace {

const int scrollBarWidth = 24;
const int plateRadius = 12;

struct IconState {
    QIcon::Mode mode;
    QIcon::State state;
};

IconState iconState(QStyle::State state, bool checkable) {
    const QIcon::State checked = state & QStyle::State_On ? QIcon::On : QIcon::Off;
    if (!(state & QStyle::State_Enabled)) {
        return {QIcon::Disabled, checked};
    }
    if (state & QStyle::State_Sunken) {
        return {QIcon::Selected, checkable ? checked : QIcon::On};
    }
    return {checked == QIcon::On ? QIcon::Active : QIcon::Normal, checked};
}

}  // namespace

HeadUnitStyle::HeadUnitStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void HeadUnitStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                                const QWidget *widget) const {
    if (element == CE_PushButton) {
        if (const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option)) {
            drawPushButton(*button, painter, widget);
            return;
        }
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void HeadUnitStyle::drawPushButton(const QStyleOptionButton &button, QPainter *painter, const QWidget *widget) const {
    const auto *key = qobject_cast<const QAbstractButton *>(widget);
    if (!button.icon.isNull()) {
        const IconState state = iconState(button.state, key && key->isCheckable());
        QPixmap pixmap = button.icon.pixmap(widget ? widget->window()->windowHandle() : nullptr, button.iconSize,
                                            state.mode, state.state);
        if (pixmap.devicePixelRatio() > 1) {
            // Qt gives a dense picture that is smaller than the icon the density at which it would fill it.
            pixmap.setDevicePixelRatio(qApp->devicePixelRatio());
        }
        QRect target(QPoint(0, 0), pictureSize(pixmap));
        target.moveCenter(button.rect.center());
        painter->drawPixmap(target, pixmap);
    } else if (!button.text.isEmpty() && !(button.features & QStyleOptionButton::Flat)) {
        const bool lit = button.state & (State_Sunken | State_On);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(lit ? colour::accent : colour::hairline);
        painter->setBrush(button.state & State_Sunken ? colour::hairline : colour::raised);
        painter->drawRoundedRect(QRectF(button.rect).adjusted(0.5, 0.5, -0.5, -0.5), plateRadius, plateRadius);
        painter->restore();
    }
    if (!button.text.isEmpty()) {
        proxy()->drawItemText(painter, button.rect, Qt::AlignCenter | Qt::TextHideMnemonic, button.palette,
                              button.state & State_Enabled, button.text, QPalette::ButtonText);
    }
}

void HeadUnitStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const {
    if (element != PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void HeadUnitStyle::drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                                 const QString &text, QPalette::ColorRole role) const {
    if (painter->transform().type() > QTransform::TxTranslate) {
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
        return;
    }
    m_texts.draw(painter, rect, flags, text, role == QPalette::NoRole ? painter->pen().color() : palette.color(role));
}

int HeadUnitStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    switch (metric) {
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
            return 0;
        case PM_ScrollBarExtent:
            return scrollBarWidth;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int HeadUnitStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                             QStyleHintReturn *returnData) const {
    switch (hint) {
        case SH_EtchDisabledText:
        case SH_UnderlineShortcut:
        case SH_ScrollBar_Transient:
        case SH_Widget_Animation_Duration:
            return 0;
        default:
            return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QPixmap HeadUnitStyle::generatedIconPixmap(QIcon::Mode, const QPixmap &pixmap, const QStyleOption *) const {
    return pixmap;
}

void HeadUnitStyle::polish(QWidget *widget) {
    QProxyStyle::polish(widget);
    // A finger does not hover; without this each key would be painted once more when the pointer passes it.
    widget->setAttribute(Qt::WA_Hover, false);
}

}  // namespace headunit
