// SPDX-License-Identifier: Apache-2.0
#include "audiosettingstop.h"

#include "audioservice.h"
#include "audiosettingsutils.h"
#include "base/accessibility.h"
#include "base/posttouch.h"
#include "pageid.h"
#include "ui_AudiosettingsTop.h"

#include <QEvent>

AudiosettingsTop::AudiosettingsTop(QWidget *parent) : QWidget(parent), m_ui(new Ui::AudiosettingsTop) {
    m_ui->setupUi(this);
    // The caption lies over its key: touches go through to the key.
    m_ui->Txt_flat->setAttribute(Qt::WA_TransparentForMouseEvents);
    setBtnResetType(audiosetting::FlatNone);
    nameKeys();
}

AudiosettingsTop::~AudiosettingsTop() {}

void AudiosettingsTop::onSetTxtTitle(const QString &title) {
    setTitleText(title);
    setBtnResetType(audiosetting::FlatNone);
}

void AudiosettingsTop::setTitleText(const QString &title) {
    m_ui->Txt_title->setText(title);
}

void AudiosettingsTop::setBtnResetType(int type) {
    m_ui->Key_update->setVisible(type != audiosetting::FlatNone);
    m_ui->Txt_flat->setVisible(type != audiosetting::FlatNone);
    m_btnResetType = type;
}

void AudiosettingsTop::on_key_return_clicked() {
    // The receiver sounds the key beep.
    emit backClicked();
}

void AudiosettingsTop::on_Key_close_clicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    audiosetting::postTouch(Qx::TouchClose);
}

void AudiosettingsTop::on_Key_update_clicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    if (m_btnResetType == audiosetting::FlatCrossover) {
        AudioSettingsUtils::instance()->flatCrossover();
    } else if (m_btnResetType == audiosetting::FlatTimeDelay) {
        AudioSettingsUtils::instance()->flatTimeDelay();
    }
}

void AudiosettingsTop::nameKeys() {
    // The names of Back and Close are the form's.
    audiosetting::nameControls({{m_ui->Key_update, m_ui->Txt_flat, nullptr}});
}

void AudiosettingsTop::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        nameKeys();
    }
    QWidget::changeEvent(event);
}
