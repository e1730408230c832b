// SPDX-License-Identifier: Apache-2.0
#include "audiosettingsroot.h"

#include "audioservice.h"
#include "base/accessibility.h"
#include "base/caption.h"
#include "base/debuglog.h"
#include "base/texts.h"
#include "commsystemutils.h"
#include "general/generalsettings.h"
#include "mcuservice.h"
#include "translator.h"
#include "ui_AudiosettingsRoot.h"

#include <QEvent>

using namespace audiosetting;

AudiosettingsRoot::AudiosettingsRoot(QWidget *parent) : QWidget(parent), m_ui(new Ui::AudiosettingsRoot) {
    m_ui->setupUi(this);
    // The captions lie over full-width keys: a touch anywhere on a row presses its key.
    QLabel *const captions[] = {m_ui->Txt_003_source_gain, m_ui->Txt_004_vol_settings, m_ui->Txt_005_res_audio};
    for (QLabel *caption : captions) {
        caption->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    AUDIO_LOG << "ADV_AUDIO_SETTINGS:" << general::defeat().value();
    CommSystemUtils::instance()->sync_default_font(this, QStringLiteral("Txt_"));
}

AudiosettingsRoot::~AudiosettingsRoot() {}

void AudiosettingsRoot::showEvent(QShowEvent *event) {
    retranslateUi();
    updateKeyEn(general::defeat().value() != 0);
    QWidget::showEvent(event);
}

void AudiosettingsRoot::on_Key_001_loudness_clicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    const bool checked = m_ui->Key_001_loudness->isChecked();
    general::loudness().write(checked);
    mcu::McuService::instance()->setLoudness(checked);
}

void AudiosettingsRoot::on_Key_003_source_gain_clicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    emit showSourceGain();
}

void AudiosettingsRoot::on_Key_004_vol_settings_clicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    emit showAudioSettings();
}

void AudiosettingsRoot::on_Key_005_res_audio_clicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    emit showResetAudiosettings();
}

void AudiosettingsRoot::updateKeyEn(bool disabled) {
    m_ui->Key_001_loudness->setDisabled(disabled);
    setCaptionEnabled(m_ui->Txt_001_loudness, !disabled);
    if (!disabled) {
        m_ui->Key_001_loudness->setChecked(general::loudness().value() != 0);
    }
}

void AudiosettingsRoot::retranslateUi() {
    m_ui->Txt_001_loudness->setText(Translator::translate(texts::loudness));
    m_ui->Txt_003_source_gain->setText(Translator::translate(texts::sourceGain));
    m_ui->Txt_004_vol_settings->setText(Translator::translate(texts::volumeSettings));
    m_ui->Txt_005_res_audio->setText(Translator::translate(texts::resetAudio));
    nameControls({{m_ui->Key_001_loudness, m_ui->Txt_001_loudness, nullptr},
                  {m_ui->Key_003_source_gain, m_ui->Txt_003_source_gain, nullptr},
                  {m_ui->Key_004_vol_settings, m_ui->Txt_004_vol_settings, nullptr},
                  {m_ui->Key_005_res_audio, m_ui->Txt_005_res_audio, nullptr}});
}

void AudiosettingsRoot::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        retranslateUi();
    }
    QWidget::changeEvent(event);
}
