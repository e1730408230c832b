// SPDX-License-Identifier: Apache-2.0
#include "audiorootpagtsettings.h"

#include "audioservice.h"
#include "audiosettingsroot.h"
#include "audiosettingstab.h"
#include "audiosettingstop.h"
#include "base/debuglog.h"
#include "base/posttouch.h"
#include "base/texts.h"
#include "base/touchpagerequest.h"
#include "c20_060_audiosetting_container_widget.h"
#include "crossover/audiosetting_right_crossover_widget.h"
#include "eq/audiosetting_right_eq_widget.h"
#include "eq/audiosetting_right_factoryeq_widget.h"
#include "general/audiosetting_right_general_widget.h"
#include "pageid.h"
#include "settingscache.h"
#include "timing/audiosetting_right_timing_widget.h"
#include "translator.h"
#include "ui_c20_060_setup_container.h"
#include "volume/audiosettingsreset.h"
#include "volume/audiovolumsettings.h"
#include "volume/sourcegainpage.h"

#include <QEvent>

using namespace audiosetting;

AudioRootPagtSettings::AudioRootPagtSettings(QWidget *parent) : QWidget(parent) {
    m_look.colourTexts(this);
    initContainerUi();
    onShowInitWidget();
    connect(mem::SettingsCache::instance(), SIGNAL(SettingsCacheSig(QString)), this, SLOT(onSettingsCacheSig(QString)));
}

AudioRootPagtSettings::~AudioRootPagtSettings() {}

void AudioRootPagtSettings::initContainerUi() {
    m_form.reset(new Ui::c20_060_setup_container);
    m_container = new c20_060_audiosetting_container_widget(this, m_form.data());
    resize(m_container->size());

    m_top = new AudiosettingsTop(m_form->top_widget);
    connect(m_top, SIGNAL(backClicked()), this, SLOT(onBackClicked()));
    m_tab = new AudiosettingsTab(m_form->left_widget);
    connect(m_tab, SIGNAL(itemClicked(int)), this, SLOT(onPageChanged(int)));
    m_look.dressKeys(m_container);
}

void AudioRootPagtSettings::onShowInitWidget() {
    if (touchPageRequest() == touchPageVolume) {
        m_savedPageId = m_currentpageId;
        updateCurrentPage(PageVolume);
    } else {
        updateCurrentPage(m_currentpageId);
    }
}

void AudioRootPagtSettings::updateCurrentPage(int id) {
    AUDIO_LOG << "audioSettingsPage: " << id;
    switch (id) {
        case PageEq:
            showEQWidget(false);
            break;
        case PageCrossover:
            showCrossoverWidget(false);
            break;
        case PageTiming:
            showTimingWidget(false);
            break;
        case PageFactoryEq:
            showFactoryEqWidget(false);
            break;
        case PageVolume:
            onShowAudioSettings();
            break;
        case PageSourceGain:
            onShowSourceGain();
            break;
        case PageSettingsRoot:
            showAudiosettingsRoot();
            break;
        case PageGeneral:
        default:
            showGeneralWidget(false);
            break;
    }
}

// Tab pages -------------------------------------------------------------------------------------------------------

void AudioRootPagtSettings::showGeneralWidget(bool) {
    hideContainerChilds();
    if (createOnce(m_general, m_form->right_widget)) {
        connect(m_general, SIGNAL(advancedChanged()), this, SLOT(onAdvancedChanged()));
    }
    showTabPage(m_general, PageGeneral, texts::titleGeneral);
}

void AudioRootPagtSettings::showEQWidget(bool) {
    hideContainerChilds();
    createOnce(m_eq, m_form->right_widget);
    showTabPage(m_eq, PageEq, texts::titleEq);
}

void AudioRootPagtSettings::showFactoryEqWidget(bool) {
    hideContainerChilds();
    createOnce(m_factoryEq, m_form->right_widget);
    showTabPage(m_factoryEq, PageFactoryEq, texts::titleFactoryEq);
}

void AudioRootPagtSettings::showCrossoverWidget(bool) {
    hideContainerChilds();
    createOnce(m_crossover, m_form->right_widget);
    showTabPage(m_crossover, PageCrossover, texts::titleCrossover);
    m_top->setBtnResetType(FlatCrossover);
}

void AudioRootPagtSettings::showTimingWidget(bool) {
    hideContainerChilds();
    createOnce(m_timing, m_form->right_widget);
    showTabPage(m_timing, PageTiming, texts::titleTiming);
    m_top->setBtnResetType(FlatTimeDelay);
}

// Settings root and what opens from it ----------------------------------------------------------------------------

void AudioRootPagtSettings::showAudiosettingsRoot() {
    hideContainerChilds();
    if (createOnce(m_settingsRoot, m_form->right_widget)) {
        connect(m_settingsRoot, SIGNAL(showAudioSettings()), this, SLOT(onShowAudioSettings()));
        connect(m_settingsRoot, SIGNAL(showSourceGain()), this, SLOT(onShowSourceGain()));
        connect(m_settingsRoot, SIGNAL(showResetAudiosettings()), this, SLOT(onShowResetAudiosettings()));
    }
    m_tab->show();
    m_settingsRoot->show();
    setTitle(texts::titleSettingsRoot);
    m_currentpageId = PageSettingsRoot;
}

void AudioRootPagtSettings::onShowAudioSettings() {
    hideContainerChilds();
    createOnce(m_volume, this);
    showFullWidthPage(m_volume, PageVolume, texts::titleVolume);
}

void AudioRootPagtSettings::onShowSourceGain() {
    hideContainerChilds();
    if (!m_sourceGain) {
        m_sourceGain = createSourceGainPage(this);
        m_look.dressKeys(m_sourceGain);
    }
    showFullWidthPage(m_sourceGain, PageSourceGain, texts::titleSourceGain);
}

void AudioRootPagtSettings::onShowResetAudiosettings() {
    if (createOnce(m_reset, this)) {
        connect(m_reset, SIGNAL(acceptClicked()), this, SLOT(hideAudioResetSetting()));
        connect(m_reset, SIGNAL(rejectClicked()), this, SLOT(hideAudioResetSetting()));
    }
    // The dialog lies over the settings root, which stays shown and lends it its page id.
    m_currentpageId = PageSettingsRoot;
    m_reset->show();
    m_tab->show();
}

void AudioRootPagtSettings::hideAudioResetSetting() {
    showAudiosettingsRoot();
}

void AudioRootPagtSettings::onAdvancedChanged() {
    showAudiosettingsRoot();
}

// Requests of the driver and of other applications ----------------------------------------------------------------

void AudioRootPagtSettings::onPageChanged(int iIdx) {
    qvaudio::AudioService::instance()->doBeep(0);
    AUDIO_LOG << "iIdx: " << iIdx;
    updateCurrentPage(iIdx);
}

void AudioRootPagtSettings::onBackClicked() {
    AUDIO_LOG << "m_currentpageId: " << m_currentpageId;
    qvaudio::AudioService::instance()->doBeep(0);
    switch (m_currentpageId) {
        case PageGeneral:
        case PageEq:
        case PageCrossover:
        case PageTiming:
        case PageFactoryEq:
            postTouch(Qx::TouchBack);
            break;
        case PageVolume:
            if (m_reentry) {
                updateCurrentPage(m_savedPageId);
                m_reentry = false;
            } else if (touchPageRequest() == touchPageVolume) {
                m_currentpageId = m_savedPageId;
                postTouch(Qx::TouchBack);
                clearTouchPageRequest();
            } else {
                showAudiosettingsRoot();
            }
            break;
        case PageSourceGain:
            showAudiosettingsRoot();
            break;
        case PageSettingsRoot:
            showGeneralWidget(false);
            break;
        default:
            postTouch(Qx::TouchClose);
            break;
    }
}

void AudioRootPagtSettings::onSettingsCacheSig(const QString &key) {
    if (key == touchPageKey()) {
        // Only then the mark: showing a page hides the others, which takes it away. A page that is hidden here writes
        // this very key (Volume Settings does); that raises no signal, or this slot would enter itself.
        onShowInitWidget();
        m_reentry = true;
    }
}

void AudioRootPagtSettings::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange && m_top) {
        // Only the text: the page keeps its Flat key, which setting a title would hide.
        m_top->setTitleText(Translator::translate(m_titleId));
    }
    QWidget::changeEvent(event);
}

// Helpers ---------------------------------------------------------------------------------------------------------

void AudioRootPagtSettings::hideContainerChilds() {
    QWidget *const pages[] = {m_general, m_eq,        m_settingsRoot, m_volume, m_sourceGain,
                              m_reset,   m_factoryEq, m_crossover,    m_timing};
    for (QWidget *page : pages) {
        if (page) {
            page->hide();
        }
    }
    m_reentry = false;
}

template <class Page> bool AudioRootPagtSettings::createOnce(Page *&page, QWidget *parent) {
    if (page) {
        return false;
    }
    page = new Page(parent);
    m_look.dressKeys(page);
    return true;
}

void AudioRootPagtSettings::showTabPage(QWidget *page, int id, int titleId) {
    m_tab->setItemSelect(id);
    page->show();
    m_tab->show();
    setTitle(titleId);
    m_currentpageId = id;
}

void AudioRootPagtSettings::showFullWidthPage(QWidget *page, int id, int titleId) {
    m_currentpageId = id;
    setTitle(titleId);
    page->show();
    m_tab->hide();
}

void AudioRootPagtSettings::setTitle(int textId) {
    m_titleId = textId;
    m_top->onSetTxtTitle(Translator::translate(textId));
}
