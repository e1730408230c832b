#include "audiosetting_right_eq_widget.h"

#include "audioservice.h"
#include "base/debuglog.h"
#include "base/picture.h"
#include "eqsettings.h"
#include "eqtable.h"
#include "labelbutton.h"
#include "sliderbarwidget.h"
#include "translator.h"
#include "ui_Audiosetting_right_eq_widget.h"

#include <QButtonGroup>
#include <QEvent>

using namespace audiosetting;

namespace {

const int textFlat = 1073;

const int commitDelay = 80;     // ms; a drag sends the curve at most once in this time
const int selectionDelay = 20;  // ms from showing a preset curve to the selection of a slot
const int resetBandCount = 10;

const int barWidth = 16;
const int bandPointSize = 16;

// Geometry of a band, in pixels; x counts from the band's own left edge.
const int firstBandX = 3;
const int bandStep = 68;
const QRect sliderRect(0, 68, 36, 164);
const QRect trackRect(10, 68, 16, 164);
const QRect captionRect(-4, 330, 44, 22);
const QRect stepKeyRect(-2, 0, 40, 40);
const int downKeyY = 260;

// The irregular last steps are required: the knob ends at the track, and the lowest touch zone is that much longer.
const int centerPoints[] = {0,  5,  11, 16, 22, 28,  33,  39,  44,  50,  56,  61, 67,
                            72, 78, 83, 89, 95, 100, 106, 111, 117, 123, 128, 137};
const int borderPoints[] = {5,  11, 16, 22, 28,  33,  39,  44,  50,  56,  61,  67, 72,
                            78, 83, 89, 95, 100, 106, 111, 117, 123, 128, 135, 137};
const unsigned int pointCount = sizeof(centerPoints) / sizeof(centerPoints[0]);

const char *const bandCaptions[eqBandCount] = {"63",   "100",  "160", "250",  "400", "630", "1k",
                                               "1.6k", "2.5k", "4k",  "6.3k", "10k", "16k"};

qvaudio::AudioService *audio() {
    return qvaudio::AudioService::instance();
}

}  // namespace

Audiosetting_right_eq_widget::Audiosetting_right_eq_widget(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::Audiosetting_right_eq_widget) {
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
    m_sliders.clear();

    QPushButton *const slotKeys[] = {m_ui->key_custom1, m_ui->key_custom2, m_ui->key_custom3, m_ui->key_custom4,
                                     m_ui->key_custom5};
    m_slotGroup = new QButtonGroup(this);
    for (int slot = 0; slot < eq::slotCount; ++slot) {
        m_slotGroup->addButton(slotKeys[slot], slot);
    }
    connect(m_slotGroup, SIGNAL(buttonPressed(int)), this, SLOT(onButtonCustomPressed(int)));
    connect(m_slotGroup, SIGNAL(buttonReleased(int)), this, SLOT(onbuttonCustomClicked(int)));
    m_ui->key_flat->setCheckable(false);

    for (int band = 0; band < eqBandCount; ++band) {
        m_levels.append(0);
        createBand(band);
    }

    m_captions << m_ui->Txt_custom1 << m_ui->Txt_custom2 << m_ui->Txt_custom3 << m_ui->Txt_custom4 << m_ui->Txt_custom5;
    m_emptyIcons << m_ui->Icn_preset_1 << m_ui->Icn_preset_2 << m_ui->Icn_preset_3 << m_ui->Icn_preset_4
                 << m_ui->Icn_preset_5;
    const QPixmap emptyPicture = picture("eq_preset_icon");
    for (QLabel *icon : m_emptyIcons) {
        icon->setPixmap(emptyPicture);  // the form's own is not that of a dense display
    }
    // Captions and pictures lie over their keys: touches go through.
    const QList<QLabel *> overlays = m_captions + m_emptyIcons + (QList<QLabel *>() << m_ui->Txt_flat);
    for (QLabel *overlay : overlays) {
        overlay->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

void Audiosetting_right_eq_widget::createBand(int band) {
    const int x = firstBandX + bandStep * band;

    QLabel *track = new QLabel(m_ui->widget);
    track->setGeometry(trackRect.translated(x, 0));
    track->setPixmap(picture("audiosetting_eq_slider_n"));

    cm::SliderBarWidget *slider = new cm::SliderBarWidget(m_ui->widget);
    slider->setId(band);
    slider->setGeometry(sliderRect.translated(x, 0));
    slider->setImage(m_knobImage);
    slider->addFreqLevel(eq::levelGains());
    slider->setBarWidth(barWidth);
    slider->setCenterPoint(centerPoints, pointCount);
    slider->setBorderPoint(borderPoints, pointCount);
    slider->show();
    m_sliders.append(slider);
    connect(slider, SIGNAL(valueChanged(int, int)), this, SLOT(update_eq_section_drag(int, int)));

    m_upKeys.append(createStepKey(band, stepKeyRect.y(), QStringLiteral("eq_up"), SLOT(onBarPrevClicked(int))));
    m_downKeys.append(createStepKey(band, downKeyY, QStringLiteral("eq_next"), SLOT(onBarNextClicked(int))));

    QLabel *caption = new QLabel(QLatin1String(bandCaptions[band]), m_ui->widget);
    caption->setGeometry(captionRect.translated(x, 0));
    caption->setAlignment(Qt::AlignCenter);
    QFont captionFont = font();
    captionFont.setPointSize(bandPointSize);
    caption->setFont(captionFont);
}

cm::LabelButton *Audiosetting_right_eq_widget::createStepKey(int band, int y, const QString &picture,
                                                             const char *slot) {
    cm::LabelButton *key = new cm::LabelButton(m_ui->widget);
    key->setGeometry(QRect(QPoint(firstBandX + bandStep * band + stepKeyRect.x(), y), stepKeyRect.size()));
    key->setGroupId(band);
    const QString path = QStringLiteral("qrc:/corvina_icon/%1_%2.png");
    key->setBgPathNormalOff(QUrl(path.arg(picture, QStringLiteral("n"))));
    key->setBgPathNormalOn(QUrl(path.arg(picture, QStringLiteral("p"))));
    key->setBgPathDisable(QUrl(path.arg(picture, QStringLiteral("d"))));
    connect(key, SIGNAL(clicked(int)), this, slot);
    return key;
}

void Audiosetting_right_eq_widget::showEvent(QShowEvent *event) {
    retranslateUi();
    onUpdateCustomEqData();
    if (audio()->getCurrEQType() != AudioEQCustom) {
        updateEqVal();
        QTimer::singleShot(selectionDelay, this, SLOT(onSliderBarWidgetCompeted()));
    } else {
        updateCustomEqUi(eq::lastSlot().value());
        updateEqVal();
    }
    updatePrevNextAllUi();
    QWidget::showEvent(event);
}

void Audiosetting_right_eq_widget::retranslateUi() {
    for (int slot = 0; slot < eq::slotCount; ++slot) {
        const bool stored = eq::slotStored(slot).flag();
        m_captions.at(slot)->setVisible(stored);
        m_emptyIcons.at(slot)->setVisible(!stored);
    }
    m_ui->Txt_flat->setText(Translator::translate(textFlat));
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
        tagAudioEQItem_T item = eq::curveOfType(eq::presets(), type);
        updateEqBar(item);
    } else {
        updateCustomEQ();
        updateCurrentSelect();
    }
}

void Audiosetting_right_eq_widget::updateEqBar(tagAudioEQItem_T &item) {
    for (int band = 0; band < eqBandCount; ++band) {
        m_sliders.at(band)->setBarLevel(eq::levelOfGain(item.gain[band]));
    }
}

void Audiosetting_right_eq_widget::updateCustomEQ() {
    // Unclamped: the band-adjust panel keeps values of another scale, and editing one band commits all thirteen.
    for (int band = 0; band < eqBandCount; ++band) {
        m_sliders.at(band)->setBarLevel(eq::fromOtherEnd(eq::maxLevel, eq::liveBand(band).value()));
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
    for (int band = 0; band < resetBandCount; ++band) {
        setEqBarValue(band, eq::flatLevel);
    }
    onSaveCustomEqValue();
}

void Audiosetting_right_eq_widget::on_key_flat_clicked() {
    audio()->doBeep(0);
    audio()->setEQType(AudioEQFlat, true);
    eq::highlightedSlot().write(eq::noSlot);
    updateEqVal();
    updateCurrentSelect();
    updatePrevNextAllUi();
}

void Audiosetting_right_eq_widget::onSetFlatEq() {
    updateEqVal();
}

// Sliders and step keys -------------------------------------------------------------------------------------------

void Audiosetting_right_eq_widget::update_eq_section_drag(int section, int value) {
    eq::highlightedSlot().write(eq::noSlot);
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
    if (section < 0 || section >= eqBandCount) {
        AUDIO_LOG << "no such band:" << section;
        return;
    }
    m_levels[section] = value;
    m_sliders.at(section)->setBarLevel(value);
}

void Audiosetting_right_eq_widget::onCustomEqValueDelay() {
    for (int band = 0; band < eqBandCount; ++band) {
        updateCustomEqValue(band, m_sliders.at(band)->getLevel());
    }
    updateCurrentSelect();
}

void Audiosetting_right_eq_widget::updateCustomEqValue(int band, int level) {
    const int slot = eq::lastSlot().value();
    if (slot < 0 || slot >= eq::slotCount) {
        AUDIO_LOG << "custom_eq_type_id:" << slot;
        return;
    }
    // Always type 16, whichever slot was last used. Required: the service has one live custom curve, and Factory EQ and
    // the panel know it by this number.
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
    if (band < 0 || band >= eqBandCount) {
        AUDIO_LOG << "no such band:" << band;
        return;
    }
    (m_sliders.at(band)->*step)();
    updatePrevNextById(band);
}

void Audiosetting_right_eq_widget::updatePrevNextAllUi() {
    for (int band = 0; band < eqBandCount; ++band) {
        updatePrevNextById(band);
    }
}

void Audiosetting_right_eq_widget::updatePrevNextById(int band) {
    if (band < 0 || band >= eqBandCount) {
        AUDIO_LOG << "no such band:" << band;
        return;
    }
    const int level = m_sliders.at(band)->getLevel();
    m_upKeys.at(band)->setEnabled(level >= 1);
    m_downKeys.at(band)->setEnabled(level < eq::maxLevel);
}
