// SPDX-License-Identifier: Apache-2.0
#include "keystyle.h"

#include "picture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>
#include <QStyleOptionButton>

namespace audiosetting {

namespace {

struct Picture {
    QIcon::Mode mode;
    QIcon::State state;
};

Picture wantedPicture(QStyle::State state, bool checkable) {
    const QIcon::State checked = state & QStyle::State_On ? QIcon::On : QIcon::Off;
    if (!(state & QStyle::State_Enabled)) {
        return {QIcon::Disabled, checked};
    }
    if (state & QStyle::State_Sunken) {
        return {QIcon::Selected, checkable ? checked : QIcon::On};
    }
    return {checked == QIcon::On ? QIcon::Active : QIcon::Normal, checked};
}

/// The wanted picture where the icon has it, else the one that Qt would take in its place, but as it was drawn: asked
/// for a mode that the icon lacks, Qt has the unit's style grey or tint the substitute.
Picture existingPicture(const QIcon &icon, const Picture &wanted) {
    if (wanted.mode == QIcon::Normal) {
        return wanted;
    }
    const QIcon::State other = wanted.state == QIcon::On ? QIcon::Off : QIcon::On;
    const Picture candidates[] = {wanted,
                                  {QIcon::Normal, wanted.state},
                                  {QIcon::Active, wanted.state},
                                  {wanted.mode, other},
                                  {QIcon::Normal, other}};
    for (const Picture &candidate : candidates) {
        if (!icon.availableSizes(candidate.mode, candidate.state).isEmpty()) {
            return candidate;
        }
    }
    return {QIcon::Normal, QIcon::Off};
}

}  // namespace

void KeyStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                           const QWidget *widget) const {
    const QStyleOptionButton *const key = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButton && key) {
        drawKey(*key, painter, widget);
    } else {
        QCommonStyle::drawControl(element, option, painter, widget);
    }
}

void KeyStyle::drawKey(const QStyleOptionButton &key, QPainter *painter, const QWidget *widget) {
    if (!key.icon.isNull()) {
        const QAbstractButton *const button = qobject_cast<const QAbstractButton *>(widget);
        const Picture shown = existingPicture(key.icon, wantedPicture(key.state, button && button->isCheckable()));
        QWindow *const window = widget ? widget->window()->windowHandle() : nullptr;
        QPixmap pixmap = key.icon.pixmap(window, key.iconSize, shown.mode, shown.state);
        if (pixmap.devicePixelRatio() > 1) {
            // Qt gives a dense picture that is smaller than the icon the density at which it would fill it.
            pixmap.setDevicePixelRatio(displayDensity());
        }
        QRect target(QPoint(0, 0), pixmap.size() / pixmap.devicePixelRatio());
        target.moveCenter(key.rect.center());
        painter->drawPixmap(target, pixmap);
    }
    if (!key.text.isEmpty()) {
        // The unit's style may draw texts in a way of its own, quicker for example.
        QApplication::style()->drawItemText(painter, key.rect, Qt::AlignCenter | Qt::TextHideMnemonic, key.palette,
                                            key.state & State_Enabled, key.text, QPalette::ButtonText);
    }
}

}  // namespace audiosetting
