// The host's own screens, made when they are first shown, and what they show.

#include "headunit/audio/service/soundmodel.h"
#include "headunit/host/app/plugincatalog.h"
#include "headunit/host/app/unit.h"
#include "headunit/host/screens/callscreen.h"
#include "headunit/host/screens/carscreen.h"
#include "headunit/host/screens/homescreen.h"
#include "headunit/host/screens/leveloverlay.h"
#include "headunit/host/screens/texts.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/sourcedisplay.h"
#include "headunit/toolkit/statusbar.h"
#include "settingsfunc.h"

#include <iterator>

namespace headunit {

namespace {

// The language last chosen, as a number in the order of Language::all().
const QLatin1String languageKey("UnitLanguage");

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

void Unit::setCallActive(bool active) {
    m_callActive = active;
    SoundModel::instance().setPromptActive(Prompt::Phone, active);
    if (m_car) {
        m_car->setCallActive(active);
    }
    if (m_statusBar) {
        m_statusBar->setCallActive(active);
    }
}

void Unit::togglePrompt(Prompt prompt) {
    SoundModel &model = SoundModel::instance();
    model.setPromptActive(prompt, !model.state().activePrompts[static_cast<size_t>(prompt)]);
}

void Unit::setMuted(bool muted) {
    if (muted != SoundModel::instance().state().muted) {
        SoundModel::instance().setMuted(muted);
    }
}

/// What the host's screens say about the sound.
void Unit::showSound() {
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

bool Unit::setSource(int source) {
    if (source < 0 || source >= int(std::size(texts::sources))) {
        return false;
    }
    m_source = source;
    SoundModel::instance().setActiveSource(source);
    setCurrentSourceDisplay(source);
    if (m_car) {
        m_car->setSource(source);
    }
    if (m_statusBar) {
        m_statusBar->setSourceTextId(texts::sources[source]);
    }
    return true;
}

bool Unit::setLanguage(const QString &code) {
    if (!Language::set(code)) {
        return false;
    }
    if (m_car) {
        m_car->setLanguage(code);
    }
    return true;
}

void Unit::chooseLanguage(const QString &code) {
    const QVector<Language::Name> &all = Language::all();
    for (int i = 0; i < all.size(); ++i) {
        if (all[i].code == code && setLanguage(code)) {
            mem::SettingsFunc::instance()->setValue(languageKey, 0, i, true);
        }
    }
}

void Unit::restoreLanguage() {
    const int chosen = mem::SettingsFunc::instance()->getValue(languageKey, 0);
    const QVector<Language::Name> &all = Language::all();
    if (chosen >= 0 && chosen < all.size() && all[chosen].code != Language::current()) {
        setLanguage(all[chosen].code);
    }
}

HomeScreen *Unit::homeScreen() {
    if (!m_home) {
        QStringList ids;
        for (const Application &application : m_catalog.applications()) {
            ids << application.id;
        }
        m_home = new HomeScreen(ids, m_catalog.failures(), m_screen);
        connect(m_home, &HomeScreen::applicationChosen, this, [this](const QString &id) { openApplication(id, Home); });
        connect(m_home, &HomeScreen::bandAdjustChosen, this, &Unit::showBandAdjust);
        connect(m_home, &HomeScreen::carChosen, this, &Unit::showCar);
        showSound();
    }
    return m_home;
}

CarScreen *Unit::carScreen() {
    if (!m_car) {
        m_car = new CarScreen(m_screen);
        m_car->setSource(m_source);
        m_car->setLanguage(Language::current());
        m_car->setCallActive(m_callActive);
        connect(m_car, &CarScreen::volumeSettingsRequested, this, &Unit::requestVolumeSettings);
        connect(m_car, &CarScreen::sourceChosen, this, &Unit::setSource);
        connect(m_car, &CarScreen::languageChosen, this, &Unit::chooseLanguage);
        connect(m_car, &CarScreen::promptToggled, this, &Unit::togglePrompt);
        showSound();
        connect(m_car, &CarScreen::callToggled, this, [this] { m_callActive ? endCall() : startCall(); });
    }
    return m_car;
}

CallScreen *Unit::callScreen() {
    if (!m_call) {
        m_call = new CallScreen(m_screen);
        connect(m_call, &CallScreen::ended, this, &Unit::endCall);
    }
    return m_call;
}

StatusBar *Unit::statusBar() {
    if (!m_statusBar) {
        m_statusBar = new StatusBar(m_clock, m_screen);
        m_statusBar->setSourceTextId(texts::sources[m_source]);
        m_statusBar->setCallActive(m_callActive);
        showSound();
    }
    return m_statusBar;
}

void Unit::updateStatusBar() {
    if (!statusBarHidden()) {
        statusBar()->show();
        m_statusBar->raise();
    } else if (m_statusBar) {
        m_statusBar->hide();
    }
    if (m_levelOverlay) {
        m_levelOverlay->raise();
    }
}

}  // namespace headunit
