// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>

namespace cm {
class SliderBarWidget;
}

namespace audiosetting {

/// A band's gain, with its unit, above the finger that drags the band: "+8 dB". It goes when the finger lifts; touches
/// go through it.
class DragValue : public QLabel {
    Q_OBJECT
public:
    /// \a parent holds the sliders; \a top is where the value stands, y in \a parent. It is shown while the knob is no
    /// lower than \a lowest, y in the slider.
    DragValue(QWidget *parent, int top, int lowest);

    /// Shows the gains of that slider.
    void follow(cm::SliderBarWidget *slider);

protected:
    void paintEvent(QPaintEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void dragged();

private:
    const int m_top;
    const int m_lowest;
};

}  // namespace audiosetting
