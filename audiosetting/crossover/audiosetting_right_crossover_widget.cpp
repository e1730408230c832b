// SPDX-License-Identifier: Apache-2.0
#include "audiosetting_right_crossover_widget.h"

#include "audioservice.h"
#include "base/accessibility.h"
#include "base/buttongroup.h"
#include "base/debuglog.h"
#include "base/picture.h"
#include "base/presetkey.h"
#include "base/texts.h"
#include "commsystemutils.h"
#include "curvelabel.h"
#include "translator.h"
#include "ui_Audiosetting_right_crossover_widget.h"

#include <QButtonGroup>
#include <QEvent>

using namespace audiosetting;
using namespace audiosetting::crossover;

namespace {

const int levelStep = 21;  // px that a level step moves the curve
// The subwoofer's curve grows more on the way up than it shrinks on the way down. Required: cars hold the heights that
// this has left, and a recalled preset must lie where it lay when it was saved.
const int levelGrowth[channelCount] = {levelStep, levelStep, 25};
// Where a wrap of the level puts the curve. Required, though neither is a multiple of the step: the places are stored
// too.
const int wrappedTopY = 0;
const int wrappedBottomY = 250;
const int wrappedHeigh = 256;

const int curveWidth = 1050;      // px, every curve picture
const int furthest = 2000000000;  // px; beyond it the edges of a rectangle no longer fit an int

bool isChannel(int channel) {
    return channel >= 0 && channel < channelCount;
}

}  // namespace

Audiosetting_right_crossover_widget::Audiosetting_right_crossover_widget(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::Audiosetting_right_crossover_widget) {
    m_ui->setupUi(this);
    m_curves[Front] = m_ui->label_yellow;
    m_curves[Rear] = m_ui->label_green;
    m_curves[Subwoofer] = m_ui->label_red;
    connect(AudioSettingsUtils::instance(), SIGNAL(signal_flatCrossover()), this, SLOT(onResetCrossover()));
    initUi();
}

Audiosetting_right_crossover_widget::~Audiosetting_right_crossover_widget() {}

void Audiosetting_right_crossover_widget::initUi() {
    for (int channel = 0; channel < channelCount; ++channel) {
        m_curves[channel]->setCurve(slopeRow(minSlope).curves[channel]);
        const int x = channel == Subwoofer ? 0 : frequency(channel, 0).place;
        m_curves[channel]->setGeometry(x, wrappedTopY, curveWidth, wrappedHeigh);
    }
    showFrequency(Front);
    m_ui->txt_slope_value->setText(QLatin1String(slopeRow(minSlope).label));

    // Its picture is opaque: nothing behind it needs painting.
    m_ui->label_bg->setAttribute(Qt::WA_OpaquePaintEvent);
    m_ui->frame_3->setFigures(picture("crossover_figures"));

    showPicture({m_ui->label_bg}, "crossover_graph");
    showPicture({m_ui->label_keybg}, "crossover_channels_bg");
    showPicture({m_ui->label_slope_bg, m_ui->label_freq_bg, m_ui->label_level_bg}, "value_bg");

    // They lie over the channel keys.
    QLabel *const captions[] = {m_ui->txt_front1, m_ui->txt_rear, m_ui->txt_sub};
    for (QLabel *caption : captions) {
        caption->setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    m_generalGroup = new QButtonGroup(this);
    m_generalGroup->addButton(m_ui->key_front, Front);
    m_generalGroup->addButton(m_ui->key_rear, Rear);
    m_generalGroup->addButton(m_ui->key_sub, Subwoofer);
    connect(m_generalGroup, SIGNAL(buttonClicked(int)), this, SLOT(onGeneralButtonClicked(int)));

    m_presetGroup = new QButtonGroup(this);
    m_presetGroup->addButton(m_ui->key_preset_1, 0);
    m_presetGroup->addButton(m_ui->key_preset_2, 1);
    connect(m_presetGroup, SIGNAL(buttonClicked(int)), this, SLOT(onPresetButtonClicked(int)));

    saveOnHold(m_ui->key_preset_1, this, SLOT(onPreset1LongClicked()));
    saveOnHold(m_ui->key_preset_2, this, SLOT(onPreset2LongClicked()));
    for (int preset = 0; preset < presetCount; ++preset) {
        endLongClickBesideKey(presetKey(preset));
    }

    connect(m_ui->key_slope_minus, SIGNAL(clicked()), this, SLOT(onSlopMinusClicked()));
    connect(m_ui->key_slope_plus, SIGNAL(clicked()), this, SLOT(onSlopPlusClicked()));
    connect(m_ui->key_freq_minus, SIGNAL(clicked()), this, SLOT(onFreqMinusClicked()));
    connect(m_ui->key_freq_plus, SIGNAL(clicked()), this, SLOT(onFreqPlusClicked()));
    connect(m_ui->key_level_plus, SIGNAL(clicked()), this, SLOT(onLevelPlusClicked()));
    connect(m_ui->key_level_minus, SIGNAL(clicked()), this, SLOT(onLevelMinusClicked()));

    CommSystemUtils::instance()->sync_default_font(this, QStringLiteral("txt_"));
    QLabel *const values[] = {m_ui->txt_slope_value, m_ui->txt_freq_value, m_ui->txt_level_value};
    for (QLabel *value : values) {
        QFont font = value->font();
        font.setPointSize(value->property("PRO_FONT_SIZE").toInt());
        value->setFont(font);
    }
}

void Audiosetting_right_crossover_widget::showEvent(QShowEvent *event) {
    reload();
    QWidget::showEvent(event);
}

void Audiosetting_right_crossover_widget::reload() {
    resume();
    for (int channel : {Rear, Subwoofer, Front}) {
        refreshChannel(channel);
    }
    onUpdateCurrentSelect();
    retranslateUi();
}

void Audiosetting_right_crossover_widget::resume() {
    m_filters.load();
    m_type = type().value();
    if (QAbstractButton *key = m_generalGroup->button(m_type)) {
        key->setChecked(true);
    }
    for (int preset = 0; preset < presetCount; ++preset) {
        setLongClick(presetKey(preset), false);
    }
    updateCurrentPreset();
    for (int preset = 0; preset < presetCount; ++preset) {
        updatePresetBtnIcon(preset);
    }
}

// Channels --------------------------------------------------------------------------------------------------------

void Audiosetting_right_crossover_widget::onGeneralButtonClicked(int iIdx) {
    qvaudio::AudioService::instance()->doBeep(0);
    AUDIO_LOG << "iIdx:" << iIdx;
    if (isChannel(iIdx)) {
        m_type = iIdx;
        applySlope(iIdx);
        showLevel(iIdx);
        applyCurve(iIdx, m_filters.value(iIdx, Y), m_filters.value(iIdx, Heigh));
        type().write(iIdx);
    }
    updateCurrentPreset();
}

void Audiosetting_right_crossover_widget::onUpdateCurrentSelect() {
    const int channel = type().value();
    if (isChannel(channel)) {
        refreshChannel(channel);
        showLevel(channel);
        m_curves[channel]->raise();
    }
}

// Slope -----------------------------------------------------------------------------------------------------------

void Audiosetting_right_crossover_widget::stepSlope(int step) {
    qvaudio::AudioService::instance()->doBeep(0);
    if (isChannel(m_type)) {
        m_filters.stepSlope(m_type, step);
    }
    onSelectSlope();
    updateCurrentPreset();
}

void Audiosetting_right_crossover_widget::onSelectSlope() {
    if (isChannel(m_type)) {
        applySlope(m_type);
    }
}

void Audiosetting_right_crossover_widget::applySlope(int channel) {
    const int slope = m_filters.value(channel, Slope);
    if (slope >= minSlope && slope <= maxSlope) {
        const SlopeRow &row = slopeRow(slope);
        m_ui->txt_slope_value->setText(QLatin1String(row.label));
        m_curves[channel]->setCurve(row.curves[channel]);
    }
    m_filters.store(channel, Slope);
    m_filters.send(channel);
}

// Frequency -------------------------------------------------------------------------------------------------------

void Audiosetting_right_crossover_widget::stepFrequency(int step) {
    qvaudio::AudioService::instance()->doBeep(0);
    if (isChannel(m_type)) {
        m_filters.stepFrequency(m_type, step);
        applyCurve(m_type, m_filters.value(m_type, Y), m_filters.value(m_type, Heigh));
    }
    updateCurrentPreset();
}

void Audiosetting_right_crossover_widget::applyCurve(int channel, int y, int heigh) {
    CurveLabel *curve = m_curves[channel];
    const int freq = m_filters.value(channel, Freq);
    if (freq >= 0 && freq < frequencyCount(channel)) {
        showFrequency(channel);
        const int place = frequency(channel, freq).place;
        const int top = qBound(-furthest, y, furthest);
        const int height = qBound(0, heigh, QWIDGETSIZE_MAX);
        if (channel == Subwoofer) {
            curve->setGeometry(0, top, place, height);
        } else {
            curve->setGeometry(place, top, curveWidth, height);
        }
    }
    curve->raise();
    m_filters.store(channel, Freq);
    m_filters.send(channel);
}

void Audiosetting_right_crossover_widget::showFrequency(int channel) {
    const Frequency &row = frequency(channel, m_filters.value(channel, Freq));
    m_offShown = !row.label;
    m_ui->txt_freq_value->setText(row.label ? QLatin1String(row.label) : Translator::translate(texts::off));
}

// Level -----------------------------------------------------------------------------------------------------------

void Audiosetting_right_crossover_widget::onLevelPlusClicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    setLevel_Plus();
    updateCurrentPreset();
}

void Audiosetting_right_crossover_widget::onLevelMinusClicked() {
    qvaudio::AudioService::instance()->doBeep(0);
    setLevel_Minus();
    updateCurrentPreset();
}

// The steps start from where the curve lies, not from what is stored.

void Audiosetting_right_crossover_widget::setLevel_Plus() {
    if (!isChannel(m_type)) {
        return;
    }
    const int level = m_filters.value(m_type, Level);
    const QRect curve = m_curves[m_type]->geometry();
    if (level < maxLevel) {
        setLevel(level + 1, curve.y() - levelStep, curve.height() + levelGrowth[m_type]);
    } else {
        setLevel(0, wrappedBottomY, wrappedHeigh);
    }
}

void Audiosetting_right_crossover_widget::setLevel_Minus() {
    if (!isChannel(m_type)) {
        return;
    }
    const int level = m_filters.value(m_type, Level);
    const QRect curve = m_curves[m_type]->geometry();
    if (level > 0) {
        setLevel(level - 1, curve.y() + levelStep, curve.height() - levelStep);
    } else {
        setLevel(maxLevel, wrappedTopY, wrappedHeigh);
    }
}

void Audiosetting_right_crossover_widget::setLevel(int level, int y, int heigh) {
    m_filters.setValue(m_type, Level, level);
    m_filters.setValue(m_type, Y, y);
    m_filters.setValue(m_type, Heigh, heigh);
    showLevel(m_type);
    storeData(m_type, level, y, heigh);
    applyCurve(m_type, y, heigh);
}

void Audiosetting_right_crossover_widget::onSetSubwooferData(int iIndex, int y, int heigh) {
    storeData(Subwoofer, iIndex, y, heigh);
}

void Audiosetting_right_crossover_widget::showLevel(int channel) {
    m_ui->txt_level_value->setText(QString::number(qint64(m_filters.value(channel, Level)) - maxLevel));
}

void Audiosetting_right_crossover_widget::storeData(int channel, int level, int y, int heigh) {
    current(channel, Level).write(level);
    current(channel, Y).write(y);
    current(channel, Heigh).write(heigh);
}

// Presets ---------------------------------------------------------------------------------------------------------

void Audiosetting_right_crossover_widget::onPresetButtonClicked(int iIdx) {
    if (!presetSaved(iIdx).flag()) {
        updateCurrentPreset();
        return;
    }
    if (longClick(presetKey(iIdx))) {
        setLongClick(presetKey(iIdx), false);
        return;
    }
    qvaudio::AudioService::instance()->doBeep(0);
    getPreset(iIdx);
    presetDataSync();
    for (int channel : {Rear, Subwoofer, Front}) {
        refreshChannel(channel);
    }
    onUpdateCurrentSelect();
    updatePresetButton(iIdx);
}

void Audiosetting_right_crossover_widget::savePreset(int preset) {
    qvaudio::AudioService::instance()->doBeep(0);
    setLongClick(presetKey(preset), true);
    setPreset(preset);
    updatePresetBtnIcon(preset);
    updatePresetButton(preset);
}

void Audiosetting_right_crossover_widget::getPreset(int iIdx) {
    m_filters.loadPreset(iIdx);
    m_type = type().value();
}

void Audiosetting_right_crossover_widget::setPreset(int iIdx) {
    m_filters.savePreset(iIdx);
    presetType(iIdx).write(m_type);
    presetSaved(iIdx).write(true);
}

void Audiosetting_right_crossover_widget::presetDataSync() {
    m_filters.storeAll();
    for (int channel : {Subwoofer, Rear, Front}) {
        m_filters.send(channel);
    }
}

bool Audiosetting_right_crossover_widget::comparePreset(int iIdx) {
    return CrossoverFilters::matchesPreset(iIdx);
}

void Audiosetting_right_crossover_widget::updateCurrentPreset() {
    int match = 0;
    while (match < presetCount && !comparePreset(match)) {
        ++match;
    }
    updatePresetButton(match);
}

void Audiosetting_right_crossover_widget::updatePresetButton(int iIdx) {
    checkExclusively(m_presetGroup, iIdx);
}

void Audiosetting_right_crossover_widget::updatePresetBtnIcon(int iIdx) {
    showPreset(presetKey(iIdx), iIdx, presetSaved(iIdx).flag());
}

// Helpers ---------------------------------------------------------------------------------------------------------

void Audiosetting_right_crossover_widget::refreshChannel(int channel) {
    applySlope(channel);
    applyCurve(channel, m_filters.value(channel, Y), m_filters.value(channel, Heigh));
}

QAbstractButton *Audiosetting_right_crossover_widget::presetKey(int preset) const {
    return preset == 0 ? m_ui->key_preset_1 : m_ui->key_preset_2;
}

void Audiosetting_right_crossover_widget::retranslateUi() {
    m_ui->txt_front1->setText(Translator::translate(texts::front));
    m_ui->txt_slope->setText(Translator::translate(texts::slope));
    m_ui->txt_freq->setText(Translator::translate(texts::frequency));
    m_ui->txt_sub->setText(Translator::translate(texts::subwoofer));
    m_ui->txt_rear->setText(Translator::translate(texts::rear));
    m_ui->txt_level->setText(Translator::translate(texts::level));
    nameControls({{m_ui->key_front, m_ui->txt_front1, nullptr},
                  {m_ui->key_rear, m_ui->txt_rear, nullptr},
                  {m_ui->key_sub, m_ui->txt_sub, nullptr},
                  {m_ui->key_slope_minus, m_ui->txt_slope, less},
                  {m_ui->key_slope_plus, m_ui->txt_slope, more},
                  {m_ui->key_freq_minus, m_ui->txt_freq, less},
                  {m_ui->key_freq_plus, m_ui->txt_freq, more},
                  {m_ui->key_level_minus, m_ui->txt_level, less},
                  {m_ui->key_level_plus, m_ui->txt_level, more},
                  {m_ui->key_preset_1, m_ui->txt_slope_2, "1"},
                  {m_ui->key_preset_2, m_ui->txt_slope_2, "2"}});
}

void Audiosetting_right_crossover_widget::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        retranslateUi();
        if (m_offShown) {
            m_ui->txt_freq_value->setText(Translator::translate(texts::off));
        }
    }
    QWidget::changeEvent(event);
}
