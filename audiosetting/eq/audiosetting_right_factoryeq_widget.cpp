// SPDX-License-Identifier: Apache-2.0
#include "audiosetting_right_factoryeq_widget.h"

#include "audioservice.h"
#include "base/accessibility.h"
#include "base/buttongroup.h"
#include "base/debuglog.h"
#include "eqsettings.h"
#include "eqtable.h"
#include "ui_Audiosetting_right_factoryeq_widget.h"

#include <QButtonGroup>
#include <QEvent>

using namespace audiosetting;

namespace {

void select(AudioEQType type) {
    qvaudio::AudioService::instance()->setEQType(type, true);
}

}  // namespace

Audiosetting_right_factoryeq_widget::Audiosetting_right_factoryeq_widget(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::Audiosetting_right_factoryeq_widget) {
    m_ui->setupUi(this);
    initUi();
}

Audiosetting_right_factoryeq_widget::~Audiosetting_right_factoryeq_widget() {}

void Audiosetting_right_factoryeq_widget::initUi() {
    const struct {
        QPushButton *key;
        QLabel *caption;
        AudioEQType type;
    } presets[] = {
        {m_ui->key_Rock, m_ui->txt_Rock, AudioEQRock},
        {m_ui->key_hiphop, m_ui->txt_hiphop, AudioEQHipHop},
        {m_ui->key_electronic, m_ui->txt_electronic, AudioEQElectronic},
        {m_ui->key_jazz, m_ui->txt_jazz, AudioEQJazz},
        {m_ui->key_pop, m_ui->txt_pop, AudioEQPop},
        {m_ui->key_flat, m_ui->txt_flat, AudioEQFlat},
    };
    m_group = new QButtonGroup(this);
    for (const auto &preset : presets) {
        m_group->addButton(preset.key, m_types.size());
        m_types.append(preset.type);
        // The captions lie over the keys: touches go through.
        preset.caption->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
    connect(m_group, SIGNAL(buttonClicked(int)), this, SLOT(onButtoneEqClicked(int)));
    nameKeys();
}

void Audiosetting_right_factoryeq_widget::nameKeys() {
    nameControls({{m_ui->key_Rock, m_ui->txt_Rock, nullptr},
                  {m_ui->key_hiphop, m_ui->txt_hiphop, nullptr},
                  {m_ui->key_electronic, m_ui->txt_electronic, nullptr},
                  {m_ui->key_jazz, m_ui->txt_jazz, nullptr},
                  {m_ui->key_pop, m_ui->txt_pop, nullptr},
                  {m_ui->key_flat, m_ui->txt_flat, nullptr}});
}

void Audiosetting_right_factoryeq_widget::showEvent(QShowEvent *event) {
    resume();
    QWidget::showEvent(event);
}

void Audiosetting_right_factoryeq_widget::resume() {
    qvaudio::AudioService *const audio = qvaudio::AudioService::instance();
    int type = audio->getCurrEQType();
    AUDIO_LOG << "eqType :" << type;
    if (type == AudioEQCustom) {
        QList<int> levels;
        for (int band = 0; band < eqBandCount; ++band) {
            levels.append(eq::fromOtherEnd(eq::maxLevel, audio->getCustomEq(band)));
        }
        for (AudioEQType preset : m_types) {
            const tagAudioEQItem_T &item = eq::curves().at(findItemIndexByType(preset));
            if (eqCompareList(item, levels)) {
                type = item.type;
                break;
            }
        }
    }
    setButtonInitClick(type);
}

void Audiosetting_right_factoryeq_widget::setButtonInitClick(int type) {
    checkExclusively(m_group, m_types.indexOf(static_cast<AudioEQType>(type)));
}

int Audiosetting_right_factoryeq_widget::findItemIndexByType(int type) {
    return qMax(0, eq::findByType(eq::curves(), type));
}

bool Audiosetting_right_factoryeq_widget::eqCompareList(tagAudioEQItem_T item, QList<int> levels) {
    if (levels.size() != eqBandCount) {
        AUDIO_LOG << "levels:" << levels.size();
        return false;
    }
    for (int band = 0; band < eqBandCount; ++band) {
        if (levels.at(band) != eq::levelOfGain(item.gain[band])) {
            return false;
        }
    }
    return true;
}

void Audiosetting_right_factoryeq_widget::onButtoneEqClicked(int iIdx) {
    AUDIO_LOG << "iIdx:" << iIdx;
    qvaudio::AudioService::instance()->doBeep(0);
    // The EQ page shows none of the driver's own curves as selected any more.
    eq::highlightedPreset().write(eq::noPreset);
    switch (iIdx) {
        case 0:
            onSetRockEq();
            break;
        case 1:
            onSetHipHopEq();
            break;
        case 2:
            onSetElectronicEq();
            break;
        case 3:
            onSetJazzEq();
            break;
        case 4:
            onSetPopEq();
            break;
        case 5:
            onSetFlatEq();
            break;
        default:
            break;
    }
}

void Audiosetting_right_factoryeq_widget::onSetRockEq() {
    select(AudioEQRock);
}

void Audiosetting_right_factoryeq_widget::onSetHipHopEq() {
    select(AudioEQHipHop);
}

void Audiosetting_right_factoryeq_widget::onSetElectronicEq() {
    select(AudioEQElectronic);
}

void Audiosetting_right_factoryeq_widget::onSetJazzEq() {
    select(AudioEQJazz);
}

void Audiosetting_right_factoryeq_widget::onSetPopEq() {
    select(AudioEQPop);
}

void Audiosetting_right_factoryeq_widget::onSetFlatEq() {
    select(AudioEQFlat);
}

void Audiosetting_right_factoryeq_widget::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        m_ui->retranslateUi(this);
        nameKeys();
    }
    QWidget::changeEvent(event);
}
