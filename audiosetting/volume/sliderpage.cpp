// SPDX-License-Identifier: Apache-2.0
#include "sliderpage.h"

#include "horizontalslider.h"
#include "listfade.h"
#include "scrollbar.h"
#include "scrollmanage.h"

#include <QLabel>
#include <QScrollArea>
#include <QVariant>

namespace audiosetting {

QRect sliderPageGeometry() {
    return QRect(0, 130, 1024, 470);
}

cm::ScrollManage *makeScrollable(QScrollArea *area) {
    // Set here: handing the contents to the scroll area, as the form's code does, switches their filling on.
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
    return new cm::ScrollManage(area, true, false);
}

void addScrollBar(QWidget *page, QScrollArea *area) {
    const QRect geometry(56, 0, 24, 432);
    cm::ScrollBar *bar = new cm::ScrollBar(page, geometry, 0);
    bar->setVisible(true);
    area->setVerticalScrollBar(bar);
    bar->setParent(page);
    // The scroll area has laid the bar out at its own edge, and a new parent hides a widget.
    bar->setGeometry(geometry);
    bar->setVisible(true);
    new ListFade(area, ListFade::Top, geometry.right() + 1);
    new ListFade(area, ListFade::Bottom, geometry.right() + 1);
}

HorizontalSlider *createSlider(const QLabel *placeholder) {
    return new HorizontalSlider(placeholder->geometry(), placeholder->parentWidget());
}

void configureSlider(HorizontalSlider *slider, const SliderLook &look) {
    slider->setShowSlider(true);
    slider->setFreqRange(look.min, look.end);
    slider->setProperty("minimum", look.min);
    slider->setProperty("maximum", look.end - 1);
    slider->addSliderImage(QStringLiteral(":/corvina_volume_slider/key_volume_slider.png"));
    slider->setAddPage(QStringLiteral(":/corvina_volume_slider/volume_slider_bar_p_3.png"));
    slider->setSubPage(look.subPage);
}

}  // namespace audiosetting
