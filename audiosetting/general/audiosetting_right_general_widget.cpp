// SPDX-License-Identifier: Apache-2.0
#include "audiosetting_right_general_widget.h"

#include "audioservice.h"
#include "balancefadercontrol.h"
#include "base/accessibility.h"
#include "base/buttongroup.h"
#include "base/caption.h"
#include "base/debuglog.h"
#include "generalsettings.h"
#include "mcuservice.h"
#include "settingscache.h"
#include "ui_Audiosetting_right_general_widget.h"

#include <QButtonGroup>
#include <QEvent>
#include <QRegularExpression>

#include <limits>

using namespace audiosetting;

namespace {

const int sendInterval = 100;  // ms; a drag sends at most one pair in this time

// The pad counts the fader up to the front, the service and the store count it up to the rear.
int otherSign(int fader) {
    return fader == std::numeric_limits<int>::min() ? std::numeric_limits<int>::max() : -fader;
}

}  // namespace

Audiosetting_right_general_widget::Audiosetting_right_general_widget(QWidget *parent)
    : QWidget(parent),
      m_ui(new Ui::Audiosetting_right_general_widget),
      m_audioService(qvaudio::AudioService::instance()),
      m_settings(AudioSettingsUtils::instance()) {
    m_ui->setupUi(this);
    initUi();
}

Audiosetting_right_general_widget::~Audiosetting_right_general_widget() {}

void Audiosetting_right_general_widget::initUi() {
    // The key spans the row, its caption lies over it.
    m_ui->text_Advanced->setAttribute(Qt::WA_TransparentForMouseEvents);

    m_pad = new settings::balanceFaderControl(m_ui->balancefader_bg->parentWidget(), m_ui->balancefader_bg->geometry());
    connect(m_pad, SIGNAL(balanceFaderChanged(int, int)), this, SLOT(onUpdate(int, int)));
    // They only mark where the pad goes.
    m_ui->frame->hide();
    m_ui->balancefader_bg->hide();

    m_phaseGroup = new QButtonGroup(this);
    m_phaseGroup->addButton(m_ui->key_Phase_0, 0);
    m_phaseGroup->addButton(m_ui->key_Phase_180, 1);
    connect(m_phaseGroup, SIGNAL(buttonClicked(int)), this, SLOT(onPhaseBtClicked(int)));

    m_sendTimer.setSingleShot(true);
    m_sendTimer.setTimerType(Qt::PreciseTimer);
    m_sendTimer.setInterval(sendInterval);
    connect(&m_sendTimer, SIGNAL(timeout()), this, SLOT(onUpdateBalFadValue()));

    // The controls that Defeat greys are found by name.
    m_defeatedKeys = findChildren<QAbstractButton *>(QRegularExpression(QStringLiteral("key_|Key_")));
    m_defeatedKeys.removeOne(m_ui->key_defeat);
    m_defeatedKeys.removeOne(m_ui->key_advanced);
    m_defeatedCaptions = findChildren<QLabel *>(QRegularExpression(QStringLiteral("txt_|text_")));
    m_defeatedCaptions.removeOne(m_ui->txt_vol_level);
    m_defeatedCaptions.removeOne(m_ui->text_defeat);
    m_defeatedCaptions.removeOne(m_ui->text_Advanced);
    nameKeys();
}

void Audiosetting_right_general_widget::nameKeys() {
    nameControls({{m_ui->key_advanced, m_ui->text_Advanced, nullptr},
                  {m_ui->key_defeat, m_ui->text_defeat, nullptr},
                  {m_ui->key_Subwoofer, m_ui->text_Subwoofer, nullptr},
                  {m_ui->key_Phase_0, m_ui->text_Phase, u8"0\u00b0"},
                  {m_ui->key_Phase_180, m_ui->text_Phase, u8"180\u00b0"},
                  {m_ui->key_subvol_prev, m_ui->text_Subwoofer_3, less},
                  {m_ui->key_subvol_next, m_ui->text_Subwoofer_3, more},
                  {m_ui->Key_balance_left, m_ui->txt_bal, u8"\u2190"},
                  {m_ui->Key_balance_right, m_ui->txt_bal, u8"\u2192"},
                  {m_ui->Key_fade_rear, m_ui->txt_fad, u8"\u2193"},
                  {m_ui->Key_fade_front, m_ui->txt_fad, u8"\u2191"}});
    const QString both = m_ui->txt_bal->text() + QLatin1Char(' ') + m_ui->txt_fad->text();
    m_pad->setAccessibleName(both);
    m_ui->Key_update->setAccessibleName(both + QStringLiteral(" 0"));
}

void Audiosetting_right_general_widget::showEvent(QShowEvent *event) {
    resume();
    updateKeyEn(general::defeat().value() != 0);
    QWidget::showEvent(event);
}

void Audiosetting_right_general_widget::resume() {
    m_subwooferLevel = general::subwooferLevel().value();
    m_ui->key_Subwoofer->setChecked(general::subwooferOn().value() != 0);
    checkExclusively(m_phaseGroup, general::subwooferPhase().value());
    m_ui->txt_vol_level->setText(QString::number(m_subwooferLevel));
}

// Switches --------------------------------------------------------------------------------------------------------

void Audiosetting_right_general_widget::on_key_advanced_clicked() {
    m_audioService->doBeep(0);
    emit advancedChanged();
}

void Audiosetting_right_general_widget::on_key_defeat_clicked() {
    m_audioService->doBeep(0);
    const bool defeat = m_ui->key_defeat->isChecked();
    general::defeat().write(int(defeat));
    if (defeat) {
        const int eqType = m_audioService->getCurrEQType();
        AUDIO_LOG << "eqType :" << eqType;
        general::eqTypeBeforeDefeat().write(eqType);
    } else {
        m_audioService->setEQType(static_cast<AudioEQType>(general::eqTypeBeforeDefeat().value()), true);
    }
    emit mem::SettingsCache::instance()->SettingsCacheSig(general::defeat().key());
    updateKeyEn(defeat);
    m_settings->updateDefeatSetup();
}

void Audiosetting_right_general_widget::updateKeyEn(bool defeat) {
    m_ui->key_defeat->setChecked(defeat);
    for (QAbstractButton *key : m_defeatedKeys) {
        key->setDisabled(defeat);
    }
    for (QLabel *caption : m_defeatedCaptions) {
        setCaptionEnabled(caption, !defeat);
    }
    if (defeat) {
        m_balance = 0;
        m_fader = 0;
    } else {
        updateSubVolButton();
        m_balance = general::balance().value();
        m_fader = general::fader().value();
    }
    m_fader = otherSign(m_fader);
    showBalanceFader();
    m_pad->setDisabled(defeat);
    m_pad->updatePos();
    updateFaderButton();
    updateBalanceButton();
}

// Subwoofer -------------------------------------------------------------------------------------------------------

void Audiosetting_right_general_widget::on_key_Subwoofer_clicked() {
    m_audioService->doBeep(0);
    const bool on = m_ui->key_Subwoofer->isChecked();
    general::subwooferOn().write(on);
    updateSubVolButton();
    // Switched off is level 0 to the microcontroller; the stored level is kept.
    mcu::McuService::instance()->setSubwooferValue(on ? m_subwooferLevel : 0);
}

void Audiosetting_right_general_widget::on_key_subvol_prev_clicked() {
    m_audioService->doBeep(0);
    setSubwooferLevel(m_subwooferLevel > 0 ? m_subwooferLevel - 1 : 0);
}

void Audiosetting_right_general_widget::on_key_subvol_next_clicked() {
    m_audioService->doBeep(0);
    setSubwooferLevel(m_subwooferLevel < general::maxSubwooferLevel ? m_subwooferLevel + 1
                                                                    : general::maxSubwooferLevel);
}

void Audiosetting_right_general_widget::setSubwooferLevel(int level) {
    m_subwooferLevel = level;
    m_ui->txt_vol_level->setText(QString::number(level));
    general::subwooferLevel().write(level);
    mcu::McuService::instance()->setSubwooferValue(level);
    updateSubVolButton();
}

void Audiosetting_right_general_widget::updateSubVolButton() {
    const bool on = general::subwooferOn().value() == 1;
    m_ui->key_subvol_prev->setEnabled(on && m_subwooferLevel > 0);
    m_ui->key_subvol_next->setEnabled(on && m_subwooferLevel < general::maxSubwooferLevel);
}

void Audiosetting_right_general_widget::onPhaseBtClicked(int id) {
    m_audioService->doBeep(0);
    if (id == 0 || id == 1) {
        general::subwooferPhase().write(id);
        mcu::McuService::instance()->setSubwooferPhase(id);
    }
}

// Balance and fader -----------------------------------------------------------------------------------------------

void Audiosetting_right_general_widget::onUpdate(int x, int y) {
    m_balance = x;
    m_fader = y;
    showBalanceFader();
    m_pad->updatePos();
    if (!m_sendTimer.isActive()) {
        m_sendTimer.start();
    }
    updateFaderButton();
    updateBalanceButton();
}

void Audiosetting_right_general_widget::onUpdateBalFadValue() {
    const int fader = otherSign(m_fader);
    general::fader().write(fader);
    general::balance().write(m_balance);
    m_audioService->setBalanceFader(m_balance, fader, true);
}

void Audiosetting_right_general_widget::on_Key_update_clicked() {
    m_audioService->doBeep(0);
    m_balance = 0;
    m_fader = 0;
    onUpdate(0, 0);
}

void Audiosetting_right_general_widget::on_Key_fade_front_clicked() {
    stepBalanceFader(0, 1);
}

void Audiosetting_right_general_widget::on_Key_balance_right_clicked() {
    stepBalanceFader(1, 0);
}

void Audiosetting_right_general_widget::on_Key_balance_left_clicked() {
    stepBalanceFader(-1, 0);
}

void Audiosetting_right_general_widget::on_Key_fade_rear_clicked() {
    stepBalanceFader(0, -1);
}

void Audiosetting_right_general_widget::stepBalanceFader(int balanceStep, int faderStep) {
    m_audioService->doBeep(0);
    // A step starts from what the service holds, not from what the page shows.
    int balance = 0;
    int fader = 0;
    m_audioService->getBalanceFader(balance, fader);
    fader = otherSign(fader);
    const auto stepped = [](int value, int step) {
        const bool room = step > 0 ? value < general::maxBalanceFader : value > -general::maxBalanceFader;
        return room ? value + step : value;
    };
    onUpdate(stepped(balance, balanceStep), stepped(fader, faderStep));
}

void Audiosetting_right_general_widget::showBalanceFader() {
    m_ui->txt_bal_val->setText(QString::number(m_balance, 10));
    m_ui->txt_fad_val->setText(QString::number(m_fader, 10));
    m_pad->setValueX(m_balance);
    m_pad->setValueY(m_fader);
}

void Audiosetting_right_general_widget::updateFaderButton() {
    updateAxisButtons(m_ui->Key_fade_front, m_ui->Key_fade_rear, m_fader);
}

void Audiosetting_right_general_widget::updateBalanceButton() {
    updateAxisButtons(m_ui->Key_balance_right, m_ui->Key_balance_left, m_balance);
}

void Audiosetting_right_general_widget::updateAxisButtons(QAbstractButton *plus, QAbstractButton *minus, int value) {
    const bool defeat = general::defeat().value() != 0;
    plus->setEnabled(!defeat && value < general::maxBalanceFader);
    minus->setEnabled(!defeat && value > -general::maxBalanceFader);
}

void Audiosetting_right_general_widget::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        nameKeys();
    }
    QWidget::changeEvent(event);
}
