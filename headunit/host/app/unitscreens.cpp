// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/unitscreens.h"

#include "audioservice.h"
#include "headunit/audio/service/soundmodel.h"
#include "headunit/host/app/plugincatalog.h"
#include "headunit/host/screens/callscreen.h"
#include "headunit/host/screens/carscreen.h"
#include "headunit/host/screens/homescreen.h"
#include "headunit/host/screens/leveloverlay.h"
#include "headunit/host/screens/texts.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/statusbar.h"

#include <utility>

namespace headunit {

namespace {

int faultText(SoundFault fault) {
    switch (fault) {
        case SoundFault::NothingToPlay:
            return texts::nothingToPlay;
        case SoundFault::NoLibrary:
            return texts::noSoundLibrary;
        case SoundFault::NoServer:
            return texts::noSoundServer;
        case SoundFault::NoDevice:
            return texts::noSoundDevice;
        case SoundFault::None:
            break;
    }
    return 0;
}

}  // namespace

UnitScreens::UnitScreens(const PluginCatalog &catalog, QWidget *screen, StatusBar::Clock clock, QObject *parent)
    : QObject(parent), m_catalog(catalog), m_screen(screen), m_clock(std::move(clock)) {}

QWidget *UnitScreens::home() {
    if (!m_home) {
        m_home = new HomeScreen(m_screen);
        showApplications();
        connect(m_home, &HomeScreen::applicationChosen, this, &UnitScreens::applicationChosen);
        connect(m_home, &HomeScreen::bandAdjustChosen, this, &UnitScreens::bandAdjustChosen);
        connect(m_home, &HomeScreen::carChosen, this, &UnitScreens::carChosen);
        showSound();
    }
    return m_home;
}

void UnitScreens::showApplications() {
    if (!m_home) {
        return;
    }
    QStringList ids;
    for (const Application &application : m_catalog.applications()) {
        if (m_catalog.works(application)) {
            ids << application.id;
        }
    }
    m_home->setApplications(ids, m_catalog.failures());
}

QWidget *UnitScreens::car() {
    if (!m_car) {
        m_car = new CarScreen(m_screen);
        m_car->setSource(m_source);
        m_car->setLanguage(Language::current());
        m_car->setCallActive(m_callActive);
        connect(m_car, &CarScreen::volumeSettingsRequested, this, &UnitScreens::volumeSettingsRequested);
        connect(m_car, &CarScreen::sourceChosen, this, &UnitScreens::sourceChosen);
        connect(m_car, &CarScreen::languageChosen, this, &UnitScreens::languageChosen);
        connect(m_car, &CarScreen::promptToggled, this, &UnitScreens::promptToggled);
        connect(m_car, &CarScreen::callToggled, this, &UnitScreens::callToggled);
        showSound();
    }
    return m_car;
}

QWidget *UnitScreens::call() {
    if (!m_call) {
        m_call = new CallScreen(m_screen);
        connect(m_call, &CallScreen::ended, this, &UnitScreens::callEnded);
    }
    return m_call;
}

StatusBar *UnitScreens::statusBar() {
    if (!m_statusBar) {
        m_statusBar = new StatusBar(m_clock, m_screen);
        m_statusBar->setSourceTextId(texts::sources[m_source]);
        m_statusBar->setCallActive(m_callActive);
        showSound();
    }
    return m_statusBar;
}

void UnitScreens::setSource(int source) {
    m_source = source;
    if (m_car) {
        m_car->setSource(source);
    }
    if (m_statusBar) {
        m_statusBar->setSourceTextId(texts::sources[source]);
    }
}

void UnitScreens::setLanguage(const QString &code) {
    if (m_car) {
        m_car->setLanguage(code);
    }
}

void UnitScreens::setCallActive(bool active) {
    m_callActive = active;
    if (m_car) {
        m_car->setCallActive(active);
    }
    if (m_statusBar) {
        m_statusBar->setCallActive(active);
    }
}

void UnitScreens::showSound() {
    const SoundModel &model = SoundModel::instance();
    const bool faulty = model.fault() != SoundFault::None;
    if (m_car) {
        m_car->setActivePrompts(model.state().activePrompts);
    }
    if (m_statusBar) {
        m_statusBar->setSilent(faulty || model.state().muted);
    }
    if (m_home) {
        m_home->setSilence(faulty ? faultText(model.fault()) : model.state().muted ? texts::muted : 0, faulty);
    }
}

void UnitScreens::updateStatusBar() {
    if (!statusBarHidden()) {
        statusBar()->show();
        m_statusBar->raise();
    } else if (m_statusBar) {
        m_statusBar->hide();
    }
    if (m_levelOverlay) {
        m_levelOverlay->setBelowStatusBar(!statusBarHidden());
    }
}

void UnitScreens::raiseLevel() {
    if (m_levelOverlay) {
        m_levelOverlay->raise();
    }
}

void UnitScreens::showLevel(int number) {
    const texts::Channel &channel = texts::channels[number];
    if (!m_levelOverlay) {
        m_levelOverlay = new LevelOverlay(m_screen);
        m_levelOverlay->setBelowStatusBar(!statusBarHidden());
    }
    const bool muted = number == texts::mainChannel && SoundModel::instance().state().muted;
    m_levelOverlay->showLevel(channel.textId, qvaudio::AudioService::instance()->getSourceVolByType(channel.type),
                              muted);
}

}  // namespace headunit
