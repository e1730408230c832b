// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/toolkit/textpictures.h"
#include "platformapi.h"

#include <QProxyStyle>

class QStyleOptionButton;

namespace headunit {

/// The look of the unit's widgets: a push button is its icon, in the mode of its state, and nothing around it.
class PLATFORM_API HeadUnitStyle : public QProxyStyle {
    Q_OBJECT
public:
    HeadUnitStyle();

    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole role) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
    /// The picture itself: nothing is greyed or tinted; a state that has a look of its own has a picture of its own.
    QPixmap generatedIconPixmap(QIcon::Mode mode, const QPixmap &pixmap, const QStyleOption *option) const override;

    using QProxyStyle::polish;
    void polish(QWidget *widget) override;

private:
    void drawPushButton(const QStyleOptionButton &button, QPainter *painter, const QWidget *widget) const;

    mutable TextPictures m_texts;
};

}  // namespace headunit
