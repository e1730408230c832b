// SPDX-License-Identifier: Apache-2.0
#include "eqwidget.h"

#include "audioservice.h"
#include "base/accessibility.h"
#include "base/debuglog.h"
#include "base/look.h"
#include "base/picture.h"
#include "base/posttouch.h"
#include "base/texts.h"
#include "dragvalue.h"
#include "eqtable.h"
#include "sliderbarwidget.h"
#include "translator.h"
#include "ui_eq_adjust_fragment.h"

#include <QEvent>
#include <QImage>
#include <QPixmapCache>
#include <QRegularExpression>

#include <limits>

namespace audiosetting {

namespace {

const int sendInterval = 50;  // ms; a moving finger sends at most one value in this time

const int barWidth = 16;
const QRect sliderRect(38, 60, 60, 371);  // px, of the first band
const int bandStep = 94;                  // px
const int dragValueY = 50;                // px, in the panel: above the band's own gain
const int coveringPoint = 36;             // px: a finger on a knob that is no lower covers the band's own gain

const int centerPoints[] = {0,   7,   20,  36,  54,  71,  85,  101, 116, 131, 146, 161, 176,
                            191, 206, 222, 237, 252, 267, 283, 298, 313, 328, 343, 353};
const int borderPoints[] = {10,  18,  23,  41,  58,  75,  93,  110, 124, 138, 152, 163, 180,
                            193, 209, 226, 241, 256, 270, 285, 302, 316, 330, 346, 371};
const unsigned int pointCount = sizeof(centerPoints) / sizeof(centerPoints[0]);

// The panel's own curves; the id is that of the name's text, and the last three bands are always 0 dB.
const QList<tagAudioEQItem_T> &panelCurves() {
    static const QList<tagAudioEQItem_T> table = {
        {0, texts::curveFlat, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {1, texts::curveDynamic, {1, 3, 5, 0, -1, 0, -2, 0, 3, 1, 0, 0, 0}},
        {3, texts::curveRock, {0, 4, 4, 0, -1, -1, 0, 3, 6, 4, 0, 0, 0}},
        {2, texts::curvePop, {-1, 3, 3, 2, 0, -1, -1, 0, 2, 1, 0, 0, 0}},
        {8, texts::curveHipHop, {0, 4, 5, 2, 0, -1, -2, -1, 0, -1, 0, 0, 0}},
        {7, texts::curveJazz, {1, 3, 2, 1, 0, 0, 1, 2, 1, 0, 0, 0, 0}},
        {21, texts::curveClassic, {1, 2, 2, 1, 0, -1, 0, 1, 2, 2, 0, 0, 0}},
        {16, texts::curveCustom, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
    };
    return table;
}

qvaudio::AudioService *audio() {
    return qvaudio::AudioService::instance();
}

int gainOfLevel(int level) {
    return eq::fromOtherEnd(eq::maxGain, level);
}

}  // namespace

EQWidget::EQWidget(QWidget *parent) : QWidget(parent), m_look(new Look), m_ui(new Ui::eq_adjust_fragment) {
    m_look->colourTexts(this);
    m_ui->setupUi(this);
    m_look->dressKeys(this);
    m_sendTimer.setSingleShot(true);
    m_sendTimer.setTimerType(Qt::PreciseTimer);
    init();
}

EQWidget::~EQWidget() {
    delete m_knob;
    QPixmapCache::clear();  // required: the panel is large and seldom shown, its pictures must not stay
}

void EQWidget::init() {
    // Backgrounds and the caption lie over keys and bands: touches go through.
    QLabel *const overlays[] = {m_ui->bg_base, m_ui->bg_txt, m_ui->Txt_reset};
    for (QLabel *overlay : overlays) {
        overlay->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    // The form's own pictures are not those of a dense display.
    m_ui->bg_base->setPixmap(pictureAt(QStringLiteral(":/halverv2_icon/eq_bg_popup_base_n")));
    m_ui->bg_txt->setPixmap(pictureAt(QStringLiteral(":/halverv2_icon/eq_txt")));
    const QPixmap track = pictureAt(QStringLiteral(":/halverv2_icon/eq_sdlik_p"));
    const QList<QLabel *> tracks = findChildren<QLabel *>(QRegularExpression(QStringLiteral("^track_")));
    for (QLabel *label : tracks) {
        label->setPixmap(track);
    }
    connect(m_ui->key_reset, SIGNAL(clicked()), this, SLOT(onResetEqValue()));
    connect(m_ui->key_back, SIGNAL(clicked()), this, SLOT(onBackKeyClicked()));

    m_knob = new QImage(pictureAt(QStringLiteral(":/halverv2_icon/setup_bg_sliding_point")).toImage());
    DragValue *dragValue = new DragValue(this, dragValueY, coveringPoint);
    for (int band = 0; band < eqBandCount; ++band) {
        m_gains.append(0);
        createSlider(band);
        dragValue->follow(m_sliders.at(band));
    }
    retranslateUi();
    updateEqVal();
}

void EQWidget::createSlider(int band) {
    // Ten bands lie in view; the others exist beyond the right edge of their parent.
    cm::SliderBarWidget *slider = new cm::SliderBarWidget(m_ui->bands);
    slider->setId(band);
    slider->setGeometry(sliderRect.translated(bandStep * band, 0));
    slider->setImage(m_knob);
    slider->setBarWidth(barWidth);
    slider->setCenterPoint(centerPoints, pointCount);
    slider->setBorderPoint(borderPoints, pointCount);
    slider->show();
    m_sliders.append(slider);
    connect(slider, SIGNAL(press(int, int)), this, SLOT(update_eq_section_drag(int, int)));
    connect(slider, SIGNAL(release(int, int)), this, SLOT(save_eq_section_drag(int, int)));
}

void EQWidget::showEvent(QShowEvent *event) {
    onUpdateCustomEqData();
    updateName();
    QWidget::showEvent(event);
}

void EQWidget::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslateUi();
    }
    QWidget::changeEvent(event);
}

void EQWidget::retranslateUi() {
    m_ui->Txt_reset->setText(Translator::translate(texts::flat));
    nameControls({{m_ui->key_reset, m_ui->Txt_reset, nullptr},
                  {m_ui->key_left, m_ui->txt_title, u8"\u2190"},
                  {m_ui->key_right, m_ui->txt_title, u8"\u2192"}});
    for (int band = 0; band < eqBandCount; ++band) {
        m_sliders.at(band)->setAccessibleName(QLatin1String(eq::bandCaption(band)));
    }
    updateName();
}

// The curve in force ----------------------------------------------------------------------------------------------

void EQWidget::updateEqVal() {
    const int type = audio()->getCurrEQType();
    AUDIO_LOG << "eqType :" << type;
    if (type == AudioEQCustom) {
        updateCustomEQ();
    } else {
        tagAudioEQItem_T item = eq::curveOfType(panelCurves(), type);
        updateEqBar(item);
        updateAllEqLabels(item);
    }
    updateName();
}

void EQWidget::updateEqBar(tagAudioEQItem_T &item) {
    for (int band = 0; band < eqBandCount; ++band) {
        m_sliders.at(band)->setBarLevel(eq::levelOfGain(item.gain[band]));
    }
}

void EQWidget::updateAllEqLabels(tagAudioEQItem_T &item) {
    for (int band = 0; band < eqBandCount; ++band) {
        updateEqLabel(band, item.gain[band]);
    }
}

void EQWidget::updateCustomEQ() {
    for (int band = 0; band < eqBandCount; ++band) {
        const int gain = audio()->getCustomEq(band);
        m_sliders.at(band)->setBarLevel(eq::fromOtherEnd(eq::maxGain, gain));
        updateEqLabel(band, gain);
    }
}

void EQWidget::updateEqLabel(int band, int gain) {
    if (!eq::isBand(band)) {
        return;
    }
    // Looked up each time: a host may add labels for the bands beyond the tenth.
    if (QLabel *label = findChild<QLabel *>(QStringLiteral("val_%1").arg(band))) {
        label->setText(toEQString(gain));
    }
}

QString EQWidget::toEQString(const int &gain) {
    return (gain >= 1 ? QStringLiteral("+%1") : QStringLiteral("%1")).arg(gain);
}

QString EQWidget::getEQName() {
    const int row = eq::findByType(panelCurves(), audio()->getCurrEQType());
    return row < 0 ? QString() : Translator::translate(panelCurves().at(row).id);
}

void EQWidget::updateName() {
    m_ui->txt_name->setText(getEQName());
}

// Sliders ---------------------------------------------------------------------------------------------------------

void EQWidget::update_eq_section_drag(int section, int value) {
    eq_section_drag_event(section, value, true);
    setEqBarValue(section, value);
}

void EQWidget::save_eq_section_drag(int section, int value) {
    eq_section_drag_event(section, value, false);
}

void EQWidget::eq_section_drag_event(int section, int level, bool moving) {
    if (audio()->getCurrEQType() != AudioEQCustom) {
        audio()->setEQType(AudioEQCustom, true);
    }
    if (moving) {
        if (m_sendTimer.isActive()) {
            return;
        }
        m_sendTimer.start(sendInterval);
    } else {
        m_sendTimer.stop();
    }
    audio()->setCustomEq(gainOfLevel(level), section, true);
}

void EQWidget::setEqBarValue(int section, int level) {
    updateName();
    if (!eq::isBand(section)) {
        AUDIO_LOG << "no such band:" << section;
        return;
    }
    m_gains[section] = gainOfLevel(level);
    m_sliders.at(section)->setBarLevel(level);
    updateEqLabel(section, m_gains.at(section));
}

// Keys ------------------------------------------------------------------------------------------------------------

void EQWidget::onBackKeyClicked() {
    audio()->doBeep(0);
    postTouch(Qx::TouchBack);
}

void EQWidget::on_key_left_clicked() {
    audio()->doBeep(0);
    prevEQType();
    afterStep();
}

void EQWidget::on_key_right_clicked() {
    audio()->doBeep(0);
    nextEQType();
    afterStep();
}

void EQWidget::afterStep() {
    updateName();
    if (audio()->getCurrEQType() == AudioEQCustom) {
        onSaveCustomEqValue();
    }
    updateEqVal();
}

// Stepping passes through every number, also those without a curve of their own. Required: a unit's service may have
// curves there that this panel has no name for.
void EQWidget::prevEQType() {
    const int type = audio()->getCurrEQType();
    const bool last = type == AudioEQCustom || type == std::numeric_limits<int>::max();
    audio()->setEQType(static_cast<AudioEQType>(last ? 0 : type + 1), true);
}

void EQWidget::nextEQType() {
    const int type = audio()->getCurrEQType();
    const bool first = type == AudioEQFlat || type == std::numeric_limits<int>::min();
    audio()->setEQType(static_cast<AudioEQType>(first ? int(AudioEQCustom) : type - 1), true);
}

void EQWidget::onEqTypeChanged(int type) {
    AUDIO_LOG << "eqType :" << type;
    updateName();
    onSaveCustomEqValue();
    updateEqVal();
}

void EQWidget::onSaveCustomEqValue() {
    for (int band = 0; band < eqBandCount; ++band) {
        audio()->setCustomEq(m_gains.at(band), band, true);
    }
}

void EQWidget::onUpdateCustomEqData() {
    for (int band = 0; band < eqBandCount; ++band) {
        m_gains[band] = audio()->getCustomEq(band);
    }
}

void EQWidget::onResetEqValue() {
    audio()->doBeep(0);
    audio()->setEQType(AudioEQFlat, true);
    // The last three bands are left as they are. Required: the command covers the ten bands that the panel shows.
    for (int band = 0; band < eq::resetBandCount; ++band) {
        setEqBarValue(band, eq::flatLevel);
    }
    onSaveCustomEqValue();
}

}  // namespace audiosetting
