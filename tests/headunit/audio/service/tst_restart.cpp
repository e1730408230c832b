// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/service/soundmodel.h"
#include "headunit/settings/settingsfile.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "pagecalls.h"
#include "tests/headunit/settings/saved.h"

#include <QtTest>

using namespace headunit;

class tst_Restart : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void sameSoundAfterRestart();
    void resetToTheShippedFactoryState();
    void resetToAnotherFactoryState();
    void resetWithoutFactoryFile();
    void restartAfterReset();

private:
    static const SoundState &sound() { return SoundModel::instance().state(); }
    /// The sound that another process would start with, from what is on the disk.
    static SoundState soundOnDisk() {
        Snapshot snapshot;
        SettingsFile(resolveUnitPath("/media/flash/nvm/settings/audiosettings.json")).peek(&snapshot);
        SettingsStore store;
        store.replaceAll(snapshot.values);
        return SoundModel(store).state();
    }
    void mixUp(unsigned seed) {
        PageCalls calls(seed);
        for (int call = 0; call < 500; ++call) {
            calls.any();
        }
    }
    void useFactory(const QByteArray &text) {
        closeSettings();
        QFile file(resolveUnitPath("/media/flash/nvm/factory/audiosettings.ini"));
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(text) == text.size());
        file.close();
        QCOMPARE(openSettings(), QStringList());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    quint32 m_seed = 0;
};

void tst_Restart::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    setUnitRoot(m_folder->path());
    QCOMPARE(openSettings(), QStringList());
    m_seed = std::random_device{}();
    qDebug("seed %u", m_seed);
    (void)sound();  // the sound side listens from its first use on
}

void tst_Restart::cleanup() {
    closeSettings();
}

void tst_Restart::sameSoundAfterRestart() {
    PageCalls calls(m_seed);
    for (int round = 0; round < 200; ++round) {
        for (int call = 0; call < 40; ++call) {
            calls.any();
        }
        const SoundState before = sound();
        QVERIFY(saved());
        QVERIFY(soundOnDisk() == before);
        if (round % 20 == 0) {
            closeSettings();
            QCOMPARE(openSettings(), QStringList());
            QVERIFY(sound() == before);
            SoundState limited = before;
            limited.channelLevel[0] = std::min(before.channelLevel[0], 30);  // as the factory file that ships says
            limitMainVolume();
            QVERIFY(sound() == limited);
        }
    }
}

namespace {

/// The calls of the reset itself, whatever the factory state holds.
SoundState afterReset() {
    SoundState state;
    state.eqType = 2;
    state.channelLevel.fill(15);
    state.sourceGain.fill(0);  // sent without their offset
    state.sourceGain[6] = 10;  // not sent at all
    state.subwooferLevel = 3;
    return state;
}

}  // namespace

void tst_Restart::resetToTheShippedFactoryState() {
    mixUp(m_seed);
    PageCalls::reset();
    SoundState expected = afterReset();
    expected.customEq.fill(12);
    QVERIFY(sound() == expected);
}

void tst_Restart::resetToAnotherFactoryState() {
    useFactory(
        "subwooferLevel=6\nSetup_Loudness=true\nADV_AUDIO_SETTINGS=1\nSoundFieldBalance=4\nsubwooferphase=1\n"
        "customeq1_3=5\neq5=20\naudioinputgain2=7\naudioinputgain6=-4\ninputgain1=33\n"
        "[crossover]\nfrontfreq=7\nfrontslope=2\nfrontlevel=9\nrearfreq=4\nrearslope=2\nrearlevel=5\n"
        "subwooferfreq=3\nsubwooferslope=3\nsubwooferlevel=8\n[timing]\nmsec2=9\nDATA_TYPE1=50\n");
    mixUp(m_seed);
    PageCalls::reset();
    SoundState expected = afterReset();
    expected.subwooferLevel = 6;
    expected.loudness = true;
    expected.defeat = true;       // not sent: as the store says
    expected.subwooferPhase = 1;  // likewise
    expected.customEq.fill(12);   // what the file does not name is flat
    expected.customEq[5] = 3;     // band and value change places: value 3 for band 5 ...
                                  // ... and every other index as a value for band 12
    expected.sourceGain[2] = 7;
    expected.sourceGain[6] = 6;
    expected.front = {7, 3, 5};  // slope and level from the rear's frequency index (4, at most 3) and level
    expected.rear = {4, 2, 5};
    expected.subwoofer = {3, 3, 8};
    expected.delay[2] = 9;
    QVERIFY(sound() == expected);
}

void tst_Restart::resetWithoutFactoryFile() {
    mixUp(m_seed);
    QVERIFY(saved());
    closeSettings();
    QVERIFY(QFile::remove(resolveUnitPath("/media/flash/nvm/factory/audiosettings.ini")));
    QCOMPARE(openSettings(), QStringList());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("factory file .*audiosettings.ini: .*shipped"));
    PageCalls::reset();
    SoundState expected = afterReset();
    expected.customEq.fill(12);
    QVERIFY(sound() == expected);
}

void tst_Restart::restartAfterReset() {
    mixUp(m_seed);
    PageCalls::reset();
    SoundState expected = sound();
    expected.sourceGain.fill(10);  // what the store says, now that nobody sends
    expected.subwooferLevel = 0;   // likewise: switched off
    QVERIFY(saved());
    closeSettings();
    QCOMPARE(openSettings(), QStringList());
    QVERIFY(sound() == expected);
}

QTEST_GUILESS_MAIN(tst_Restart)
#include "tst_restart.moc"
