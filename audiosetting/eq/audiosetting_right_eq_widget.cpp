// SPDX-License-Identifier: Apache-2.0
#include "audiosetting_right_eq_widget.h"

#include "audioservice.h"
#include "bandscale.h"
#include "base/accessibility.h"
#include "base/debuglog.h"
#include "base/picture.h"
#include "base/presetkey.h"
#include "base/texts.h"
#include "dragvalue.h"
#include "eqsettings.h"
#include "eqtable.h"
#include "labelbutton.h"
#include "sliderbarwidget.h"
#include "translator.h"
#include "ui_Audiosetting_right_eq_widget.h"

#include <QButtonGroup>
#include <QEvent>
#include <QPushButton>

using namespace audiosetting;

namespace {

const int commitDelay = 80;     // ms; a drag sends the curve at most once in this time
const int selectionDelay = 20;  // ms from showing a factory curve to the selection of a preset

const int scaleLines[] = {82, 149, 219};  // px: the knob's middle at +12, 0 and -12 dB
const int dragValueY = 42;                // px, among the bands: between the up key and the slider
const int anywhere = 1000;                // px: further down than a knob goes

qvaudio::AudioService *audio() {
    return qvaudio::AudioService::instance();
}

}  // namespace

Audiosetting_right_eq_widget::Audiosetting_right_eq_widget(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::Audiosetting_right_eq_widget), m_presetKeys(this) {
    m_ui->setupUi(this);
    initUi();
    initEqTypeLongPressed();
}

Audiosetting_right_eq_widget::~Audiosetting_right_eq_widget() {}

void Audiosetting_right_eq_widget::initUi() {
    m_commitTimer.setSingleShot(true);
    m_commitTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_commitTimer, SIGNAL(timeout()), this, SLOT(onCustomEqValueDelay()));

    m_knob = picture("audiosetting_slider_point").toImage();

    const struct {
        QPushButton *key;
        QLabel *name;
        QLabel *emptyPicture;
    } presets[eq::presetCount] = {
        {m_ui->key_custom1, m_ui->Txt_custom1, m_ui->Icn_preset_1},
        {m_ui->key_custom2, m_ui->Txt_custom2, m_ui->Icn_preset_2},
        {m_ui->key_custom3, m_ui->Txt_custom3, m_ui->Icn_preset_3},
        {m_ui->key_custom4, m_ui->Txt_custom4, m_ui->Icn_preset_4},
        {m_ui->key_custom5, m_ui->Txt_custom5, m_ui->Icn_preset_5},
    };
    for (const auto &preset : presets) {
        m_presetKeys.add(preset.key, preset.name, preset.emptyPicture);
    }
    connect(m_presetKeys.group(), SIGNAL(buttonPressed(int)), this, SLOT(onButtonCustomPressed(int)));
    connect(m_presetKeys.group(), SIGNAL(buttonReleased(int)), this, SLOT(onbuttonCustomClicked(int)));
    m_ui->key_flat->setCheckable(false);
    // It lies over its key: touches go through.
    m_ui->Txt_flat->setAttribute(Qt::WA_TransparentForMouseEvents);

    BandScale *scale = new BandScale(m_ui->widget, scaleLines);
    scale->setGeometry(m_ui->widget->rect());
    // On the page, which is wider than the bands: also the first one's value stands above the finger.
    DragValue *dragValue = new DragValue(this, m_ui->widget->y() + dragValueY, anywhere);
    for (int band = 0; band < eqBandCount; ++band) {
        m_levels.append(0);
        m_bands.append(EqBand(band, m_ui->widget, m_knobImage));
        connect(slider(band), SIGNAL(valueChanged(int, int)), this, SLOT(update_eq_section_drag(int, int)));
        connect(m_bands.at(band).upKey(), SIGNAL(clicked(int)), this, SLOT(onBarPrevClicked(int)));
        connect(m_bands.at(band).downKey(), SIGNAL(clicked(int)), this, SLOT(onBarNextClicked(int)));
        dragValue->follow(slider(band));
    }
}

void Audiosetting_right_eq_widget::showEvent(QShowEvent *event) {
    retranslateUi();
    onUpdateCustomEqData();
    if (audio()->getCurrEQType() != AudioEQCustom) {
        updateEqVal();
        QTimer::singleShot(selectionDelay, this, SLOT(onSliderBarWidgetCompeted()));
    } else {
        updateCustomEqUi(eq::lastPreset().value());
        updateEqVal();
    }
    updatePrevNextAllUi();
    QWidget::showEvent(event);
}

void Audiosetting_right_eq_widget::retranslateUi() {
    m_presetKeys.updateSaved();
    m_ui->Txt_flat->setText(Translator::translate(texts::flat));
    nameControls({{m_ui->key_flat, m_ui->Txt_flat, nullptr}});
}

void Audiosetting_right_eq_widget::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslateUi();
    }
    QWidget::changeEvent(event);
}

void Audiosetting_right_eq_widget::onSliderBarWidgetCompeted() {
    updateCurrentSelect();
}

// The curve in force ----------------------------------------------------------------------------------------------

void Audiosetting_right_eq_widget::updateEqVal() {
    const int type = audio()->getCurrEQType();
    AUDIO_LOG << "eqType :" << type;
    if (type < AudioEQCustom) {
        tagAudioEQItem_T item = eq::curveOfType(eq::curves(), type);
        updateEqBar(item);
    } else {
        updateCustomEQ();
        updateCurrentSelect();
    }
}

void Audiosetting_right_eq_widget::updateEqBar(tagAudioEQItem_T &item) {
    for (int band = 0; band < eqBandCount; ++band) {
        slider(band)->setBarLevel(eq::levelOfGain(item.gain[band]));
    }
}

void Audiosetting_right_eq_widget::updateCustomEQ() {
    // Unclamped: the band-adjust panel keeps values of another scale, and editing one band commits all thirteen.
    for (int band = 0; band < eqBandCount; ++band) {
        slider(band)->setBarLevel(eq::fromOtherEnd(eq::maxLevel, eq::liveBand(band).value()));
    }
}

void Audiosetting_right_eq_widget::onEqTypeChanged(int type) {
    AUDIO_LOG << "eqType :" << type;
    onSaveCustomEqValue();
    updateEqVal();
}

void Audiosetting_right_eq_widget::onSaveCustomEqValue() {
    audio()->setEQType(audio()->getCurrEQType(), true);
    for (int band = 0; band < eqBandCount; ++band) {
        // Levels go out where the service expects its own values, which count the other way. Required: whoever invokes
        // this slot counts on it.
        audio()->setCustomEq(m_levels.at(band), band, true);
    }
}

void Audiosetting_right_eq_widget::onUpdateCustomEqData() {
    for (int band = 0; band < eqBandCount; ++band) {
        m_levels[band] = eq::fromOtherEnd(eq::maxLevel, audio()->getCustomEq(band));
    }
}

void Audiosetting_right_eq_widget::onResetEqValue() {
    audio()->setEQType(AudioEQFlat, true);
    // The last three bands keep their levels. Required: the command covers ten bands, here as on the panel.
    for (int band = 0; band < eq::resetBandCount; ++band) {
        setEqBarValue(band, eq::flatLevel);
    }
    onSaveCustomEqValue();
}

void Audiosetting_right_eq_widget::on_key_flat_clicked() {
    audio()->doBeep(0);
    audio()->setEQType(AudioEQFlat, true);
    eq::highlightedPreset().write(eq::noPreset);
    updateEqVal();
    updateCurrentSelect();
    updatePrevNextAllUi();
}

void Audiosetting_right_eq_widget::onSetFlatEq() {
    updateEqVal();
}

// Sliders and step keys -------------------------------------------------------------------------------------------

void Audiosetting_right_eq_widget::update_eq_section_drag(int section, int value) {
    eq::highlightedPreset().write(eq::noPreset);
    eq_section_drag_event(section, value, true);
    setEqBarValue(section, value);
    updatePrevNextById(section);
}

void Audiosetting_right_eq_widget::save_eq_section_drag(int section, int value) {
    eq_section_drag_event(section, value, false);
}

void Audiosetting_right_eq_widget::eq_section_drag_event(int section, int value, bool moving) {
    if (!moving) {
        m_commitTimer.stop();
        updateCustomEqValue(section, value);
    } else if (!m_commitTimer.isActive()) {
        m_commitTimer.start(commitDelay);
    }
    m_dragSection = section;
    m_dragValue = value;
}

void Audiosetting_right_eq_widget::setEqBarValue(int section, int value) {
    if (!eq::isBand(section)) {
        AUDIO_LOG << "no such band:" << section;
        return;
    }
    m_levels[section] = value;
    slider(section)->setBarLevel(value);
}

void Audiosetting_right_eq_widget::onCustomEqValueDelay() {
    for (int band = 0; band < eqBandCount; ++band) {
        updateCustomEqValue(band, slider(band)->getLevel());
    }
    updateCurrentSelect();
}

void Audiosetting_right_eq_widget::updateCustomEqValue(int band, int level) {
    const int preset = eq::lastPreset().value();
    if (!eq::isPreset(preset)) {
        AUDIO_LOG << "custom_eq_type_id:" << preset;
        return;
    }
    // Always type 16, whichever preset was last used. Required: the service has one live custom curve, and Factory EQ
    // and the panel know it by this number.
    if (audio()->getCurrEQType() != AudioEQCustom) {
        audio()->setEQType(AudioEQCustom, true);
    }
    const int value = eq::fromOtherEnd(eq::maxLevel, level);
    if (audio()->getCustomEq(band) != value) {
        audio()->setCustomEq(value, band, true);
    }
}

void Audiosetting_right_eq_widget::onBarPrevClicked(int id) {
    stepBand(id, &cm::SliderBarWidget::clickPrev);
}

void Audiosetting_right_eq_widget::onBarNextClicked(int id) {
    stepBand(id, &cm::SliderBarWidget::clickNext);
}

void Audiosetting_right_eq_widget::stepBand(int band, void (cm::SliderBarWidget::*step)()) {
    audio()->doBeep(0);
    if (!eq::isBand(band)) {
        AUDIO_LOG << "no such band:" << band;
        return;
    }
    (slider(band)->*step)();
    updatePrevNextById(band);
}

void Audiosetting_right_eq_widget::updatePrevNextAllUi() {
    for (int band = 0; band < eqBandCount; ++band) {
        updatePrevNextById(band);
    }
}

void Audiosetting_right_eq_widget::updatePrevNextById(int band) {
    if (!eq::isBand(band)) {
        AUDIO_LOG << "no such band:" << band;
        return;
    }
    m_bands[band].updateStepKeys();
}

// Presets ---------------------------------------------------------------------------------------------------------

void Audiosetting_right_eq_widget::initEqTypeLongPressed() {
    const char *const saves[] = {SLOT(onCustom1LongRelease()), SLOT(onCustom2LongRelease()),
                                 SLOT(onCustom3LongRelease()), SLOT(onCustom4LongRelease()),
                                 SLOT(onCustom5LongRelease())};
    for (int preset = 0; preset < eq::presetCount; ++preset) {
        saveOnHold(qobject_cast<QPushButton *>(m_presetKeys.group()->button(preset)), this, saves[preset]);
    }
}

void Audiosetting_right_eq_widget::onButtonCustomPressed(int btnId) {
    m_presetKeys.setLongClick(btnId, false);
}

void Audiosetting_right_eq_widget::onbuttonCustomClicked(int iIdx) {
    AUDIO_LOG << "iIdx:" << iIdx;
    if (!eq::isPreset(iIdx) || !eq::presetSaved(iIdx).flag()) {
        updateCurrentSelect();
    } else if (m_presetKeys.longClick(iIdx)) {
        eq::highlightedPreset().write(iIdx);
        updateCurrentSelect();
    } else {
        audio()->doBeep(0);
        eq::highlightedPreset().write(iIdx);
        updateEqType(iIdx);
        updateCustomEqUi(iIdx);
    }
}

// Saving ----------------------------------------------------------------------------------------------------------

void Audiosetting_right_eq_widget::savePreset(int preset) {
    audio()->doBeep(0);
    saveCustomEqValue(preset, m_dragSection, m_dragValue);
    recallPreset(preset);
    updateCustomEqUi(preset);
}

void Audiosetting_right_eq_widget::saveCustomEqValue(int preset, int section, int value) {
    AUDIO_LOG << "preset:" << preset << "section:" << section << "value:" << value;
    eq::lastPreset().write(preset);
    if (!eq::isPreset(preset)) {
        AUDIO_LOG << "no such preset:" << preset;
        return;
    }
    m_presetKeys.setLongClick(preset, true);
    for (int band = 0; band < eqBandCount; ++band) {
        updateCustomEqByType(preset, band, slider(band)->getLevel());
    }
    eq::presetSaved(preset).write(true);
    retranslateUi();
}

void Audiosetting_right_eq_widget::updateCustomEqByType(int preset, int band, int level) {
    if (!eq::isPreset(preset) || !eq::isBand(band)) {
        AUDIO_LOG << "no such preset or band:" << preset << band;
        return;
    }
    eq::presetLevel(preset, band).write(level);
}

// Recalling -------------------------------------------------------------------------------------------------------

void Audiosetting_right_eq_widget::updateEqType(int preset) {
    eq::lastPreset().write(preset);
    recallPreset(preset);
    updatePrevNextAllUi();
}

void Audiosetting_right_eq_widget::recallPreset(int preset) {
    if (!eq::isPreset(preset)) {
        return;
    }
    for (int band = 0; band < eqBandCount; ++band) {
        updateCustomEqValue(band, getCustomEqValue(band, preset));
    }
    updateEqVal();
}

int Audiosetting_right_eq_widget::getCustomEqValue(int band, int preset) {
    return eq::isPreset(preset) ? eq::presetLevel(preset, band).value() : 0;
}

// Selection -------------------------------------------------------------------------------------------------------

bool Audiosetting_right_eq_widget::eqValueCompare(int preset) {
    for (int band = 0; band < eqBandCount; ++band) {
        if (getCustomEqValue(band, preset) != slider(band)->getLevel()) {
            return false;
        }
    }
    return eq::isPreset(preset);
}

void Audiosetting_right_eq_widget::updateCurrentSelect() {
    const int highlighted = eq::highlightedPreset().value();
    for (int preset = 0; preset < eq::presetCount; ++preset) {
        if (!eq::presetSaved(preset).flag()) {
            continue;
        }
        if (highlighted != eq::noPreset) {
            updateCustomEqUi(highlighted);
            return;
        }
        if (eqValueCompare(preset)) {
            updateCustomEqUi(preset);
            return;
        }
    }
    updateCustomEqUi(eq::noPreset);
}

void Audiosetting_right_eq_widget::updateCustomEqUi(int preset) {
    m_presetKeys.select(preset);
}
