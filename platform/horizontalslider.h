// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QWidget>

/// The toolkit's horizontal level slider: the knob jumps to the finger anywhere on the widget, in whole steps.
/// Half a knob is kept free at either end. The picture of the empty track lies over the whole width, the filled one
/// over it, from the left end, or from 0 where the range spans 0, to the knob. The knob carries the value, with a sign
/// where the range spans 0.
class PLATFORM_API HorizontalSlider : public QWidget {
    Q_OBJECT
public:
    HorizontalSlider(const QRect &geometry, QWidget *parent);
    ~HorizontalSlider() override;

    /// Values \a min to \a end - 1: (0, 41) is 0 to 40.
    void setFreqRange(int min, int end);
    /// Shows or hides the knob.
    void setShowSlider(bool show);
    /// Picture of the knob.
    void addSliderImage(const QString &picture);
    /// Picture of the filled part of the track.
    void setAddPage(const QString &picture);
    /// Picture of the empty part of the track.
    void setSubPage(const QString &picture);

    /// Moves the knob; emits valueChanged() if the value differs from the present one. A value outside the
    /// range is kept as it is and drawn at the nearer end.
    void setValue(int value);
    /// Moves the knob and emits nothing.
    void setCurrentLevel(int value);
    /// The present value.
    int value() const;
    /// True while a finger moves the slider.
    bool getMoveState() const;

Q_SIGNALS:
    /// The value changed, by finger or by setValue(). \a index counts the steps from the left end.
    void valueChanged(int index, int value);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    struct Private;
    Private *const d;
};
