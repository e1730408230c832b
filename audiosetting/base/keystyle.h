// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QCommonStyle>

class QStyleOptionButton;

namespace audiosetting {

/// Draws a key as the picture of its state and nothing else: no bevel, no focus frame, no shift, nothing tinted.
///
/// A pressed key shows the icon's Selected picture, a checked one Active and On, a disabled one Disabled.
class KeyStyle : public QCommonStyle {
    Q_OBJECT
public:
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;

private:
    static void drawKey(const QStyleOptionButton &key, QPainter *painter, const QWidget *widget);
};

}  // namespace audiosetting
