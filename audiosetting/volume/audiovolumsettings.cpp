// SPDX-License-Identifier: Apache-2.0
#include "audiovolumsettings.h"

#include "audioservice.h"
#include "base/accessibility.h"
#include "base/debuglog.h"
#include "base/touchpagerequest.h"
#include "horizontalslider.h"
#include "mcuservice.h"
#include "scrollbar.h"
#include "sliderpage.h"
#include "ui_Audiovolumsettings.h"
#include "volumesettings.h"

#include <QEvent>

using namespace audiosetting;

namespace {

// The sixth row lies below these contents, out of a finger's reach. Required: drivers know this page with five
// rows, and what changes TA elsewhere needs the slider all the same.
QRect contentsGeometry() {
    return QRect(0, 0, 955, 885);
}

int raised(int level) {
    return level < volume::maxLevel ? level + 1 : volume::maxLevel;
}

int lowered(int level) {
    return level > volume::minLevel ? level - 1 : volume::minLevel;
}

}  // namespace

Audiovolumsettings::Audiovolumsettings(QWidget *parent) : QWidget(parent), m_ui(new Ui::Audiovolumsettings) {
    m_ui->setupUi(this);
    setGeometry(sliderPageGeometry());
    initUi();
}

Audiovolumsettings::~Audiovolumsettings() {}

void Audiovolumsettings::initUi() {
    m_audioService = qvaudio::AudioService::instance();
    if (!m_scrollManage) {
        m_scrollManage = makeScrollable(m_ui->scrollArea);
    }
    const struct {
        RowId id;
        int type;
        const QLabel *caption;
        const QLabel *placeholder;
        const char *sliderSlot;
        cm::LabelButton *plus;
        const char *plusSlot;
        cm::LabelButton *minus;
        const char *minusSlot;
    } rows[] = {
        {Main, volume::Main, m_ui->txt_MainVolume, m_ui->mainvolumeslider, SLOT(onMainVolumeSliderChanged(int, int)),
         m_ui->key_main_plus, SLOT(onMainVolumPlus()), m_ui->key_main_minus, SLOT(onMainVolumMinus())},
        {Phone, volume::Phone, m_ui->txt_Phone_Volume, m_ui->phonevolumeslider, SLOT(onPhoneVolSliderChanged(int, int)),
         m_ui->key_phone_volume_plus, SLOT(onPhoneVolumPlus()), m_ui->key_phone_volume_minus,
         SLOT(onPhoneVolumMinus())},
        {Voice, volume::Voice, m_ui->txt_Voice_volume, m_ui->voicevolumeslider, SLOT(onVoiceVolSliderChanged(int, int)),
         m_ui->key_voice_volume_plus, SLOT(onVoiceVolumPlus()), m_ui->key_voice_volume_minus,
         SLOT(onVoiceVolumMinus())},
        {Navigation, volume::Navigation, m_ui->txt_navigation_volume, m_ui->navivolumeslider,
         SLOT(onNaviVolSliderChanged(int, int)), m_ui->key_navig_volume_plus, SLOT(onNaviVolumPlus()),
         m_ui->key_navig_volume_minus, SLOT(onNaviVolumMinus())},
        {Ringtone, volume::Ringtone, m_ui->txt_rigtone_volume, m_ui->Ringtonevolumeslider,
         SLOT(onRingtoneVolSliderChanged(int, int)), m_ui->key_ringtone_volume_plus, SLOT(onRingtoneVolumPlus()),
         m_ui->key_ringtone_volume_minus, SLOT(onRingtoneVolumMinus())},
        {Ta, volume::Announcements, m_ui->txt_ta_volume, m_ui->TAvolumeslider, SLOT(onTAVolSliderChanged(int, int)),
         m_ui->key_ta_volume_plus, SLOT(onTAVolumPlus()), m_ui->key_ta_volume_minus, SLOT(onTAVolumMinus())},
    };
    const SliderLook look = {volume::minLevel, volume::maxLevel + 1,
                             QStringLiteral(":/corvina_volume_slider/volume_slider_bar_n.png")};
    for (const auto &form : rows) {
        Row &row = m_rows[form.id];
        row.type = form.type;
        row.caption = form.caption;
        row.plus = form.plus;
        row.minus = form.minus;
        // Only Main's slider outlives another call, and the scroll bar comes between its making and its looks.
        // Required: toolkits stack widgets in the order of their making.
        if (form.id != Main || !row.slider) {
            row.slider = createSlider(form.placeholder);
        }
        if (form.id == Main) {
            addScrollBar(this, m_ui->scrollArea);
            m_ui->scrollAreaWidgetContents->setGeometry(contentsGeometry());
        }
        configureSlider(row.slider, look);
        connect(row.slider, SIGNAL(valueChanged(int, int)), this, form.sliderSlot);
    }
    nameKeys();
    load();
    for (const auto &form : rows) {
        connect(form.plus, SIGNAL(clicked()), this, form.plusSlot);
        connect(form.minus, SIGNAL(clicked()), this, form.minusSlot);
    }
    connect(m_audioService, SIGNAL(audioVolumeChanged(int, int, int)), this, SLOT(onAudioVolumeChange(int, int, int)));
}

void Audiovolumsettings::nameKeys() {
    for (const Row &row : m_rows) {
        nameControls(
            {{row.slider, row.caption, nullptr}, {row.minus, row.caption, less}, {row.plus, row.caption, more}});
    }
}

void Audiovolumsettings::showEvent(QShowEvent *event) {
    m_seen = true;
    resume();
    QWidget::showEvent(event);
}

void Audiovolumsettings::hideEvent(QHideEvent *event) {
    // Hiding a page whose window is hidden already sends this event too: a request that came meanwhile must survive it.
    if (m_seen) {
        clearTouchPageRequest();
    }
    m_seen = false;
    QWidget::hideEvent(event);
}

void Audiovolumsettings::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        nameKeys();
    }
    QWidget::changeEvent(event);
}

void Audiovolumsettings::resume() {
    load();
    updateBtnMainState();
    updateBtnPhoneState();
    updateBtnNaviState();
    updateBtnVoiceState();
    updateBtnRingtoneState();
    updateBtnTAState();
}

void Audiovolumsettings::load() {
    for (Row &row : m_rows) {
        row.level = volume::level(row.type).value();
    }
    for (int id = 0; id < RowCount; ++id) {
        applyLevel(RowId(id));
    }
}

// Sliders ---------------------------------------------------------------------------------------------------------

void Audiovolumsettings::onMainVolumeSliderChanged(int, int iValue) {
    changedBySlider(LOG_PLACE, Main, m_rows[Main].type, iValue);
}

void Audiovolumsettings::onPhoneVolSliderChanged(int, int iValue) {
    changedBySlider(LOG_PLACE, Phone, m_rows[Phone].type, iValue);
}

void Audiovolumsettings::onVoiceVolSliderChanged(int, int iValue) {
    // Compared with Navigation's level, not with its own. Required: services on the road do not get a level of
    // Voice that Navigation holds already.
    changedBySlider(LOG_PLACE, Voice, m_rows[Navigation].type, iValue);
}

void Audiovolumsettings::onNaviVolSliderChanged(int, int iValue) {
    changedBySlider(LOG_PLACE, Navigation, m_rows[Navigation].type, iValue);
}

void Audiovolumsettings::onRingtoneVolSliderChanged(int, int iValue) {
    changedBySlider(LOG_PLACE, Ringtone, m_rows[Ringtone].type, iValue);
}

void Audiovolumsettings::onTAVolSliderChanged(int, int iValue) {
    changedBySlider(LOG_PLACE, Ta, m_rows[Ta].type, iValue);
}

void Audiovolumsettings::changedBySlider(const LogPlace &slot, RowId id, int comparedType, int value) {
    Row &row = m_rows[id];
    if (!isUpdateVolume(comparedType, value)) {
        AUDIO_LOG_AT(slot) << "level already in force, type:" << row.type << "level:" << value;
        return;
    }
    row.level = value;
    m_audioService->setVolumeLevel(value, row.type);
    updateKeys(id);
}

bool Audiovolumsettings::isUpdateVolume(int type, int value) {
    return m_audioService->getSourceVolByType(type) != value;
}

// Keys: Main and Phone change the level before they beep, the others after it. Required: services see the order. ------

void Audiovolumsettings::onMainVolumPlus() {
    int &level = m_rows[Main].level;
    // No clamp: a level above the range stays as it is, only the disabled key stops at the range's end. Required: a
    // unit may store a louder level than this page reaches, which a touch must not change.
    level = level > volume::maxLevel ? level : level + 1;
    m_audioService->doBeep(0);
    applyLevel(Main);
    sendLevel(Main);
}

void Audiovolumsettings::onMainVolumMinus() {
    m_rows[Main].level = lowered(m_rows[Main].level);
    m_audioService->doBeep(0);
    applyLevel(Main);
    sendLevel(Main);
}

void Audiovolumsettings::onPhoneVolumPlus() {
    m_rows[Phone].level = raised(m_rows[Phone].level);
    m_audioService->doBeep(0);
    // The only key that stores its level. Required: the others leave it to the services.
    volume::level(m_rows[Phone].type).write(m_rows[Phone].level);
    applyLevel(Phone);
    sendLevel(Phone);
}

void Audiovolumsettings::onPhoneVolumMinus() {
    m_rows[Phone].level = lowered(m_rows[Phone].level);
    // The slider moves before the beep. Required: services see the slider's level first.
    applyLevel(Phone);
    m_audioService->doBeep(0);
    sendLevel(Phone);
}

void Audiovolumsettings::stepUp(RowId id) {
    m_audioService->doBeep(0);
    m_rows[id].level = raised(m_rows[id].level);
    applyLevel(id);
    sendLevel(id);
}

void Audiovolumsettings::stepDown(RowId id) {
    m_audioService->doBeep(0);
    m_rows[id].level = lowered(m_rows[id].level);
    applyLevel(id);
    sendLevel(id);
}

void Audiovolumsettings::applyLevel(RowId id) {
    m_rows[id].slider->setValue(m_rows[id].level);
}

void Audiovolumsettings::sendLevel(RowId id) {
    mcu::McuService::instance()->setAudioVolumeValue(m_rows[id].type, m_rows[id].level);
    updateKeys(id);
}

void Audiovolumsettings::updateKeys(RowId id) {
    const Row &row = m_rows[id];
    row.minus->setEnabled(row.level > volume::minLevel);
    row.plus->setEnabled(row.level < volume::maxLevel);
}

// Changes made elsewhere ------------------------------------------------------------------------------------------

void Audiovolumsettings::onAudioVolumeChange(int, int vol, int type) {
    AUDIO_LOG << "vol:" << vol << "type:" << type;
    for (Row &row : m_rows) {
        if (row.type == type) {
            setCurrentVolumeSlider(row.slider, row.level, vol);
        }
    }
}

bool Audiovolumsettings::setCurrentVolumeSlider(HorizontalSlider *slider, int &level, int value) {
    if (!slider) {
        AUDIO_LOG << "no slider for level:" << value;
        return false;
    }
    if (slider->getMoveState()) {
        // It would fight the finger.
        AUDIO_LOG << "slider is being moved, dropped level:" << value;
        return false;
    }
    level = value;
    slider->setCurrentLevel(value);
    return true;
}
