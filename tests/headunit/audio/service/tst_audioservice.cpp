// SPDX-License-Identifier: Apache-2.0
#include "platform/audioservice.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/settings/trace.h"
#include "headunit/settings/unitsettings.h"
#include "platform/audiosettingsutils.h"
#include "platform/mcuservice.h"

#include <QtTest>

using namespace headunit;

class tst_AudioService : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void beep();
    void balanceFader();
    void eqType();
    void customEq();
    void levels();
    void oneLevelPerChannel();
    void volumeChanged();
    void muteIsReported();
    void followsFlat();
    void followsDefeat();
    void followsClear();
    void traced();
    void tracedReads();

private:
    qvaudio::AudioService *const m_service = qvaudio::AudioService::instance();
    AudioSettingsUtils *const m_settings = AudioSettingsUtils::instance();
    SoundModel &m_sound = SoundModel::instance();
};

void tst_AudioService::init() {
    audioStore().replaceAll({});
    m_sound.restore();
}

void tst_AudioService::cleanup() {
    m_sound.setMuted(false);
}

void tst_AudioService::beep() {
    QSignalSpy spy(&m_sound, SIGNAL(beeped(int)));
    m_service->doBeep(0);
    QCOMPARE(spy, QList<QVariantList>({{0}}));
}

void tst_AudioService::balanceFader() {
    int balance = 99;
    int fader = 99;
    m_service->getBalanceFader(balance, fader);
    QCOMPARE(balance, 0);
    QCOMPARE(fader, 0);
    m_service->setBalanceFader(-3, 7, true);
    m_service->getBalanceFader(balance, fader);
    QCOMPARE(balance, -3);
    QCOMPARE(fader, 7);
    QCOMPARE(m_sound.state().balance, -3);
    QCOMPARE(m_sound.state().fader, 7);
}

void tst_AudioService::eqType() {
    QCOMPARE(int(m_service->getCurrEQType()), 0);
    for (int type : {16, 20, 15, 1, 21, 2}) {
        m_service->setEQType(static_cast<AudioEQType>(type), true);
        QCOMPARE(int(m_service->getCurrEQType()), type);
    }
    QCOMPARE(audioStore().intValue("audioservice/eqtype", 0), 2);
}

void tst_AudioService::customEq() {
    QCOMPARE(m_service->getCustomEq(4), 12);  // a band that was never set is flat
    m_service->setCustomEq(24, 4, true);
    m_service->setCustomEq(-12, 5, true);
    QCOMPARE(m_service->getCustomEq(4), 24);
    QCOMPARE(m_service->getCustomEq(5), -12);
    QCOMPARE(m_settings->getValue("eq4", 0), 24);
    QCOMPARE(m_settings->getValue("eq5", 0), -12);
    QCOMPARE(int(m_service->getCurrEQType()), 0);  // a band does not select the curve
    m_service->setCustomEq(7, 13, true);
    m_service->setCustomEq(7, -1, true);
    QCOMPARE(audioStore().values().size(), 2);
}

void tst_AudioService::levels() {
    for (int type = 0; type < SoundState::channels; ++type) {
        QCOMPARE(m_service->getSourceVolByType(type), 16);
        m_service->setVolumeLevel(type + 30, type);
        QCOMPARE(m_service->getSourceVolByType(type), type + 30);
        QCOMPARE(m_settings->getValue(QString("inputgain%1").arg(type), 16), type + 30);
    }
}

void tst_AudioService::oneLevelPerChannel() {
    mcu::McuService::instance()->setAudioVolumeValue(3, 33);
    QCOMPARE(m_service->getSourceVolByType(3), 33);
    QCOMPARE(m_settings->getValue("inputgain3", 16), 33);
}

void tst_AudioService::volumeChanged() {
    QSignalSpy spy(m_service, SIGNAL(audioVolumeChanged(int, int, int)));
    m_service->setVolumeLevel(12, 0);
    m_service->setVolumeLevel(12, 0);
    mcu::McuService::instance()->setAudioVolumeValue(0, 12);
    mcu::McuService::instance()->setAudioVolumeValue(6, 5);
    m_service->setVolumeLevel(50, 5);
    m_service->setVolumeLevel(40, 5);
    m_service->setVolumeLevel(16, 1);
    m_service->setVolumeLevel(3, 8);
    QCOMPARE(spy, QList<QVariantList>({{0, 12, 0}, {0, 5, 6}, {0, 40, 5}}));
}

void tst_AudioService::muteIsReported() {
    QSignalSpy spy(m_service, SIGNAL(audioVolumeChanged(int, int, int)));
    m_sound.setMuted(true);
    QCOMPARE(spy.count(), 0);  // no level changed
    m_service->setVolumeLevel(12, 0);
    QCOMPARE(spy, QList<QVariantList>({{1, 12, 0}}));
    QCOMPARE(m_service->getSourceVolByType(0), 12);
}

void tst_AudioService::followsFlat() {
    mcu::McuService *mcu = mcu::McuService::instance();
    int delays[] = {1, 2, 3, 4, 5, 6};
    mcu->setAudioTimerDelay(1, delays);
    mcu->setCrossoverFrontFreq(3, 2, 1);
    mcu->setCrossoverRearFreq(3, 2, 1);
    mcu->setLPFValue(3, 2, 1);
    SoundState expected = m_sound.state();
    expected.delay = {};
    m_settings->flatTimeDelay();
    QVERIFY(m_sound.state() == expected);
    expected.front = expected.rear = expected.subwoofer = {0, 1, 12};
    m_settings->flatCrossover();
    QVERIFY(m_sound.state() == expected);
}

void tst_AudioService::followsDefeat() {
    m_settings->setValue("ADV_AUDIO_SETTINGS", 0, true, true);
    QVERIFY(!m_sound.state().defeat);  // until it is asked for
    m_settings->updateDefeatSetup();
    QVERIFY(m_sound.state().defeat);
    m_settings->setValue("ADV_AUDIO_SETTINGS", 0, false, true);
    m_settings->updateDefeatSetup();
    QVERIFY(!m_sound.state().defeat);
}

void tst_AudioService::followsClear() {
    m_service->setVolumeLevel(30, 2);
    m_service->setCustomEq(5, 5, true);
    m_service->setEQType(AudioEQRock, true);
    m_service->setBalanceFader(5, 5, true);
    QSignalSpy spy(m_service, SIGNAL(audioVolumeChanged(int, int, int)));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("factory file .*nowhere.ini"));
    m_settings->clear("/nowhere.ini");
    SettingsStore empty;
    QVERIFY(m_sound.state() == SoundModel(empty).state());
    QCOMPARE(spy, QList<QVariantList>({{0, 16, 2}}));
}

void tst_AudioService::traced() {
    QStringList lines;
    const TraceListener listener([&lines](const TraceEntry &entry) { lines << entry.call + " -> " + entry.meaning; });
    m_service->doBeep(0);
    m_service->setBalanceFader(3, -2, true);
    m_service->setEQType(AudioEQRock, true);
    m_service->setCustomEq(15, 0, true);
    m_service->setVolumeLevel(12, 3);
    m_service->getCurrEQType();
    m_service->getCustomEq(0);
    m_service->getSourceVolByType(3);
    QCOMPARE(lines,
             QStringList(
                 {"doBeep(0) -> key click", "setBalanceFader(3, -2, true) -> balance 3 right, fader 2 front",
                  "setEQType(3, true) -> equaliser Rock", "audioservice/eqtype = 3 -> store: audioservice/eqtype = 3",
                  "setCustomEq(15, 0, true) -> band 63 Hz: +3 dB", "eq0 = 15 -> store: eq0 = 15",
                  "setVolumeLevel(12, 3) -> navigation volume 12 of 40", "inputgain3 = 12 -> store: inputgain3 = 12",
                  "audioVolumeChanged(0, 12, 3) -> announced: navigation volume 12 of 40"}));
}

void tst_AudioService::tracedReads() {
    QStringList lines;
    const TraceListener listener([&lines](const TraceEntry &entry) { lines << entry.call + " -> " + entry.meaning; },
                                 TraceListener::WithReads);
    int balance = 0;
    int fader = 0;
    m_service->getBalanceFader(balance, fader);
    m_service->getCurrEQType();
    m_service->getCustomEq(0);
    m_service->getSourceVolByType(3);
    QCOMPARE(lines, QStringList({"getBalanceFader(0, 0) -> balance centre, fader centre",
                                 "getCurrEQType() -> equaliser is Flat", "getCustomEq(0) -> band 63 Hz: 0 dB",
                                 "getSourceVolByType(3) -> navigation volume 16 of 40"}));
}

QTEST_GUILESS_MAIN(tst_AudioService)
#include "tst_audioservice.moc"
