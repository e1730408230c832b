// SPDX-License-Identifier: Apache-2.0
#include "audiosetting_right_timing_widget.h"

#include "audioservice.h"
#include "base/accessibility.h"
#include "base/buttongroup.h"
#include "base/debuglog.h"
#include "base/picture.h"
#include "base/presetkey.h"
#include "delayunits.h"
#include "loudspeakerlight.h"
#include "mcuservice.h"
#include "pushbutton.h"
#include "ui_Audiosetting_right_timing_widget.h"

#include <QButtonGroup>
#include <QEvent>

using namespace audiosetting;
using namespace audiosetting::timing;

namespace {

const int repeatDelay = 1000;    // ms from the press of a minus or plus key to its first repeat
const int repeatInterval = 200;  // ms
const int delaysEnabled = 1;     // first argument of the microcontroller's operation, always the same

// Where the cabin's picture shows each output's loudspeaker, px.
const QPoint loudspeakers[outputCount] = {{25, 84}, {156, 84}, {25, 161}, {156, 161}, {66, 227}, {115, 227}};

// A minus or plus key, and the page's slots for it.
void connectStepKey(QPushButton *key, QWidget *page, const char *clicked, const char *repeated) {
    QObject::connect(key, SIGNAL(clicked()), page, clicked);
    cm::PushButton *repeat = new cm::PushButton(key, page);
    repeat->setLongPressedInterval(repeatDelay);
    repeat->setRepeatInterval(repeatInterval);
    QObject::connect(repeat, SIGNAL(longPressedRepeat()), page, repeated);
}

bool isOutput(int output) {
    return output >= 0 && output < outputCount;
}

}  // namespace

QList<TimeDelayEntity> Audiosetting_right_timing_widget::s_entities;

Audiosetting_right_timing_widget::Audiosetting_right_timing_widget(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::Audiosetting_right_timing_widget) {
    m_ui->setupUi(this);
    connect(AudioSettingsUtils::instance(), SIGNAL(signal_flatTimeDelay()), this, SLOT(onResetTimeDelay()));
    m_type = unit().value();
    s_entities << TimeDelayEntity{FrontLeft, m_ui->key_fl_minus, m_ui->key_fl_plus, m_ui->txt_fl_value}
               << TimeDelayEntity{FrontRight, m_ui->key_fr_minus, m_ui->key_fr_plus, m_ui->txt_fr_value}
               << TimeDelayEntity{RearLeft, m_ui->key_rl_minus, m_ui->key_rl_plus, m_ui->txt_rl_value}
               << TimeDelayEntity{RearRight, m_ui->key_rr_minus, m_ui->key_rr_plus, m_ui->txt_rr_value}
               << TimeDelayEntity{SubLeft, m_ui->key_sl_minus, m_ui->key_sl_plus, m_ui->txt_sl_value}
               << TimeDelayEntity{SubRight, m_ui->key_sr_minus, m_ui->key_sr_plus, m_ui->txt_sr_value};
    initUi();
    refreshUI();
}

Audiosetting_right_timing_widget::~Audiosetting_right_timing_widget() {
    for (int i = s_entities.size() - 1; i >= 0; --i) {
        if (isAncestorOf(s_entities.at(i).value)) {
            s_entities.removeAt(i);
        }
    }
}

void Audiosetting_right_timing_widget::initUi() {
    // They lie over the unit keys.
    m_ui->txt_msec->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_ui->txt_inches->setAttribute(Qt::WA_TransparentForMouseEvents);

    showPicture({m_ui->label_bg}, "timing_cabin");
    showPicture({m_ui->label_fl_horn, m_ui->label_rl_horn}, "timing_horn_left");
    showPicture({m_ui->label_fr_horn, m_ui->label_rr_horn}, "timing_horn_right");
    showPicture({m_ui->label_sl_horn}, "timing_sub_left");
    showPicture({m_ui->label_sr_horn}, "timing_sub_right");
    showPicture({m_ui->label_slope_bg, m_ui->label_slope_bg_2, m_ui->label_slope_bg_3, m_ui->label_slope_bg_4,
                 m_ui->label_slope_bg_5, m_ui->label_slope_bg_6},
                "value_bg");
    showPicture({m_ui->txt_bg}, "timing_unit_bg");

    m_unitGroup = new QButtonGroup(this);
    m_unitGroup->addButton(m_ui->key_msec, Milliseconds);
    m_unitGroup->addButton(m_ui->key_inches, Inches);
    connect(m_unitGroup, SIGNAL(buttonClicked(int)), this, SLOT(onGbButtonClicked(int)));

    m_presetGroup = new QButtonGroup(this);
    m_presetGroup->addButton(m_ui->key_preset_1, 0);
    m_presetGroup->addButton(m_ui->key_preset_2, 1);
    connect(m_presetGroup, SIGNAL(buttonClicked(int)), this, SLOT(onPresetClicked(int)));
    saveOnHold(m_ui->key_preset_1, this, SLOT(onPreset1LongPressed()));
    saveOnHold(m_ui->key_preset_2, this, SLOT(onPreset2LongPressed()));
    for (int preset = 0; preset < presetCount; ++preset) {
        endLongClickBesideKey(presetKey(preset));
    }

    connectStepKey(m_ui->key_fl_minus, this, SLOT(onFrontLeftMinus()), SLOT(onFLPrevPressedRepeat()));
    connectStepKey(m_ui->key_fl_plus, this, SLOT(onFrontLeftPlus()), SLOT(onFLNextPressedRepeat()));
    connectStepKey(m_ui->key_fr_minus, this, SLOT(onFrontRightMinus()), SLOT(onFRPrevPressedRepeat()));
    connectStepKey(m_ui->key_fr_plus, this, SLOT(onFrontRightPlus()), SLOT(onFRNextPressedRepeat()));
    connectStepKey(m_ui->key_rl_minus, this, SLOT(onRearLeftMinus()), SLOT(onRLPrevPressedRepeat()));
    connectStepKey(m_ui->key_rl_plus, this, SLOT(onRearLeftPlus()), SLOT(onRLNextPressedRepeat()));
    connectStepKey(m_ui->key_rr_minus, this, SLOT(onRearRightMinus()), SLOT(onRRPrevPressedRepeat()));
    connectStepKey(m_ui->key_rr_plus, this, SLOT(onRearRightPlus()), SLOT(onRRNextPressedRepeat()));
    connectStepKey(m_ui->key_sl_minus, this, SLOT(onSubLeftMinus()), SLOT(onSLPrevPressedRepeat()));
    connectStepKey(m_ui->key_sl_plus, this, SLOT(onSubLeftPlus()), SLOT(onSLNextPressedRepeat()));
    connectStepKey(m_ui->key_sr_minus, this, SLOT(onSubRightMinus()), SLOT(onSRPrevPressedRepeat()));
    connectStepKey(m_ui->key_sr_plus, this, SLOT(onSubRightPlus()), SLOT(onSRNextPressedRepeat()));

    LoudspeakerLight *light = new LoudspeakerLight(m_ui->label_bg->parentWidget());
    for (const TimeDelayEntity &controls : s_entities) {
        if (isAncestorOf(controls.value)) {
            const QPoint place = m_ui->label_bg->pos() + loudspeakers[controls.index];
            light->follow(controls.minus, place);
            light->follow(controls.plus, place);
        }
    }
    nameKeys();
}

void Audiosetting_right_timing_widget::nameKeys() {
    nameControls({{m_ui->key_fl_minus, m_ui->txt_fl, less},
                  {m_ui->key_fl_plus, m_ui->txt_fl, more},
                  {m_ui->key_fr_minus, m_ui->txt_fr, less},
                  {m_ui->key_fr_plus, m_ui->txt_fr, more},
                  {m_ui->key_rl_minus, m_ui->txt_rl, less},
                  {m_ui->key_rl_plus, m_ui->txt_rl, more},
                  {m_ui->key_rr_minus, m_ui->txt_rr, less},
                  {m_ui->key_rr_plus, m_ui->txt_rr, more},
                  {m_ui->key_sl_minus, m_ui->txt_sl, less},
                  {m_ui->key_sl_plus, m_ui->txt_sl, more},
                  {m_ui->key_sr_minus, m_ui->txt_sr, less},
                  {m_ui->key_sr_plus, m_ui->txt_sr, more},
                  {m_ui->key_msec, m_ui->txt_msec, nullptr},
                  {m_ui->key_inches, m_ui->txt_inches, nullptr},
                  {m_ui->key_preset_1, m_ui->txt_presets, "1"},
                  {m_ui->key_preset_2, m_ui->txt_presets, "2"}});
}

void Audiosetting_right_timing_widget::showEvent(QShowEvent *event) {
    reload();
    QWidget::showEvent(event);
}

void Audiosetting_right_timing_widget::reload() {
    resume();
    refreshUI();
    checkExclusively(m_unitGroup, m_type);
    for (int preset = 0; preset < presetCount; ++preset) {
        setLongClick(presetKey(preset), false);
    }
}

void Audiosetting_right_timing_widget::resume() {
    m_type = unit().value();
    for (int output = 0; output < outputCount; ++output) {
        m_delay[output] = delay(output).value();
    }
    for (int preset = 0; preset < presetCount; ++preset) {
        updatePresetBtnIcon(preset);
    }
}

void Audiosetting_right_timing_widget::refreshUI() {
    for (int output = 0; output < outputCount; ++output) {
        buttonStateUpdate(output);
    }
    onUpdateCurrentSelect();
}

// Unit ------------------------------------------------------------------------------------------------------------

void Audiosetting_right_timing_widget::onGbButtonClicked(int iIdx) {
    qvaudio::AudioService::instance()->doBeep(0);
    AUDIO_LOG << "iIdx:" << iIdx;
    if (iIdx == Milliseconds || iIdx == Inches) {
        m_type = iIdx;
    }
    unit().write(m_type);
    refreshUI();
}

// Delays ----------------------------------------------------------------------------------------------------------

void Audiosetting_right_timing_widget::minusClicked(int output) {
    qvaudio::AudioService::instance()->doBeep(0);
    buttonPrevClicked(output);
}

void Audiosetting_right_timing_widget::plusClicked(int output) {
    qvaudio::AudioService::instance()->doBeep(0);
    buttonNextClicked(output);
}

void Audiosetting_right_timing_widget::buttonPrevClicked(int iIdx) {
    if (isOutput(iIdx)) {
        setDelay(iIdx, m_delay[iIdx] > 0 ? m_delay[iIdx] - 1 : 0);
    }
}

void Audiosetting_right_timing_widget::buttonNextClicked(int iIdx) {
    if (isOutput(iIdx)) {
        setDelay(iIdx, m_delay[iIdx] < maxDelay ? m_delay[iIdx] + 1 : maxDelay);
    }
}

void Audiosetting_right_timing_widget::setDelay(int output, int value) {
    m_delay[output] = value;
    buttonStateUpdate(output);
    onUpdateCurrentSelect();
    sendAudioTimerDelay();
    delay(output).write(value);
}

void Audiosetting_right_timing_widget::buttonStateUpdate(int output) {
    const TimeDelayEntity *controls = entity(output);
    if (!controls) {
        return;  // no such output
    }
    const int value = m_delay[output];
    controls->minus->setEnabled(value >= 1);
    controls->plus->setEnabled(value < maxDelay);
    controls->value->setText(m_type == Inches ? QString::number(onMsSwapInch(value)) : millisecondsText(value));
}

void Audiosetting_right_timing_widget::sendAudioTimerDelay() {
    AUDIO_LOG << "send mcu:" << m_delay[FrontLeft] << m_delay[FrontRight] << m_delay[RearLeft] << m_delay[RearRight]
              << m_delay[SubLeft] << m_delay[SubRight];
    mcu::McuService::instance()->setAudioTimerDelay(delaysEnabled, m_delay);
}

// Presets ---------------------------------------------------------------------------------------------------------

void Audiosetting_right_timing_widget::onPresetClicked(int iIdx) {
    if (longClick(presetKey(iIdx))) {
        setLongClick(presetKey(iIdx), false);
        return;
    }
    if (!presetSaved(iIdx).flag()) {
        onUpdateCurrentSelect();
        return;
    }
    qvaudio::AudioService::instance()->doBeep(0);
    getPreset(iIdx);
    for (int output = 0; output < outputCount; ++output) {
        buttonStateUpdate(output);
    }
    sendAudioTimerDelay();
}

void Audiosetting_right_timing_widget::savePreset(int preset) {
    qvaudio::AudioService::instance()->doBeep(0);
    setLongClick(presetKey(preset), true);
    setPreset(preset);
    updatePresetBtnIcon(preset);
    updatePresetButton(preset);
}

void Audiosetting_right_timing_widget::getPreset(int preset) {
    for (int output = 0; output < outputCount; ++output) {
        m_delay[output] = presetDelay(preset, output).value();
        delay(output).write(m_delay[output]);
    }
}

void Audiosetting_right_timing_widget::setPreset(int preset) {
    if (preset >= presetCount) {
        return;
    }
    if (!presetSaved(preset).flag()) {
        presetSaved(preset).write(true);
    }
    for (int output = 0; output < outputCount; ++output) {
        presetDelay(preset, output).write(m_delay[output]);
    }
}

bool Audiosetting_right_timing_widget::comparePreset(int preset) {
    if (!presetSaved(preset).flag()) {
        return false;
    }
    for (int output = 0; output < outputCount; ++output) {
        if (presetDelay(preset, output).value() != m_delay[output]) {
            return false;
        }
    }
    return true;
}

void Audiosetting_right_timing_widget::onUpdateCurrentSelect() {
    int match = 0;
    while (match < presetCount && !comparePreset(match)) {
        ++match;
    }
    updatePresetButton(match);
}

void Audiosetting_right_timing_widget::updatePresetButton(int preset) {
    checkExclusively(m_presetGroup, preset);
}

void Audiosetting_right_timing_widget::updatePresetBtnIcon(int preset) {
    showPreset(presetKey(preset), preset, presetSaved(preset).flag());
}

// Helpers ---------------------------------------------------------------------------------------------------------

double Audiosetting_right_timing_widget::onInchToDelayMs(int iInch) {
    return delayOfInches(iInch);
}

int Audiosetting_right_timing_widget::onInchToVal(int iInch) {
    return stepsOfInches(iInch);
}

int Audiosetting_right_timing_widget::onInchSwapMs(int iInchVla) {
    return millisecondsOfInches(iInchVla);
}

int Audiosetting_right_timing_widget::onMsSwapInch(int iMsVla) {
    return inchesOfDelay(iMsVla);
}

const TimeDelayEntity *Audiosetting_right_timing_widget::entity(int output) const {
    for (const TimeDelayEntity &row : s_entities) {
        if (row.index == output && isAncestorOf(row.value)) {
            return &row;
        }
    }
    return nullptr;
}

QAbstractButton *Audiosetting_right_timing_widget::presetKey(int preset) const {
    return preset == 0 ? m_ui->key_preset_1 : m_ui->key_preset_2;
}

void Audiosetting_right_timing_widget::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        nameKeys();
    }
    QWidget::changeEvent(event);
}
