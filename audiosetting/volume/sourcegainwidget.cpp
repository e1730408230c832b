// SPDX-License-Identifier: Apache-2.0
#include "sourcegainwidget.h"

#include "audioservice.h"
#include "base/accessibility.h"
#include "horizontalslider.h"
#include "mcuservice.h"
#include "scrollbar.h"
#include "sliderpage.h"
#include "translator.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>

#include <limits>

namespace audiosetting {

namespace {

// Where Radio's plus stops, beyond the slider's end. Required: a unit may have stored a gain beyond that end, and a
// step that it invokes by name must not pull it down. No touch leads there: the key is disabled from the slider's end
// on.
const int maxRadioGain = 20;

// Safe for every value that the store may hold.
int mcuGain(int gain) {
    return gain > std::numeric_limits<int>::max() - sourcegain::neutralGain ? std::numeric_limits<int>::max()
                                                                            : gain + sourcegain::neutralGain;
}

}  // namespace

SourceGainWidget::SourceGainWidget(QWidget *parent) : QWidget(parent) {}

SourceGainWidget::~SourceGainWidget() {}

void SourceGainWidget::initUi() {
    setGeometry(sliderPageGeometry());
    if (!m_scrollManage) {
        m_scrollManage = makeScrollable(m_area);
    }
    addScrollBar(this, m_area);
    const SliderLook look = {sourcegain::minGain, sourcegain::maxGain + 1,
                             QStringLiteral(":/corvina_volume_slider/volume_slider_bar_n_2.png")};
    for (int id = 0; id < RowCount; ++id) {
        m_sliders[id] = createSlider(m_rows[id].placeholder);
        configureSlider(m_sliders[id], look);
        connect(m_sliders[id], SIGNAL(valueChanged(int, int)), this, m_rows[id].sliderSlot);
    }
    for (const Row &row : m_rows) {
        connect(row.plus, SIGNAL(clicked()), this, row.plusSlot);
        connect(row.minus, SIGNAL(clicked()), this, row.minusSlot);
    }
}

void SourceGainWidget::showEvent(QShowEvent *event) {
    retranslateUi();
    resume();
    QWidget::showEvent(event);
}

void SourceGainWidget::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QWidget::changeEvent(event);
}

void SourceGainWidget::retranslateUi() {
    for (const Row &row : m_rows) {
        if (row.textId != 0) {
            row.caption->setText(Translator::translate(row.textId));
        }
    }
    for (int id = 0; id < RowCount; ++id) {
        const Row &row = m_rows[id];
        nameControls(
            {{m_sliders[id], row.caption, nullptr}, {row.minus, row.caption, less}, {row.plus, row.caption, more}});
    }
}

void SourceGainWidget::resume() {
    for (RowId id : {Radio, Usb, BtMusic, CarPlay, AndroidAuto, Regional}) {
        loadStored(id);
    }
    for (int id = 0; id < RowCount; ++id) {
        m_gains[id] = sourcegain::gain(m_rows[id].source).value();
    }
    for (RowId id : {AndroidAuto, BtMusic, CarPlay, Radio, Regional, Usb}) {
        updateKeys(id);
    }
}

void SourceGainWidget::loadStored(RowId id) {
    const Row &row = m_rows[id];
    // A slider that shows another source's gain must not make it its own, which its notification would.
    const QSignalBlocker quiet(row.shownSource == row.source ? nullptr : m_sliders[id]);
    m_sliders[id]->setValue(sourcegain::gain(row.shownSource).value());
}

// Sliders and keys ------------------------------------------------------------------------------------------------

void SourceGainWidget::changedBySlider(RowId id, int, int gain) {
    m_gains[id] = gain;
    sourcegain::gain(m_rows[id].source).write(gain);
    mcu::McuService::instance()->setAudioInputGainValue(m_rows[id].source, mcuGain(gain));
    updateKeys(id);
}

void SourceGainWidget::stepUp(RowId id) {
    qvaudio::AudioService::instance()->doBeep(0);
    const int highest = id == Radio ? maxRadioGain : sourcegain::maxGain;
    setGain(id, m_gains[id] < highest ? m_gains[id] + 1 : highest);
}

void SourceGainWidget::stepDown(RowId id) {
    qvaudio::AudioService::instance()->doBeep(0);
    setGain(id, m_gains[id] > sourcegain::minGain ? m_gains[id] - 1 : sourcegain::minGain);
}

void SourceGainWidget::setGain(RowId id, int gain) {
    m_gains[id] = gain;
    // The slider's notification stores the gain and sends it.
    m_sliders[id]->setValue(gain);
    updateKeys(id);
}

void SourceGainWidget::updateKeys(RowId id) {
    m_rows[id].minus->setEnabled(m_gains[id] > sourcegain::minGain);
    m_rows[id].plus->setEnabled(m_gains[id] < sourcegain::maxGain);
}

}  // namespace audiosetting
