// SPDX-License-Identifier: Apache-2.0
#include "audiosettingstab.h"

#include "base/debuglog.h"
#include "base/texts.h"
#include "general/generalsettings.h"
#include "pageid.h"
#include "settingscache.h"
#include "translator.h"
#include "ui_AudiosettingsTab.h"

#include <QButtonGroup>
#include <QEvent>

using namespace audiosetting;

namespace {
const int guardInterval = 150;  // ms in which a second tab click is taken for a slip of the finger
}

AudiosettingsTab::AudiosettingsTab(QWidget *parent)
    : QWidget(parent), m_ui(new Ui::AudiosettingsTab), m_group(new QButtonGroup(this)) {
    m_ui->setupUi(this);

    QPushButton *const keys[] = {m_ui->key_general, m_ui->key_eq, m_ui->key_crossover, m_ui->key_timing,
                                 m_ui->key_factoryeq};
    int id = audiosetting::PageGeneral;
    for (QPushButton *key : keys) {
        key->setCheckable(true);
        m_group->addButton(key, id++);
    }
    m_group->setExclusive(true);
    connect(m_group, SIGNAL(buttonClicked(int)), this, SLOT(onPageKeyClicked(int)));

    m_guard.setSingleShot(true);
    m_guard.setTimerType(Qt::PreciseTimer);
    m_guard.setInterval(guardInterval);

    connect(mem::SettingsCache::instance(), SIGNAL(SettingsCacheSig(QString)), this, SLOT(onSettingsCacheSig(QString)));
    updateBtnEn();
    nameKeys();
}

AudiosettingsTab::~AudiosettingsTab() {}

void AudiosettingsTab::nameKeys() {
    // In the order of their ids. They show pictures alone; their names are their pages' titles.
    const int titles[] = {texts::titleGeneral, texts::titleEq, texts::titleCrossover, texts::titleTiming,
                          texts::titleFactoryEq};
    int id = audiosetting::PageGeneral;
    for (int title : titles) {
        m_group->button(id++)->setAccessibleName(Translator::translate(title));
    }
}

void AudiosettingsTab::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        nameKeys();
    }
    QWidget::changeEvent(event);
}

void AudiosettingsTab::showEvent(QShowEvent *event) {
    updateBtnEn();
    QWidget::showEvent(event);
}

void AudiosettingsTab::onPageKeyClicked(int iIdex) {
    if (m_guard.isActive()) {
        setItemSelect(m_lastIndex);
        return;
    }
    m_guard.start();
    emit itemClicked(iIdex);
}

void AudiosettingsTab::setItemSelect(int index) {
    if (index < 0) {
        AUDIO_LOG << "index:" << index;
        return;
    }
    if (QAbstractButton *key = m_group->button(index)) {
        key->setChecked(true);
    }
    m_lastIndex = index;
}

void AudiosettingsTab::updateBtnEn() {
    const int defeat = audiosetting::general::defeat().value();
    AUDIO_LOG << "ADV_AUDIO_SETTINGS:" << defeat;
    for (int id = audiosetting::PageEq; id <= audiosetting::PageFactoryEq; ++id) {
        m_group->button(id)->setDisabled(defeat != 0);
    }
}

void AudiosettingsTab::onSettingsCacheSig(const QString &key) {
    AUDIO_LOG << "key:" << key;
    if (key == audiosetting::general::defeat().key()) {
        updateBtnEn();
    }
}
