// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/unit.h"

#include "audioservice.h"
#include "headunit/audio/service/soundmodel.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/host/app/chosenlanguage.h"
#include "headunit/host/app/pagerequest.h"
#include "headunit/host/app/plugincatalog.h"
#include "headunit/host/app/stage.h"
#include "headunit/host/app/unitscreens.h"
#include "headunit/host/screens/bandadjust.h"
#include "headunit/host/screens/texts.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/sourcedisplay.h"
#include "headunit/toolkit/statusbar.h"
#include "keyevent.h"
#include "settingscache.h"
#include "settingsfunc.h"
#include "statusbarcontrol.h"
#include "touchevent.h"

#include <QDebug>

#include <iterator>
#include <utility>

namespace headunit {

namespace {

const QLatin1String audioSettingsId("audiosetting");

}  // namespace

Unit::Unit(PluginCatalog &catalog, QWidget *screen, StatusBar::Clock clock)
    : m_catalog(catalog),
      m_screen(screen),
      m_stage(new Stage(screen, catalog.guard(), this)),
      m_screens(new UnitScreens(catalog, screen, std::move(clock), this)) {
    connectScreens();
    setStatusBarObserver([this](bool) { arrange(); });
    connect(&SoundModel::instance(), &SoundModel::changed, m_screens, &UnitScreens::showSound);
    connect(&SoundModel::instance(), &SoundModel::faultChanged, m_screens, &UnitScreens::showSound);
    // Queued: it may have failed while it was painted.
    connect(&catalog.guard(), &ApplicationGuard::failed, this, &Unit::leaveFailed, Qt::QueuedConnection);
}

void Unit::connectScreens() {
    connect(m_screens, &UnitScreens::applicationChosen, this, [this](const QString &id) { openApplication(id, Home); });
    connect(m_screens, &UnitScreens::bandAdjustChosen, this, &Unit::showBandAdjust);
    connect(m_screens, &UnitScreens::carChosen, this, &Unit::showCar);
    connect(m_screens, &UnitScreens::volumeSettingsRequested, this, &Unit::requestVolumeSettings);
    connect(m_screens, &UnitScreens::sourceChosen, this, &Unit::setSource);
    connect(m_screens, &UnitScreens::languageChosen, this, &Unit::chooseLanguage);
    connect(m_screens, &UnitScreens::promptToggled, this, &Unit::togglePrompt);
    connect(m_screens, &UnitScreens::callToggled, this, [this] { m_callActive ? endCall() : startCall(); });
    connect(m_screens, &UnitScreens::callEnded, this, &Unit::endCall);
}

Unit::~Unit() {
    setStatusBarObserver({});
    shutDown();
}

void Unit::show(Place place) {
    if (place == Car) {
        showCar();
    } else if (place == BandAdjust) {
        showBandAdjust();
    } else {
        showHome();
    }
}

void Unit::show(Place place, QWidget *widget) {
    leaveApplication();
    if (m_shown && m_shown != widget) {
        m_shown->hide();
    }
    if (m_bandAdjust != widget) {
        closeBandAdjust();
    }
    m_place = place;
    m_shown = widget;
    // An application may have hidden the bar; the host's own screens have it.
    cm::StatusBarControl::instance()->sethide(false);
    widget->show();
    widget->raise();
    arrange();
}

void Unit::showHome() {
    show(Home, m_screens->home());
}

void Unit::showCar() {
    show(Car, m_screens->car());
}

void Unit::showBandAdjust() {
    if (!m_bandAdjust) {
        const Application *const application = m_catalog.find(audioSettingsId);
        WindowInterface *const window = application ? application->window : nullptr;
        m_catalog.guard().call(window, "EQWidget", [this] { m_bandAdjust = createBandAdjust(m_screen); });
        if (!m_bandAdjust) {
            return;
        }
        m_catalog.guard().own(m_bandAdjust, window);
        m_bandAdjust->setObjectName(QStringLiteral("bandadjust"));
        m_bandAdjust->move(0, StatusBar::barHeight);
    }
    show(BandAdjust, m_bandAdjust);
}

void Unit::closeBandAdjust() {
    if (m_bandAdjust) {
        if (m_shown == m_bandAdjust) {
            m_shown = nullptr;
        }
        // One of its keys may be what closes it.
        m_bandAdjust->hide();
        m_bandAdjust->deleteLater();
        m_bandAdjust = nullptr;
    }
}

void Unit::arrange() {
    m_screens->updateStatusBar();
    m_stage->raiseFade();
    m_screens->raiseLevel();
}

bool Unit::openApplication(const QString &id, Place origin) {
    const Application *application = m_catalog.find(id);
    if (!application || !m_catalog.works(*application)) {
        return false;
    }
    if (!m_stage->open(application->window)) {
        if (m_catalog.works(*application)) {
            qWarning("%s: the application has nothing to show", qUtf8Printable(id));
        }
        showHome();
        return false;
    }
    if (m_place != InApplication) {
        m_origin = origin;
    }
    m_place = InApplication;
    if (m_shown) {
        m_shown->hide();
        m_shown = nullptr;
    }
    closeBandAdjust();
    arrange();
    return true;
}

void Unit::refreshFront() {
    if (m_place == InApplication) {
        m_stage->refresh();
    } else if (m_place == BandAdjust) {
        showHome();  // the panel shows what it found when it was made
        showBandAdjust();
    }
}

void Unit::leaveApplication() {
    if (m_place == InApplication) {
        m_place = Nowhere;
        m_stage->leave();
    }
}

void Unit::leaveFailed() {
    m_screens->showApplications();
    const WindowInterface *const front = m_stage->front();
    if ((front && m_catalog.guard().hasFailed(front)) || (m_bandAdjust && m_catalog.guard().isSilenced(m_bandAdjust))) {
        showHome();
    }
}

bool Unit::requestVolumeSettings() {
    mem::SettingsFunc::instance()->setValue(pageRequestKey, 0, volumePageRequest, true);
    const Application *application = m_catalog.find(audioSettingsId);
    if (application && m_stage->front() == application->window) {
        // Only then: an application that is opened reads the request by itself, and told twice would take the requested
        // page for the one to return to.
        Q_EMIT mem::SettingsCache::instance()->SettingsCacheSig(pageRequestKey);
    }
    return openApplication(audioSettingsId, m_place);
}

void Unit::startCall() {
    if (m_callActive) {
        return;
    }
    setCallActive(true);
    m_beforeCall = m_place;
    m_windowBeforeCall = m_stage->front();
    show(Call, m_screens->call());
}

void Unit::endCall() {
    if (!m_callActive) {
        return;
    }
    setCallActive(false);
    if (m_place != Call) {
        return;
    }
    if (m_windowBeforeCall && m_stage->open(m_windowBeforeCall)) {
        m_place = InApplication;
        m_shown->hide();
        m_shown = nullptr;
        arrange();
    } else {
        show(m_beforeCall);
    }
}

void Unit::pressHardKey(int key) {
    KeyEvent event(QEvent::KeyPress, key);
    if (m_stage->offerKey(&event)) {
        return;
    }
    switch (key) {
        case KeyEvent::VolumeUp:
            stepVolume(1);
            break;
        case KeyEvent::VolumeDown:
            stepVolume(-1);
            break;
        case KeyEvent::Mute:
            setMuted(!SoundModel::instance().state().muted);
            m_screens->showLevel(texts::mainChannel);
            break;
        case KeyEvent::Home:
            showHome();
            break;
        case KeyEvent::Back:
            if (m_place == Car || m_place == BandAdjust) {
                showHome();
            } else if (m_place == InApplication && !m_stage->offerBack()) {
                touch(Qx::TouchBack);
            }
            break;
        default:
            qDebug("no hard key %d", key);
            break;
    }
}

void Unit::releaseHardKey(int key) {
    KeyEvent event(QEvent::KeyRelease, key);
    m_stage->offerKey(&event);
}

void Unit::touch(int code) {
    switch (code) {
        case Qx::TouchBack:
            if (m_place == InApplication) {
                show(m_origin);
            } else if (m_place == BandAdjust) {
                showHome();
            }
            break;
        case Qx::TouchClose:
            showHome();
            break;
        default:
            qDebug("touch code %d has no meaning here", code);
            break;
    }
}

void Unit::stepVolume(int by) {
    const int number = m_callActive ? texts::phoneChannel : texts::mainChannel;
    const texts::Channel &channel = texts::channels[number];
    qvaudio::AudioService *const audio = qvaudio::AudioService::instance();
    const int level =
        qBound(ranges::channelLevel.low, audio->getSourceVolByType(channel.type) + by, ranges::channelLevel.high);
    audio->setVolumeLevel(level, channel.type);
    if (!m_callActive) {
        setMuted(false);  // who turns the volume wants to hear it
    }
    m_screens->showLevel(number);
}

// The driver's choices --------------------------------------------------------------------------------------------

void Unit::setCallActive(bool active) {
    m_callActive = active;
    SoundModel::instance().setPromptActive(Prompt::Phone, active);
    m_screens->setCallActive(active);
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

bool Unit::setSource(int source) {
    if (source < 0 || source >= int(std::size(texts::sources))) {
        return false;
    }
    SoundModel::instance().setActiveSource(source);
    setCurrentSourceDisplay(source);
    m_screens->setSource(source);
    return true;
}

bool Unit::setLanguage(const QString &code) {
    if (!Language::set(code)) {
        return false;
    }
    m_screens->setLanguage(code);
    return true;
}

void Unit::chooseLanguage(const QString &code) {
    if (setLanguage(code)) {
        setChosenLanguage(code);
    }
}

void Unit::restoreLanguage() {
    const QString code = chosenLanguage();
    if (code != Language::current()) {
        setLanguage(code);
    }
}

void Unit::restart() {
    endCall();
    shutDown();
    m_windowBeforeCall = nullptr;
    m_catalog.reload();
    m_screens->showApplications();
    showHome();
}

void Unit::shutDown() {
    m_place = Nowhere;
    closeBandAdjust();
    m_stage->shutDown();
    m_catalog.unload();
    m_stage->releaseWidgets();
}

}  // namespace headunit
