// SPDX-License-Identifier: Apache-2.0
#include "audiosettingsreset.h"

#include "audioservice.h"
#include "audiosettingsutils.h"
#include "base/accessibility.h"
#include "base/picture.h"
#include "base/texts.h"
#include "crossover/crossoversettings.h"
#include "eq/eqsettings.h"
#include "general/generalsettings.h"
#include "mcuservice.h"
#include "resetsettings.h"
#include "settingscache.h"
#include "sourcegainsettings.h"
#include "timing/timingsettings.h"
#include "translator.h"
#include "ui_Audiosettingsreset.h"
#include "volumesettings.h"

#include <QEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QTimer>

using namespace audiosetting;

namespace {

const int delaysEnabled = 1;
const int firstPreset = 0;         // the custom curve that the reset sends
const int defaultVolumeCount = 5;  // channels that have a "default_volume%1"
const int resetVolume = 15;
const int donePeriod = 2500;  // ms for which the success is shown

// The form is centred in the page area, its panel 24 px from the top bar and from the screen's lower edge. So the
// dialog begins behind the top bar, and the mask takes that part away: Back and Close are seen and touched.
const int pageAreaTop = 130;
const int pageAreaHeight = 470;
const int dialogTop = 65;

void applyCustomCurve() {
    qvaudio::AudioService *const audio = qvaudio::AudioService::instance();
    audio->setEQType(AudioEQCustom, true);
    for (int band = 0; band < eqBandCount; ++band) {
        // Band first, value second, the other way round than the EQ pages. Required: with the defaults every value is
        // 12, and what a unit plays after a reset must stay what it was.
        audio->setCustomEq(band, eq::presetLevel(firstPreset, band).value(), true);
    }
}

struct Filter {
    int frequency;
    int slope;
    int level;
};

Filter storedFilter(int channel) {
    const int frequency = crossover::current(channel, crossover::Freq).value();
    const int slope = crossover::current(channel, crossover::Slope).value();
    const int level = crossover::current(channel, crossover::Level).value();
    return {frequency, slope, level};
}

void applyLowPass() {
    const Filter filter = storedFilter(crossover::Subwoofer);
    mcu::McuService::instance()->setLPFValue(filter.frequency, filter.slope, filter.level);
}

void applyRearFilter() {
    const Filter filter = storedFilter(crossover::Rear);
    mcu::McuService::instance()->setCrossoverRearFreq(filter.frequency, filter.slope, filter.level);
}

void applyFrontFilter() {
    const Filter filter = storedFilter(crossover::Front);
    mcu::McuService::instance()->setCrossoverFrontFreq(filter.frequency, filter.slope, filter.level);
}

// The reset's own way: the rear's frequency for the slope (with 0 for its default) and the rear's level. Required: what
// a unit plays after a reset must stay what it was; the Crossover page sends its own triple when it is next shown.
void resetFrontFilter() {
    const int frequency = crossover::current(crossover::Front, crossover::Freq).value();
    const int slope = crossover::current(crossover::Rear, crossover::Freq).value();
    const int level = crossover::current(crossover::Rear, crossover::Level).value();
    mcu::McuService::instance()->setCrossoverFrontFreq(frequency, slope, level);
}

void applyDelays() {
    int delays[timing::outputCount];
    for (int output = 0; output < timing::outputCount; ++output) {
        delays[output] = reset::delay(output).value();
    }
    mcu::McuService::instance()->setAudioTimerDelay(delaysEnabled, delays);
}

// The stored gains without the offset that the Source Gain page adds. DAB, the last
// source, keeps its own, as drivers know it. Required: what a unit plays after a reset must
// stay what it was; a slider sends the gain with the offset when it is next moved.
void applySourceGains() {
    for (int source = 0; source < sourcegain::Dab; ++source) {
        mcu::McuService::instance()->setAudioInputGainValue(source, sourcegain::gain(source).value());
    }
}

}  // namespace

Audiosettingsreset::Audiosettingsreset(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::Audiosettingsreset), m_settings(AudioSettingsUtils::instance()) {
    m_ui->setupUi(this);
    setGeometry(0, dialogTop, width(), pageAreaTop + pageAreaHeight - dialogTop);
    setMask(QRect(0, pageAreaTop - dialogTop, width(), pageAreaHeight));
    initUi();
}

Audiosettingsreset::~Audiosettingsreset() {}

void Audiosettingsreset::initUi() {
    m_ui->Txt_accept->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_ui->txt_reset_success->hide();
    connect(m_ui->Key_Reject, SIGNAL(clicked()), this, SLOT(onRejectClicked()));
    connect(m_ui->Key_accept, SIGNAL(clicked()), this, SLOT(onAcceptClicked()));

    const struct {
        QLabel *label;
        int pointSize;
        bool bold;
    } texts[] = {
        {m_ui->txt_reset_success, 45, false},
        {m_ui->Txt_0012_item_01, 30, false},
        {m_ui->Txt_0012_item_04, 30, true},
        {m_ui->txt_Title, 36, true},
    };
    for (const auto &text : texts) {
        QFont font = this->font();
        font.setPointSize(text.pointSize);
        font.setBold(text.bold || font.bold());
        text.label->setFont(font);
    }
    showPicture({m_ui->reset_bg}, "audio_reset_bg");
    m_question << m_ui->reset_bg << m_ui->Key_Reject << m_ui->Txt_accept << m_ui->Key_accept << m_ui->txt_Title
               << m_ui->Txt_0012_item_01 << m_ui->Txt_0012_item_04;
}

void Audiosettingsreset::showEvent(QShowEvent *event) {
    retranslateUi();
    setAsking(true);
    QWidget::showEvent(event);
}

void Audiosettingsreset::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslateUi();
    }
    QWidget::changeEvent(event);
}

void Audiosettingsreset::paintEvent(QPaintEvent *event) {
    // The settings root behind the dialog steps back.
    QPainter(this).fillRect(event->rect(), QColor(6, 9, 13, 205));
}

void Audiosettingsreset::retranslateUi() {
    m_ui->Txt_0012_item_01->setText(Translator::translate(texts::resetWarning));
    m_ui->Txt_0012_item_04->setText(Translator::translate(texts::resetQuestion));
    m_ui->Txt_accept->setText(Translator::translate(texts::resetYes));
    m_ui->txt_Title->setText(Translator::translate(texts::resetAlert));
    m_ui->txt_reset_success->setText(Translator::translate(texts::resetDone));
    nameControls({{m_ui->Key_accept, m_ui->Txt_accept, nullptr}});  // that of Cancel is the form's
}

void Audiosettingsreset::setAsking(bool asking) {
    for (QWidget *part : m_question) {
        part->setVisible(asking);
    }
    m_ui->txt_reset_success->setVisible(!asking);
}

void Audiosettingsreset::onRejectClicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    emit rejectClicked();
}

void Audiosettingsreset::onAcceptClicked() {
    qvaudio::AudioService *const audio = qvaudio::AudioService::instance();
    audio->doBeep(0);
    setAsking(false);
    m_settings->clear(QStringLiteral("/media/flash/nvm/factory/audiosettings.ini"));

    audio->setBalanceFader(0, 0, true);
    mcu::McuService::instance()->setSubwooferValue(general::subwooferLevel().value());
    mcu::McuService::instance()->setLoudness(general::loudness().flag());
    applyCustomCurve();
    applyLowPass();
    applyRearFilter();
    resetFrontFilter();
    applyDelays();
    applySourceGains();
    for (int type = 0; type < volume::channelCount; ++type) {
        audio->setVolumeLevel(resetVolume, type);
    }
    audio->setEQType(AudioEQPop, true);

    QTimer::singleShot(donePeriod, Qt::PreciseTimer, this, SLOT(onDelayhidePop()));
    emit mem::SettingsCache::instance()->SettingsCacheSig(general::defeat().key());
}

// Also where the driver has left the dialog meanwhile. Required: the container leads to the settings root on this
// signal.
void Audiosettingsreset::onDelayhidePop() {
    emit acceptClicked();
}

// On their own ----------------------------------------------------------------------------------------------------

void Audiosettingsreset::makeEQDefaultEffect() {
    qvaudio::AudioService *const audio = qvaudio::AudioService::instance();
    audio->setEQType(AudioEQCustom, true);
    for (int band = 0; band < eqBandCount; ++band) {
        audio->setCustomEq(0, band, true);
    }
    audio->setEQType(AudioEQFlat, true);
}

void Audiosettingsreset::makeVolumeDefaultEffect() {
    for (int type = 0; type < defaultVolumeCount; ++type) {
        mcu::McuService::instance()->setAudioVolumeValue(type, reset::defaultVolume(type).value());
    }
}

void Audiosettingsreset::makeCrossoverDefaultEffect() {
    applyFrontFilter();
    applyRearFilter();
    applyLowPass();
}

void Audiosettingsreset::makeSourceGainDefaultEffect() {
    applySourceGains();
}
