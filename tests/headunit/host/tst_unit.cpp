// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/unit.h"

#include "audioservice.h"
#include "eventhandler.h"
#include "headunit/audio/service/soundmodel.h"
#include "headunit/host/app/hostapplication.h"
#include "headunit/host/app/plugincatalog.h"
#include "headunit/host/screens/fadingpicture.h"
#include "headunit/host/screens/leveloverlay.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/unitapplication.h"
#include "headunit/virtualtime/virtualtime.h"
#include "keyevent.h"
#include "settingscache.h"
#include "settingsfunc.h"
#include "srcdsplctrl.h"
#include "statusbarcontrol.h"
#include "touchevent.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

using headunit::Prompt;
using headunit::SoundFault;
using headunit::SoundModel;
using headunit::SoundState;
using headunit::Unit;

namespace {
const QString app = QStringLiteral("audiosetting");
const QString requestKey = QStringLiteral("SettingTouchPageType");
}  // namespace

class TestUnit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void startsAtHome();
    void opensAndCloses();
    void backReturnsToWhereItCameFrom_data();
    void backReturnsToWhereItCameFrom();
    void ignoresOtherTouches();
    void touchesReachTheUnit();
    void unknownApplication();
    void applicationWithoutWidget();
    void requestFromTheCar();
    void requestWhileInFront();
    void callTakesTheScreenAndGivesItBack();
    void callFromTheCar();
    void homeDuringACall();
    void bandAdjustOpensAndCloses();
    void bandAdjustIsLeftForTheRest();
    void bandAdjustComesBackAfterACall();
    void volumeKeys();
    void volumeKeysDuringACall();
    void levelOverlayGoesByItself();
    void levelOverlayKeepsClearOfTheStatusBar();
    void muteKey();
    void volumeKeysEndTheMute();
    void promptsFromTheCar();
    void aCallIsAPrompt();
    void silenceIsShown();
    void applicationUsesAKey();
    void backKey();
    void homeKey();
    void statusBarFollowsTheApplication();
    void statusBarEndsInALine();
    void sources();
    void languages();
    void shutsDown();

private:
    QStringList takeCalls();
    QWidget *child(const char *name) { return m_screen->findChild<QWidget *>(QString::fromLatin1(name)); }
    bool shows(const char *name) { return child(name) && child(name)->isVisible(); }
    void press(int key) {
        m_unit->pressHardKey(key);
        m_unit->releaseHardKey(key);
    }

    QScopedPointer<headunit::PluginCatalog> m_catalog;
    QScopedPointer<QWidget> m_screen;
    QScopedPointer<Unit> m_unit;
    QObject *m_root = nullptr;
};

void TestUnit::init() {
    m_catalog.reset(new headunit::PluginCatalog);
    m_catalog->load(QStringLiteral(FIXTURES "/application.so"));
    QCOMPARE(m_catalog->failures(), QStringList());
    m_root = m_catalog->applications().front().root;
    m_screen.reset(new QWidget);
    m_screen->resize(1024, 600);
    m_unit.reset(new Unit(*m_catalog, m_screen.data(), [] { return QStringLiteral("10:08"); }));
    m_unit->showHome();
    m_screen->show();
    takeCalls();
    mem::SettingsFunc::instance()->setValue(requestKey, 0, 0, true);
    qvaudio::AudioService::instance()->setVolumeLevel(16, 0);
    qvaudio::AudioService::instance()->setVolumeLevel(16, 2);
}

void TestUnit::cleanup() {
    m_unit.reset();
    m_screen.reset();
    m_catalog.reset();
}

QStringList TestUnit::takeCalls() {
    const QStringList calls = m_root->property("calls").toStringList();
    m_root->setProperty("calls", QStringList());
    return calls;
}

void TestUnit::startsAtHome() {
    QCOMPARE(m_unit->place(), Unit::Home);
    QVERIFY(shows("home"));
    QVERIFY(shows("tile_audiosetting"));
    QVERIFY(shows("status_bar"));
    // The rest is made when it is wanted.
    QVERIFY(!child("car"));
    QVERIFY(!child("call"));
}

void TestUnit::opensAndCloses() {
    QVERIFY(m_unit->openApplication(app, Unit::Home));
    QCOMPARE(m_unit->place(), Unit::InApplication);
    QCOMPARE(takeCalls(), QStringList({"onCreate", "onShow visible=0", "onEnter visible=1"}));
    QVERIFY(!shows("home"));
    m_unit->touch(Qx::TouchClose);
    QCOMPARE(m_unit->place(), Unit::Home);
    QCOMPARE(takeCalls(), QStringList({"onExit visible=1", "onHide visible=0"}));
    QVERIFY(shows("home"));
    QVERIFY(m_unit->openApplication(app, Unit::Home));
    QCOMPARE(takeCalls(), QStringList({"onCreate", "onShow visible=0", "onEnter visible=1"}));
}

void TestUnit::backReturnsToWhereItCameFrom_data() {
    QTest::addColumn<int>("origin");
    QTest::newRow("home") << int(Unit::Home);
    QTest::newRow("car") << int(Unit::Car);
}

void TestUnit::backReturnsToWhereItCameFrom() {
    QFETCH(int, origin);
    m_unit->openApplication(app, Unit::Place(origin));
    m_unit->touch(Qx::TouchBack);
    QCOMPARE(int(m_unit->place()), origin);
    // Close goes home from wherever it came.
    m_unit->openApplication(app, Unit::Place(origin));
    m_unit->touch(Qx::TouchClose);
    QCOMPARE(m_unit->place(), Unit::Home);
}

void TestUnit::ignoresOtherTouches() {
    m_unit->openApplication(app, Unit::Home);
    takeCalls();
    for (int code : {-1, 0, 2, 14, 16, 1000}) {
        m_unit->touch(code);
        QCOMPARE(m_unit->place(), Unit::InApplication);
    }
    QCOMPARE(takeCalls(), QStringList());
    // Back asked for by an application that is not in front any more.
    m_unit->showCar();
    m_unit->touch(Qx::TouchBack);
    QCOMPARE(m_unit->place(), Unit::Car);
}

void TestUnit::touchesReachTheUnit() {
    QSignalSpy touched(qApp, SIGNAL(touched(int)));
    QCoreApplication::postEvent(qApp, new TouchEvent(Qx::TouchBack, -1, -1));
    QCoreApplication::postEvent(qApp, new TouchEvent(Qx::Touch(99), -1, -1));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(touched.count(), 2);
    QCOMPARE(touched.at(0).at(0).toInt(), 15);
    QCOMPARE(touched.at(1).at(0).toInt(), 99);
}

void TestUnit::unknownApplication() {
    QVERIFY(!m_unit->openApplication(QStringLiteral("other"), Unit::Home));
    QCOMPARE(m_unit->place(), Unit::Home);
}

void TestUnit::applicationWithoutWidget() {
    m_root->setProperty("hasWidget", false);
    m_unit->showCar();
    QTest::ignoreMessage(QtWarningMsg, "audiosetting: the application has nothing to show");
    QVERIFY(!m_unit->openApplication(app, Unit::Car));
    QCOMPARE(m_unit->place(), Unit::Home);
    QVERIFY(shows("home"));
}

void TestUnit::requestFromTheCar() {
    // An application that was open before must not be told twice: once by the signal, once when it is opened.
    m_unit->openApplication(app, Unit::Home);
    m_unit->showCar();
    takeCalls();
    QSignalSpy signalled(mem::SettingsCache::instance(), SIGNAL(SettingsCacheSig(QString)));
    QTest::mouseClick(child("car_request"), Qt::LeftButton);
    QCOMPARE(mem::SettingsFunc::instance()->getValue(requestKey, 0), 3);
    QCOMPARE(signalled.count(), 0);
    QCOMPARE(m_unit->place(), Unit::InApplication);
    QCOMPARE(takeCalls(), QStringList({"onCreate", "onShow visible=0", "onEnter visible=1"}));
    m_unit->touch(Qx::TouchBack);
    QCOMPARE(m_unit->place(), Unit::Car);
    QVERIFY(shows("car"));
}

void TestUnit::requestWhileInFront() {
    m_unit->openApplication(app, Unit::Home);
    takeCalls();
    QSignalSpy signalled(mem::SettingsCache::instance(), SIGNAL(SettingsCacheSig(QString)));
    QVERIFY(m_unit->requestVolumeSettings());
    QCOMPARE(signalled.count(), 1);
    QCOMPARE(signalled.at(0).at(0).toString(), requestKey);
    QCOMPARE(mem::SettingsFunc::instance()->getValue(requestKey, 0), 3);
    QCOMPARE(takeCalls(), QStringList());
    m_unit->touch(Qx::TouchBack);
    QCOMPARE(m_unit->place(), Unit::Home);
}

void TestUnit::callTakesTheScreenAndGivesItBack() {
    m_unit->openApplication(app, Unit::Car);
    takeCalls();
    m_unit->startCall();
    QCOMPARE(m_unit->place(), Unit::Call);
    QVERIFY(shows("call"));
    QCOMPARE(takeCalls(), QStringList({"onExit visible=1", "onHide visible=0"}));
    m_unit->startCall();
    QCOMPARE(m_unit->place(), Unit::Call);
    QTest::mouseClick(child("call_end"), Qt::LeftButton);
    QCOMPARE(m_unit->place(), Unit::InApplication);
    QVERIFY(!shows("call"));
    QCOMPARE(takeCalls(), QStringList({"onCreate", "onShow visible=0", "onEnter visible=1"}));
    m_unit->endCall();
    QCOMPARE(takeCalls(), QStringList());
    m_unit->touch(Qx::TouchBack);
    QCOMPARE(m_unit->place(), Unit::Car);
}

void TestUnit::callFromTheCar() {
    m_unit->showCar();
    QTest::mouseClick(child("car_call"), Qt::LeftButton);
    QCOMPARE(m_unit->place(), Unit::Call);
    m_unit->endCall();
    QCOMPARE(m_unit->place(), Unit::Car);
}

void TestUnit::bandAdjustOpensAndCloses() {
    for (int round = 0; round < 2; ++round) {
        QTest::mouseClick(child("tile_bandadjust"), Qt::LeftButton);
        QCOMPARE(m_unit->place(), Unit::BandAdjust);
        QVERIFY(shows("bandadjust"));
        QVERIFY(!shows("home"));
        QVERIFY(shows("status_bar"));
        // The bands fill the page area of the applications.
        QCOMPARE(child("bands")->mapTo(m_screen.data(), QPoint()), QPoint(0, 130));
        QCOMPARE(child("bandadjust")->geometry(), QRect(0, 48, 1024, 552));
        if (round == 0) {
            m_unit->touch(Qx::TouchBack);
        } else {
            press(KeyEvent::Back);
        }
        QCOMPARE(m_unit->place(), Unit::Home);
        QVERIFY(shows("home"));
        QVERIFY(!shows("bandadjust"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!child("bandadjust"));
    }
}

void TestUnit::bandAdjustIsLeftForTheRest() {
    m_unit->showBandAdjust();
    m_unit->showBandAdjust();
    QCOMPARE(m_screen->findChildren<QWidget *>(QStringLiteral("bandadjust")).size(), 1);
    QVERIFY(m_unit->openApplication(app, Unit::Home));
    QVERIFY(!shows("bandadjust"));
    QCOMPARE(m_unit->place(), Unit::InApplication);
    m_unit->showBandAdjust();
    QCOMPARE(takeCalls().mid(3), QStringList({"onExit visible=1", "onHide visible=0"}));
    m_unit->touch(Qx::TouchClose);
    QCOMPARE(m_unit->place(), Unit::Home);
    m_unit->showBandAdjust();
    m_unit->shutDown();
    QVERIFY(!shows("bandadjust"));
}

void TestUnit::bandAdjustComesBackAfterACall() {
    m_unit->showBandAdjust();
    m_unit->startCall();
    QVERIFY(!shows("bandadjust"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_unit->endCall();
    QCOMPARE(m_unit->place(), Unit::BandAdjust);
    QVERIFY(shows("bandadjust"));
}

void TestUnit::homeDuringACall() {
    m_unit->openApplication(app, Unit::Home);
    m_unit->startCall();
    takeCalls();
    press(KeyEvent::Home);
    QCOMPARE(m_unit->place(), Unit::Home);
    m_unit->endCall();
    QCOMPARE(m_unit->place(), Unit::Home);
    QCOMPARE(takeCalls(), QStringList());
}

void TestUnit::volumeKeys() {
    qvaudio::AudioService *const audio = qvaudio::AudioService::instance();
    press(KeyEvent::VolumeUp);
    QCOMPARE(audio->getSourceVolByType(0), 17);
    QVERIFY(shows("level_overlay"));
    QCOMPARE(m_screen->findChild<headunit::LevelOverlay *>()->level(), 17);
    press(KeyEvent::VolumeDown);
    press(KeyEvent::VolumeDown);
    QCOMPARE(audio->getSourceVolByType(0), 15);
    audio->setVolumeLevel(0, 0);
    press(KeyEvent::VolumeDown);
    QCOMPARE(audio->getSourceVolByType(0), 0);
    audio->setVolumeLevel(40, 0);
    press(KeyEvent::VolumeUp);
    QCOMPARE(audio->getSourceVolByType(0), 40);
    QCOMPARE(audio->getSourceVolByType(2), 16);
}

void TestUnit::volumeKeysDuringACall() {
    m_unit->startCall();
    press(KeyEvent::VolumeUp);
    QCOMPARE(qvaudio::AudioService::instance()->getSourceVolByType(0), 16);
    QCOMPARE(qvaudio::AudioService::instance()->getSourceVolByType(2), 17);
    m_unit->endCall();
    press(KeyEvent::VolumeUp);
    QCOMPARE(qvaudio::AudioService::instance()->getSourceVolByType(0), 17);
    QCOMPARE(qvaudio::AudioService::instance()->getSourceVolByType(2), 17);
}

void TestUnit::muteKey() {
    const SoundModel &model = SoundModel::instance();
    QVERIFY(!child("status_bar")->property("silent").toBool());
    QCOMPARE(child("home")->property("silence").toString(), QString());
    press(KeyEvent::Mute);
    QVERIFY(model.state().muted);
    QCOMPARE(qvaudio::AudioService::instance()->getSourceVolByType(0), 16);
    QVERIFY(shows("level_overlay"));
    QVERIFY(child("status_bar")->property("silent").toBool());
    QCOMPARE(child("home")->property("silence").toString(), QString("Muted"));
    press(KeyEvent::Mute);
    QVERIFY(!model.state().muted);
    QVERIFY(!child("status_bar")->property("silent").toBool());
    QCOMPARE(child("home")->property("silence").toString(), QString());
}

void TestUnit::volumeKeysEndTheMute() {
    const SoundModel &model = SoundModel::instance();
    for (const int key : {KeyEvent::VolumeUp, KeyEvent::VolumeDown}) {
        press(KeyEvent::Mute);
        press(key);
        QVERIFY(!model.state().muted);
    }
    // During a call they are the phone's.
    press(KeyEvent::Mute);
    m_unit->startCall();
    press(KeyEvent::VolumeUp);
    QVERIFY(model.state().muted);
    m_unit->endCall();
    press(KeyEvent::Mute);
    QVERIFY(!model.state().muted);
}

void TestUnit::promptsFromTheCar() {
    SoundModel &model = SoundModel::instance();
    m_unit->showCar();
    const char *const keys[] = {"car_prompt_ringtone", "car_prompt_phone",        "car_prompt_navigation",
                                "car_prompt_voice",    "car_prompt_announcement", "car_prompt_beep"};
    for (size_t prompt = 0; prompt < std::size(keys); ++prompt) {
        QWidget *const key = child(keys[prompt]);
        QVERIFY(key);
        QVERIFY(!key->property("checked").toBool());
        std::array<bool, SoundState::prompts> expected{};
        expected[prompt] = true;
        QTest::mouseClick(key, Qt::LeftButton);
        QVERIFY(model.state().activePrompts == expected);
        QVERIFY(key->property("checked").toBool());
        QTest::mouseClick(key, Qt::LeftButton);
        QVERIFY((model.state().activePrompts == std::array<bool, SoundState::prompts>{}));
        QVERIFY(!key->property("checked").toBool());
        // Whoever begins and ends it
        model.setPromptActive(static_cast<Prompt>(prompt), true);
        QVERIFY(key->property("checked").toBool());
        model.setPromptActive(static_cast<Prompt>(prompt), false);
        QVERIFY(!key->property("checked").toBool());
    }
}

void TestUnit::aCallIsAPrompt() {
    const auto &active = SoundModel::instance().state().activePrompts;
    m_unit->startCall();
    QVERIFY((active == std::array<bool, SoundState::prompts>{false, true}));
    m_unit->showCar();
    QVERIFY(child("car_prompt_phone")->property("checked").toBool());
    m_unit->endCall();
    QVERIFY((active == std::array<bool, SoundState::prompts>{}));
    QVERIFY(!child("car_prompt_phone")->property("checked").toBool());
}

void TestUnit::silenceIsShown() {
    SoundModel &model = SoundModel::instance();
    const std::pair<SoundFault, const char *> faults[] = {
        {SoundFault::NothingToPlay, "No sound: the file cannot be played"},
        {SoundFault::NoLibrary, "No sound: the sound library is missing"},
        {SoundFault::NoServer, "No sound: no sound server answers"},
        {SoundFault::NoDevice, "No sound: there is no sound device"}};
    for (const auto &[fault, line] : faults) {
        model.setFault(fault);
        QVERIFY(child("status_bar")->property("silent").toBool());
        QCOMPARE(child("home")->property("silence").toString(), QString(line));
        // A fault says more than that it is muted as well.
        model.setMuted(true);
        QCOMPARE(child("home")->property("silence").toString(), QString(line));
        model.setFault(SoundFault::None);
        QCOMPARE(child("home")->property("silence").toString(), QString("Muted"));
        model.setMuted(false);
        QVERIFY(!child("status_bar")->property("silent").toBool());
        QCOMPARE(child("home")->property("silence").toString(), QString());
    }
    // Widgets made later know, too.
    model.setFault(SoundFault::NoDevice);
    Unit other(*m_catalog, m_screen.data(), [] { return QString(); });
    other.showHome();
    const QList<QWidget *> homes = m_screen->findChildren<QWidget *>("home");
    QCOMPARE(homes.size(), 2);
    QVERIFY(!homes.last()->property("silence").toString().isEmpty());
    model.setFault(SoundFault::None);
}

void TestUnit::levelOverlayGoesByItself() {
    headunit::VirtualTime *const time = headunit::VirtualTime::instance();
    press(KeyEvent::VolumeUp);
    time->advance(1500);
    press(KeyEvent::VolumeUp);
    time->advance(headunit::LevelOverlay::showMilliseconds - 1);
    QVERIFY(shows("level_overlay"));
    // A finger goes through it.
    QCOMPARE(m_screen->childAt(child("level_overlay")->geometry().center()), child("home"));
    time->advance(1);
    QVERIFY(!shows("level_overlay"));
    // The remainder fades away.
    const QList<headunit::FadingPicture *> fading = m_screen->findChildren<headunit::FadingPicture *>();
    QCOMPARE(fading.size(), 1);
    QCOMPARE(fading.first()->geometry(), child("level_overlay")->geometry());
    time->advance(headunit::LevelOverlay::fadeMilliseconds - 1);
    QVERIFY(fading.first()->isVisible());
    time->advance(1);
    QCOMPARE(m_screen->findChildren<headunit::FadingPicture *>().size(), 0);
    // It stays on top of an application that is opened meanwhile.
    press(KeyEvent::VolumeUp);
    m_unit->openApplication(app, Unit::Home);
    QCOMPARE(m_screen->children().last(), child("level_overlay"));
}

void TestUnit::levelOverlayKeepsClearOfTheStatusBar() {
    press(KeyEvent::VolumeUp);
    const QWidget *const overlay = child("level_overlay");
    QCOMPARE(overlay->geometry(), QRect(212, 56, 600, 96));
    QVERIFY(!overlay->geometry().intersects(child("status_bar")->geometry()));
    // An application may hide the bar.
    m_unit->openApplication(app, Unit::Home);
    cm::StatusBarControl::instance()->sethide(true);
    QCOMPARE(overlay->geometry(), QRect(212, 24, 600, 96));
    m_unit->showHome();
    QCOMPARE(overlay->geometry(), QRect(212, 56, 600, 96));
}

void TestUnit::applicationUsesAKey() {
    m_unit->openApplication(app, Unit::Home);
    takeCalls();
    press(KeyEvent::VolumeUp);
    QCOMPARE(takeCalls(), QStringList({"keyEvent press 1", "keyEvent release 1"}));
    QCOMPARE(qvaudio::AudioService::instance()->getSourceVolByType(0), 17);
    m_root->setProperty("keyAnswer", 1);
    for (int key : {KeyEvent::VolumeUp, KeyEvent::VolumeDown, KeyEvent::Back, KeyEvent::Home}) {
        press(key);
    }
    QCOMPARE(qvaudio::AudioService::instance()->getSourceVolByType(0), 17);
    QCOMPARE(m_unit->place(), Unit::InApplication);
}

void TestUnit::backKey() {
    press(KeyEvent::Back);
    QCOMPARE(m_unit->place(), Unit::Home);
    m_unit->showCar();
    press(KeyEvent::Back);
    QCOMPARE(m_unit->place(), Unit::Home);

    m_unit->openApplication(app, Unit::Car);
    m_root->setProperty("backAnswer", 1);
    takeCalls();
    press(KeyEvent::Back);
    QCOMPARE(takeCalls(), QStringList({"keyEvent press 3", "backEvent", "keyEvent release 3"}));
    QCOMPARE(m_unit->place(), Unit::InApplication);
    m_root->setProperty("backAnswer", 0);
    press(KeyEvent::Back);
    QCOMPARE(m_unit->place(), Unit::Car);
}

void TestUnit::homeKey() {
    m_unit->openApplication(app, Unit::Car);
    m_root->setProperty("backAnswer", 1);
    press(KeyEvent::Home);
    QCOMPARE(m_unit->place(), Unit::Home);
    m_unit->showCar();
    press(KeyEvent::Home);
    QCOMPARE(m_unit->place(), Unit::Home);
    m_unit->pressHardKey(99);
    QCOMPARE(m_unit->place(), Unit::Home);
}

void TestUnit::statusBarFollowsTheApplication() {
    m_unit->openApplication(app, Unit::Home);
    // An application that leaves the bar alone has it above its own widget.
    QVERIFY(shows("status_bar"));
    QCOMPARE(m_screen->childAt(500, 10), child("status_bar"));
    cm::StatusBarControl::instance()->sethide(true);
    QVERIFY(!shows("status_bar"));
    m_unit->touch(Qx::TouchBack);
    QVERIFY(shows("status_bar"));
}

void TestUnit::statusBarEndsInALine() {
    const QImage bar = child("status_bar")->grab().toImage();
    for (int x = 0; x < bar.width(); ++x) {
        QCOMPARE(bar.pixelColor(x, bar.height() - 1), headunit::colour::hairline);
        QVERIFY(bar.pixelColor(x, bar.height() - 2) != headunit::colour::hairline);
    }
}

void TestUnit::sources() {
    QVERIFY(!m_unit->setSource(-1));
    QVERIFY(!m_unit->setSource(7));
    m_unit->showCar();
    QTest::mouseClick(child("car_source_prev"), Qt::LeftButton);
    QCOMPARE(EventHandler::instance()->control()->currentDspl(), 6);
    QCOMPARE(headunit::SoundModel::instance().state().activeSource, 6);
    QTest::mouseClick(child("car_source_next"), Qt::LeftButton);
    QCOMPARE(EventHandler::instance()->control()->currentDspl(), 0);
    QCOMPARE(headunit::SoundModel::instance().state().activeSource, 0);
}

void TestUnit::languages() {
    QVERIFY(!m_unit->setLanguage(QStringLiteral("xx")));
    QCOMPARE(headunit::Language::current(), QStringLiteral("en"));
    m_unit->showCar();
    QTest::mouseClick(child("car_language_fr"), Qt::LeftButton);
    QCOMPARE(headunit::Language::current(), QStringLiteral("fr"));
    QVERIFY(child("car_language_fr")->property("checked").toBool());
    QVERIFY(!child("car_language_en")->property("checked").toBool());
    // A second tap on the language in force does not take its mark away.
    QTest::mouseClick(child("car_language_fr"), Qt::LeftButton);
    QVERIFY(child("car_language_fr")->property("checked").toBool());
    // The choice is kept, other than a language that is only set.
    QVERIFY(m_unit->setLanguage(QStringLiteral("de")));
    m_unit->restoreLanguage();
    QCOMPARE(headunit::Language::current(), QStringLiteral("fr"));
    QTest::mouseClick(child("car_language_en"), Qt::LeftButton);
    QVERIFY(m_unit->setLanguage(QStringLiteral("de")));
    m_unit->restoreLanguage();
    QCOMPARE(headunit::Language::current(), QStringLiteral("en"));
}

void TestUnit::shutsDown() {
    m_unit->openApplication(app, Unit::Home);
    const QPointer<QObject> root = m_root;
    const QPointer<QWidget> widget = m_root->property("widget").value<QWidget *>();
    QVERIFY(widget);
    m_unit->shutDown();
    QVERIFY(!root);
    QVERIFY(!widget);
    m_unit->shutDown();
}

int main(int argc, char **argv) {
    headunit::prepareUnitApplication();
    new headunit::VirtualTime;  // Qt's from here on
    headunit::HostApplication application(argc, argv);
    headunit::setUpUnitApplication();
    TestUnit test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_unit.moc"
