// SPDX-License-Identifier: Apache-2.0
#include "platform/mcuservice.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/settings/linelimit.h"
#include "headunit/settings/trace.h"
#include "headunit/settings/unitsettings.h"
#include "tests/headunit/settings/logwatch.h"

#include <QtTest>

#include <limits>

using namespace headunit;

class tst_McuService : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void everyOperation();
    void delaysAreReadDuringTheCall();
    void delaysWithoutArray();
    void outOfRange();
    void traced();

private:
    const SoundState &state() const { return SoundModel::instance().state(); }
    mcu::McuService *const m_mcu = mcu::McuService::instance();
};

void tst_McuService::init() {
    setLineClock([time = qint64(0)]() mutable { return time += 1000; });  // no line is one too many
    audioStore().replaceAll({});
    SoundModel::instance().restore();
}

void tst_McuService::everyOperation() {
    SoundState expected = state();
    m_mcu->setLoudness(1);
    expected.loudness = true;
    QVERIFY(state() == expected);
    m_mcu->setSubwooferValue(7);
    expected.subwooferLevel = 7;
    QVERIFY(state() == expected);
    m_mcu->setSubwooferPhase(1);
    expected.subwooferPhase = 1;
    QVERIFY(state() == expected);
    m_mcu->setCrossoverFrontFreq(11, 2, 3);
    expected.front = {11, 2, 3};
    QVERIFY(state() == expected);
    m_mcu->setCrossoverRearFreq(5, 3, 4);
    expected.rear = {5, 3, 4};
    QVERIFY(state() == expected);
    m_mcu->setLPFValue(4, 1, 5);
    expected.subwoofer = {4, 1, 5};
    QVERIFY(state() == expected);
    m_mcu->setAudioVolumeValue(4, 31);
    expected.channelLevel[4] = 31;
    QVERIFY(state() == expected);
    m_mcu->setAudioInputGainValue(6, 20);
    expected.sourceGain[6] = 20;
    QVERIFY(state() == expected);
    int delays[] = {1, 2, 3, 4, 5, 99};
    m_mcu->setAudioTimerDelay(1, delays);
    expected.delay = {1, 2, 3, 4, 5, 99};
    QVERIFY(state() == expected);
    m_mcu->setLoudness(0);
    expected.loudness = false;
    QVERIFY(state() == expected);
    QCOMPARE(audioStore().values(), (SettingsMap{{"inputgain4", 31}}));  // the rest is the pages' to keep
}

void tst_McuService::delaysAreReadDuringTheCall() {
    {
        int delays[] = {1, 2, 3, 4, 5, 6};
        m_mcu->setAudioTimerDelay(1, delays);
        std::fill(std::begin(delays), std::end(delays), 50);
    }
    QVERIFY((state().delay == std::array<int, 6>{1, 2, 3, 4, 5, 6}));
}

void tst_McuService::delaysWithoutArray() {
    LogWatch log;
    const SoundState before = state();
    int delays[] = {1, 2, 3, 4, 5, 6};
    m_mcu->setAudioTimerDelay(1, nullptr);
    m_mcu->setAudioTimerDelay(0, delays);
    QVERIFY(state() == before);
    QCOMPARE(log.takeDebug().size(), 2);
}

void tst_McuService::outOfRange() {
    LogWatch log;
    const SoundState before = state();
    for (int nowhere : {-1, 12, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        m_mcu->setSubwooferPhase(nowhere);
        m_mcu->setCrossoverFrontFreq(nowhere, 1, 12);
        m_mcu->setCrossoverRearFreq(nowhere, 1, 12);
        m_mcu->setLPFValue(nowhere, 1, 12);
        m_mcu->setAudioVolumeValue(nowhere, 3);
        m_mcu->setAudioInputGainValue(nowhere, 3);
    }
    QVERIFY(state() == before);
    QCOMPARE(log.takeDebug().size(), 24);
    m_mcu->setSubwooferValue(99);
    QVERIFY(state() == before);
    m_mcu->setAudioInputGainValue(0, -10);
    QCOMPARE(state().sourceGain[0], 0);
    m_mcu->setCrossoverFrontFreq(3, 0, 99);
    QVERIFY(state().front == before.front);
    m_mcu->setCrossoverFrontFreq(3, 0, 12);
    QVERIFY((state().front == CrossoverFilter{3, 1, 12}));
}

void tst_McuService::traced() {
    QStringList lines;
    const TraceListener listener([&lines](const TraceEntry &entry) { lines << entry.call + " -> " + entry.meaning; });
    int delays[] = {5, 0, 0, 0, 0, 0};
    m_mcu->setLoudness(1);
    m_mcu->setSubwooferValue(4);
    m_mcu->setSubwooferPhase(1);
    m_mcu->setCrossoverFrontFreq(3, 2, 10);
    m_mcu->setCrossoverRearFreq(0, 1, 12);
    m_mcu->setLPFValue(4, 3, 12);
    m_mcu->setAudioTimerDelay(1, delays);
    m_mcu->setAudioTimerDelay(1, nullptr);
    m_mcu->setAudioVolumeValue(2, 40);
    m_mcu->setAudioInputGainValue(1, 12);
    QCOMPARE(lines,
             QStringList(
                 {"setLoudness(1) -> loudness on", "setSubwooferValue(4) -> subwoofer level 4 (-9.0 dB)",
                  "setSubwooferPhase(1) -> subwoofer phase 180 degrees",
                  "setCrossoverFrontFreq(3, 2, 10) -> front high-pass 63 Hz, 12 dB/oct, -2 dB",
                  "setCrossoverRearFreq(0, 1, 12) -> rear high-pass off, 6 dB/oct, 0 dB",
                  "setLPFValue(4, 3, 12) -> subwoofer low-pass 100 Hz, 18 dB/oct, 0 dB",
                  "setAudioTimerDelay(1, {5, 0, 0, 0, 0, 0}) -> delays in ms: FL 0.5, FR 0.0, RL 0.0, RR 0.0, "
                  "SL 0.0, SR 0.0",
                  "setAudioTimerDelay(1) -> no delays, ignored", "setAudioVolumeValue(2, 40) -> phone volume 40 of 40",
                  "inputgain2 = 40 -> store: inputgain2 = 40", "setAudioInputGainValue(1, 12) -> USB gain +2 dB"}));
}

QTEST_GUILESS_MAIN(tst_McuService)
#include "tst_mcuservice.moc"
