// SPDX-License-Identifier: Apache-2.0
#pragma once

class QImage;
class QWidget;

namespace cm {
class LabelButton;
class SliderBarWidget;
}  // namespace cm

namespace audiosetting {

/// One band of the EQ page, from top to bottom: the key up, the slider on its track, the key down, the band's caption.
///
/// The parts belong to the widget that they lie on.
class EqBand {
public:
    /// Puts band 0 to 12 in its place on \a parent. \a knob stays the caller's and must outlive the slider.
    EqBand(int band, QWidget *parent, QImage *&knob);

    /// Slider and keys carry the band's number in their signals.
    cm::SliderBarWidget *slider() const { return m_slider; }
    cm::LabelButton *upKey() const { return m_upKey; }
    cm::LabelButton *downKey() const { return m_downKey; }

    /// Disables the step key that has nowhere to go.
    void updateStepKeys();

private:
    cm::SliderBarWidget *m_slider;
    cm::LabelButton *m_upKey;
    cm::LabelButton *m_downKey;
};

}  // namespace audiosetting
