// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class HorizontalSlider;
class QLabel;
class QRect;
class QScrollArea;
class QWidget;

namespace cm {
class ScrollManage;
}  // namespace cm

// The common parts of Volume Settings and Source Gain: rows of a caption, two step keys and a slider, in a scroll area.

namespace audiosetting {

/// Where both pages lie in the container: below the top bar, over the whole width.
QRect sliderPageGeometry();

/// Lets a finger scroll \a area, and lets the screen's background shine through it.
cm::ScrollManage *makeScrollable(QScrollArea *area);
/// Gives \a area the toolkit's scroll bar, which stands on the \a page itself, to the left of the rows, and belongs to
/// it; and lets the rows fade out where there are more of them.
void addScrollBar(QWidget *page, QScrollArea *area);

/// Pictures and values of a slider.
struct SliderLook {
    int min;          ///< the first value
    int end;          ///< one past the last value
    QString subPage;  ///< picture of the empty part of its track
};

/// A slider over its placeholder in the form.
HorizontalSlider *createSlider(const QLabel *placeholder);
void configureSlider(HorizontalSlider *slider, const SliderLook &look);

}  // namespace audiosetting
