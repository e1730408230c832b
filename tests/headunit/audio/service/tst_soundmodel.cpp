// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/service/soundmodel.h"

#include "headunit/settings/linelimit.h"
#include "tests/headunit/settings/logwatch.h"

#include <QtTest>

#include <functional>
#include <limits>
#include <random>

using namespace headunit;

using Call = std::function<void(SoundModel &)>;
using Expected = std::function<void(SoundState &)>;
Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Expected)

class tst_SoundModel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void emptyStore();
    void setters_data();
    void setters();
    void keepsWhatNoPageWrites();
    void readsOfNothing();
    void levelsAreAnnounced();
    void aListenerMayAnswerALevelWithALevel();
    void listenersThatNeverAgreeAreLeftAlone();
    void promptsComeAndGo();
    void faults();
    void restoresEveryKey();
    void restoresParts();
    void storedNonsense_data();
    void storedNonsense();
    void aStoredIndexInNoTableMeansOff_data();
    void aStoredIndexInNoTableMeansOff();
    void aStoredValueOutOfRangeIsReportedAsItStands();
    void storedLevelsOutOfRangeAreNeverLoud();
    void anyValueStaysInRange();
    void noCallOutOfRangeIsLouder();
    void refusedValuesAreOneLineASecond();
    void beeps();
};

/// Each line comes a second after the one before.
void tst_SoundModel::init() {
    setLineClock([time = qint64(0)]() mutable { return time += 1000; });
}

void tst_SoundModel::cleanup() {
    setLineClock({});
}

void tst_SoundModel::emptyStore() {
    SettingsStore store;
    const SoundModel model(store);
    SoundState expected;
    expected.customEq.fill(12);
    expected.channelLevel.fill(16);
    expected.sourceGain.fill(10);
    QVERIFY(model.state() == expected);
    QCOMPARE(model.state().front.level, 12);
    QCOMPARE(model.state().front.slope, 1);
    QCOMPARE(model.state().subwooferLevel, 0);  // switched off
    QVERIFY(store.values().isEmpty());
}

void tst_SoundModel::setters_data() {
    QTest::addColumn<Call>("call");
    QTest::addColumn<Expected>("expected");
    QTest::addColumn<int>("lines");  // of debug output
    const auto row = [](const char *name, int lines, Call call, Expected expected) {
        QTest::newRow(name) << call << expected << lines;
    };
    using M = SoundModel &;
    using S = SoundState &;
    constexpr int far = std::numeric_limits<int>::max();
    constexpr int near = std::numeric_limits<int>::min();
    row(
        "curve", 0, [](M m) { m.setEqType(3); }, [](S s) { s.eqType = 3; });
    row(
        "curve without a name", 0, [](M m) { m.setEqType(15); }, [](S s) { s.eqType = 15; });
    row(
        "band", 0, [](M m) { m.setCustomEq(12, 24); }, [](S s) { s.customEq[12] = 24; });
    row(
        "band in gains", 0, [](M m) { m.setCustomEq(0, -12); }, [](S s) { s.customEq[0] = -12; });
    row(
        "band too high", 1, [](M m) { m.setCustomEq(0, 25); }, [](S) {});
    row(
        "band too low", 1, [](M m) { m.setCustomEq(0, near); }, [](S s) { s.customEq[0] = -12; });
    row(
        "band 13", 1, [](M m) { m.setCustomEq(13, 5); }, [](S) {});
    row(
        "band -1", 1, [](M m) { m.setCustomEq(-1, 5); }, [](S) {});
    row(
        "balance, fader", 0, [](M m) { m.setBalanceFader(-15, 15); }, [](S s) { s.balance = -15, s.fader = 15; });
    row(
        "balance, fader too far", 2, [](M m) { m.setBalanceFader(16, near); },
        [](S s) { s.balance = 15, s.fader = -15; });
    row(
        "level", 0, [](M m) { m.setChannelLevel(7, 40); }, [](S s) { s.channelLevel[7] = 40; });
    row(
        "level too high", 1, [](M m) { m.setChannelLevel(0, 41); }, [](S) {});
    row(
        "level too low", 1, [](M m) { m.setChannelLevel(0, -1); }, [](S) {});
    row(
        "channel 8", 1, [](M m) { m.setChannelLevel(8, 5); }, [](S) {});
    row(
        "channel -1", 1, [](M m) { m.setChannelLevel(-1, 5); }, [](S) {});
    row(
        "gain", 0, [](M m) { m.setSourceGain(6, 20); }, [](S s) { s.sourceGain[6] = 20; });
    row(
        "gain without its offset", 1, [](M m) { m.setSourceGain(0, -10); }, [](S s) { s.sourceGain[0] = 0; });
    row(
        "gain too high", 1, [](M m) { m.setSourceGain(0, far); }, [](S s) { s.sourceGain[0] = 20; });
    row(
        "source 7", 1, [](M m) { m.setSourceGain(7, 5); }, [](S) {});
    row(
        "source -1", 1, [](M m) { m.setSourceGain(-1, 5); }, [](S) {});
    row(
        "loudness", 0, [](M m) { m.setLoudness(1); }, [](S s) { s.loudness = true; });
    row(
        "loudness 2", 1, [](M m) { m.setLoudness(2); }, [](S s) { s.loudness = true; });
    row(
        "loudness -1", 1, [](M m) { m.setLoudness(-1); }, [](S) {});
    row(
        "subwoofer", 0, [](M m) { m.setSubwooferLevel(15); }, [](S s) { s.subwooferLevel = 15; });
    row(
        "subwoofer too high", 1, [](M m) { m.setSubwooferLevel(16); }, [](S) {});
    row(
        "subwoofer too low", 1, [](M m) { m.setSubwooferLevel(-1); }, [](S) {});
    row(
        "phase", 0, [](M m) { m.setSubwooferPhase(1); }, [](S s) { s.subwooferPhase = 1; });
    row(
        "phase 2", 1, [](M m) { m.setSubwooferPhase(2); }, [](S) {});
    row(
        "phase -1", 1, [](M m) { m.setSubwooferPhase(-1); }, [](S) {});
    row(
        "front", 0,
        [](M m) {
            m.setFilter(FilterChannel::Front, {11, 3, 0});
        },
        [](S s) {
            s.front = {11, 3, 0};
        });
    row(
        "rear", 0,
        [](M m) {
            m.setFilter(FilterChannel::Rear, {5, 2, 1});
        },
        [](S s) {
            s.rear = {5, 2, 1};
        });
    row(
        "low-pass", 0,
        [](M m) {
            m.setFilter(FilterChannel::Subwoofer, {5, 2, 1});
        },
        [](S s) {
            s.subwoofer = {5, 2, 1};
        });
    row(
        "front index 12", 1,
        [](M m) {
            m.setFilter(FilterChannel::Front, {12, 3, 0});
        },
        [](S) {});
    row(
        "rear index 6", 1,
        [](M m) {
            m.setFilter(FilterChannel::Rear, {6, 3, 0});
        },
        [](S) {});
    row(
        "low-pass index 6", 1,
        [](M m) {
            m.setFilter(FilterChannel::Subwoofer, {6, 3, 0});
        },
        [](S) {});
    row(
        "front index -1", 1,
        [](M m) {
            m.setFilter(FilterChannel::Front, {-1, 3, 0});
        },
        [](S) {});
    row(
        "filter level too high", 1,
        [](M m) {
            m.setFilter(FilterChannel::Front, {3, 0, 13});
        },
        [](S) {});
    row(
        "slope 0", 1,
        [](M m) {
            m.setFilter(FilterChannel::Front, {3, 0, 12});
        },
        [](S s) {
            s.front = {3, 1, 12};
        });
    row(
        "slope 4, level -1", 2,
        [](M m) {
            m.setFilter(FilterChannel::Front, {3, 4, -1});
        },
        [](S s) {
            s.front = {3, 3, 0};
        });
    row(
        "delays", 0,
        [](M m) {
            m.setDelays({0, 99, 1, 2, 3, 4});
        },
        [](S s) { s.delay = {0, 99, 1, 2, 3, 4}; });
    row(
        "delays too far", 2,
        [](M m) {
            m.setDelays({-1, 100, 1, 2, 3, 4});
        },
        [](S s) { s.delay = {0, 99, 1, 2, 3, 4}; });
    row(
        "source in force", 0, [](M m) { m.setActiveSource(6); }, [](S s) { s.activeSource = 6; });
    row(
        "source in force 7", 1, [](M m) { m.setActiveSource(7); }, [](S) {});
    row(
        "mute", 0, [](M m) { m.setMuted(true); }, [](S s) { s.muted = true; });
    row(
        "trim", 0, [](M m) { m.setTrim(-35); }, [](S s) { s.trim = -35; });
    row(
        "trim louder", 1, [](M m) { m.setTrim(1); }, [](S) {});
    row(
        "trim too far", 1, [](M m) { m.setTrim(-601); }, [](S s) { s.trim = -600; });
    row(
        "a whole state", 0,
        [](M m) {
            SoundState state = m.state();
            state.balance = 5;
            state.delay[2] = 7;
            state.channelLevel[1] = 3;
            state.activeSource = 3;  // what plays is no part of it
            state.muted = true;
            state.activePrompts[1] = true;
            state.trim = -20;
            m.adopt(state);
        },
        [](S s) {
            s.balance = 5;
            s.delay[2] = 7;
            s.channelLevel[1] = 3;
        });
    row(
        "prompt", 0, [](M m) { m.setPromptActive(Prompt::Voice, true); }, [](S s) { s.activePrompts[3] = true; });
}

void tst_SoundModel::setters() {
    QFETCH(Call, call);
    QFETCH(Expected, expected);
    QFETCH(int, lines);
    SettingsStore store;
    SoundModel model(store);
    SoundState state = model.state();
    expected(state);
    const int changes = state == model.state() ? 0 : 1;
    QSignalSpy changed(&model, SIGNAL(changed()));
    LogWatch log;
    call(model);
    QVERIFY(model.state() == state);
    QCOMPARE(changed.count(), changes);
    QCOMPARE(log.takeDebug().size(), lines);
    QCOMPARE(log.takeWarnings(), QStringList());
    call(model);  // the same again changes nothing
    QVERIFY(model.state() == state);
    QCOMPARE(changed.count(), changes);
}

void tst_SoundModel::keepsWhatNoPageWrites() {
    SettingsStore store;
    SoundModel model(store);
    model.setCustomEq(3, -12);
    model.setCustomEq(4, 24);
    model.setCustomEq(4, 30);  // void
    model.setChannelLevel(5, 12);
    model.setChannelLevel(0, 16);  // what it is already: kept all the same
    model.setEqType(16);
    model.setCustomEq(13, 1);
    model.setChannelLevel(8, 1);
    model.setChannelLevel(5, 41);
    QCOMPARE(
        store.values(),
        (SettingsMap{{"eq3", -12}, {"eq4", 24}, {"inputgain5", 12}, {"inputgain0", 16}, {"audioservice/eqtype", 16}}));
    // The model leaves to the pages the keys that they write themselves.
    const SettingsMap before = store.values();
    model.setBalanceFader(1, 2);
    model.setLoudness(1);
    model.setSubwooferLevel(4);
    model.setSubwooferPhase(1);
    model.setFilter(FilterChannel::Rear, {1, 2, 3});
    model.setDelays({1, 2, 3, 4, 5, 6});
    model.setSourceGain(1, 3);
    model.setMuted(true);
    model.setPromptActive(Prompt::Phone, true);
    model.setActiveSource(2);
    QCOMPARE(store.values(), before);
}

void tst_SoundModel::readsOfNothing() {
    SettingsStore store;
    SoundModel model(store);
    model.setCustomEq(12, 7);
    model.setChannelLevel(7, 9);
    QCOMPARE(model.customEq(12), 7);
    QCOMPARE(model.channelLevel(7), 9);
    LogWatch log;
    for (int number : {-1, 13, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        QCOMPARE(model.customEq(number), 0);
        QCOMPARE(model.channelLevel(number), 0);
    }
    QCOMPARE(log.takeDebug().size(), 8);
}

void tst_SoundModel::levelsAreAnnounced() {
    SettingsStore store;
    SoundModel model(store);
    QSignalSpy spy(&model, SIGNAL(channelLevelChanged(int, int)));
    model.setChannelLevel(3, 20);
    model.setChannelLevel(3, 20);
    model.setChannelLevel(3, 41);
    model.setChannelLevel(3, 40);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(spy.at(0), QVariantList({3, 20}));
    QCOMPARE(spy.at(1), QVariantList({3, 40}));
    spy.clear();
    // A reset of the store is a change like any other.
    store.replaceAll({{"inputgain3", 40}, {"inputgain6", 2}});
    model.restore();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0), QVariantList({6, 2}));
}

void tst_SoundModel::aListenerMayAnswerALevelWithALevel() {
    SettingsStore store;
    SoundModel model(store);
    std::vector<std::pair<int, int>> heardLater;
    connect(&model, &SoundModel::channelLevelChanged, this, [&model](int channel, int level) {
        if (channel == 0 && level == 20) {
            model.setChannelLevel(0, 30);
            model.setChannelLevel(3, 5);
            QCOMPARE(model.channelLevel(0), 30);
        }
    });
    connect(&model, &SoundModel::channelLevelChanged, this,
            [&heardLater](int channel, int level) { heardLater.emplace_back(channel, level); });
    model.setChannelLevel(0, 20);
    QVERIFY((heardLater == std::vector<std::pair<int, int>>{{0, 20}, {0, 30}, {3, 5}}));
    // A level that is taken back at once is announced as what it was before.
    heardLater.clear();
    connect(&model, &SoundModel::channelLevelChanged, this, [&model](int channel, int level) {
        if (channel == 6 && level == 40) {
            model.setChannelLevel(6, 16);
        }
    });
    model.setChannelLevel(6, 40);
    QVERIFY((heardLater == std::vector<std::pair<int, int>>{{6, 40}, {6, 16}}));
}

void tst_SoundModel::listenersThatNeverAgreeAreLeftAlone() {
    SettingsStore store;
    SoundModel model(store);
    int heard = 0;
    const auto quarrel = connect(&model, &SoundModel::channelLevelChanged, this, [&](int channel, int level) {
        ++heard;
        model.setChannelLevel(channel, level == 10 ? 11 : 10);
    });
    LogWatch log;
    model.setChannelLevel(0, 10);
    QCOMPARE(log.takeWarnings().size(), 1);
    QVERIFY(heard > 1 && heard <= 1000);
    disconnect(quarrel);
    QSignalSpy spy(&model, SIGNAL(channelLevelChanged(int, int)));
    model.setChannelLevel(0, 33);
    QCOMPARE(spy, QList<QVariantList>({{0, 33}}));
}

void tst_SoundModel::promptsComeAndGo() {
    SettingsStore store;
    SoundModel model(store);
    for (int i = 0; i < SoundState::prompts; ++i) {
        model.setPromptActive(static_cast<Prompt>(i), true);
        for (int other = 0; other < SoundState::prompts; ++other) {
            QCOMPARE(model.state().activePrompts[size_t(other)], other == i);
        }
        model.setPromptActive(static_cast<Prompt>(i), false);
    }
}

void tst_SoundModel::faults() {
    SettingsStore store;
    SoundModel model(store);
    QSignalSpy spy(&model, SIGNAL(faultChanged()));
    QVERIFY(model.fault() == SoundFault::None);
    model.setFault(SoundFault::NoServer);
    model.setFault(SoundFault::NoServer);
    QCOMPARE(spy.count(), 1);
    QVERIFY(model.fault() == SoundFault::NoServer);
}

void tst_SoundModel::restoresEveryKey() {
    SettingsStore store;
    SettingsMap values{{"audioservice/eqtype", 16},    {"SoundFieldBalance", -4},
                       {"SoundFieldFader", 5},         {"Setup_Sub", true},
                       {"subwooferLevel", 9},          {"subwooferphase", 1},
                       {"Setup_Loudness", true},       {"ADV_AUDIO_SETTINGS", true},
                       {"crossover/frontfreq", 11},    {"crossover/frontslope", 2},
                       {"crossover/frontlevel", 3},    {"crossover/rearfreq", 4},
                       {"crossover/rearslope", 3},     {"crossover/rearlevel", 5},
                       {"crossover/subwooferfreq", 5}, {"crossover/subwooferslope", 2},
                       {"crossover/subwooferlevel", 7}};
    SoundState expected;
    for (int band = 0; band < SoundState::bands; ++band) {
        values.insert(QString("eq%1").arg(band), band + 1);
        expected.customEq[size_t(band)] = band + 1;
    }
    for (int channel = 0; channel < SoundState::channels; ++channel) {
        values.insert(QString("inputgain%1").arg(channel), channel + 20);
        expected.channelLevel[size_t(channel)] = channel + 20;
    }
    for (int source = 0; source < SoundState::sources; ++source) {
        values.insert(QString("audioinputgain%1").arg(source), source - 3);
        expected.sourceGain[size_t(source)] = source + 7;
    }
    for (int output = 0; output < SoundState::outputs; ++output) {
        values.insert(QString("timing/DATA_TYPE%1").arg(output), output + 90);
        expected.delay[size_t(output)] = output + 90;
    }
    expected.eqType = 16;
    expected.balance = -4;
    expected.fader = 5;
    expected.subwooferLevel = 9;
    expected.subwooferPhase = 1;
    expected.loudness = true;
    expected.defeat = true;
    expected.front = {11, 2, 3};
    expected.rear = {4, 3, 5};
    expected.subwoofer = {5, 2, 7};
    expected.activeSource = 4;
    expected.muted = true;
    expected.activePrompts[2] = true;
    expected.trim = -20;
    SoundModel model(store);
    model.setActiveSource(4);
    model.setMuted(true);
    model.setPromptActive(Prompt::Navigation, true);
    model.setTrim(-20);
    store.replaceAll(values);
    QSignalSpy changed(&model, SIGNAL(changed()));
    model.restore();
    QVERIFY(model.state() == expected);
    QCOMPARE(changed.count(), 1);
    model.restore();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(store.values(), values);  // reading writes nothing
}

void tst_SoundModel::restoresParts() {
    SettingsStore store;
    SoundModel model(store);
    store.replaceAll({{"ADV_AUDIO_SETTINGS", 1}, {"timing/DATA_TYPE2", 7}, {"crossover/rearfreq", 3}, {"eq0", 5}});
    SoundState expected = model.state();
    model.restore(SoundPart::Defeat);
    expected.defeat = true;
    QVERIFY(model.state() == expected);
    model.restore(SoundPart::Delays);
    expected.delay[2] = 7;
    QVERIFY(model.state() == expected);
    model.restore(SoundPart::Crossover);
    expected.rear.freq = 3;
    QVERIFY(model.state() == expected);
    model.restore(SoundPart::All);
    expected.customEq[0] = 5;
    QVERIFY(model.state() == expected);
}

void tst_SoundModel::storedNonsense_data() {
    QTest::addColumn<QVariant>("value");
    QTest::newRow("largest") << QVariant(std::numeric_limits<int>::max());
    QTest::newRow("smallest") << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("beyond int") << QVariant(Q_INT64_C(5000000000));
    QTest::newRow("text") << QVariant("loud");
    QTest::newRow("fraction") << QVariant(0.5);
    QTest::newRow("truth") << QVariant(true);
}

namespace {

bool inRange(const SoundState &state) {
    const auto within = [](int value, int low, int high) { return value >= low && value <= high; };
    bool good = within(state.balance, -15, 15) && within(state.fader, -15, 15) && within(state.subwooferLevel, 0, 15) &&
                within(state.subwooferPhase, 0, 1) && within(state.activeSource, 0, 6) &&
                within(state.front.freq, 0, 11) && within(state.rear.freq, 0, 5) && within(state.subwoofer.freq, 0, 5);
    for (const CrossoverFilter &filter : {state.front, state.rear, state.subwoofer}) {
        good = good && within(filter.slope, 1, 3) && within(filter.level, 0, 12);
    }
    for (int value : state.customEq) {
        good = good && within(value, -12, 24);
    }
    for (int value : state.channelLevel) {
        good = good && within(value, 0, 40);
    }
    for (int value : state.sourceGain) {
        good = good && within(value, 0, 20);
    }
    for (int value : state.delay) {
        good = good && within(value, 0, 99);
    }
    return good;
}

}  // namespace

void tst_SoundModel::storedNonsense() {
    QFETCH(QVariant, value);
    LogWatch log;
    SettingsStore store;
    for (const char *key :
         {"audioservice/eqtype", "SoundFieldBalance", "SoundFieldFader", "Setup_Sub", "subwooferLevel",
          "subwooferphase", "Setup_Loudness", "ADV_AUDIO_SETTINGS", "crossover/frontfreq", "crossover/frontslope",
          "crossover/frontlevel", "crossover/rearfreq", "crossover/rearslope", "crossover/rearlevel",
          "crossover/subwooferfreq", "crossover/subwooferslope", "crossover/subwooferlevel"}) {
        store.set(key, value);
    }
    for (int number = 0; number < 13; ++number) {
        for (const char *key : {"eq%1", "inputgain%1", "audioinputgain%1", "timing/DATA_TYPE%1"}) {
            store.set(QString(key).arg(number), value);
        }
    }
    const SoundModel model(store);
    QVERIFY(inRange(model.state()));
    if (value.type() == QVariant::String) {
        SettingsStore empty;
        QVERIFY(model.state() == SoundModel(empty).state());
    }
    QCOMPARE(log.takeWarnings(), QStringList());
}

void tst_SoundModel::aStoredIndexInNoTableMeansOff_data() {
    QTest::addColumn<QString>("key");
    QTest::addColumn<int>("index");
    const QList<QPair<const char *, int>> tables{
        {"subwooferphase", 2}, {"crossover/frontfreq", 12}, {"crossover/rearfreq", 6}, {"crossover/subwooferfreq", 6}};
    for (const auto &table : tables) {
        for (int index :
             {table.second, table.second + 1, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            QTest::addRow("%s %d", table.first, index) << QString::fromLatin1(table.first) << index;
        }
    }
}

/// No nearest entry is taken: a phase of 180 degrees or a filter that nobody chose would be heard.
void tst_SoundModel::aStoredIndexInNoTableMeansOff() {
    QFETCH(QString, key);
    QFETCH(int, index);
    SettingsStore store;
    for (const char *other : {"crossover/frontfreq", "crossover/rearfreq", "crossover/subwooferfreq"}) {
        store.set(other, 3);
    }
    store.set("subwooferphase", 1);
    SoundState expected = SoundModel(store).state();
    QCOMPARE(expected.subwooferPhase, 1);
    QCOMPARE(expected.front.freq, 3);
    if (key == "subwooferphase") {
        expected.subwooferPhase = 0;
    } else {
        (key.contains("front") ? expected.front : key.contains("rear") ? expected.rear : expected.subwoofer).freq = 0;
    }
    store.set(key, index);
    LogWatch log;
    QVERIFY(SoundModel(store).state() == expected);
    QCOMPARE(log.takeDebug().filter(key).size(), 1);
}

void tst_SoundModel::aStoredValueOutOfRangeIsReportedAsItStands() {
    SettingsStore store;
    store.set("eq3", 99);
    store.set("eq12", -13);
    store.set("audioinputgain5", std::numeric_limits<int>::max());
    store.set("audioinputgain6", -11);
    LogWatch log;
    const SoundModel model(store);
    QCOMPARE(log.takeDebug(), QStringList({"sound: eq3 99 is not within -12 to 24, taken as 12",
                                           "sound: eq12 -13 is not within -12 to 24, taken as 12",
                                           "sound: audioinputgain5 2147483647 is not within -10 to 10, taken as 10",
                                           "sound: audioinputgain6 -11 is not within -10 to 10, taken as -10"}));
    QCOMPARE(model.state().customEq[3], 12);
    QCOMPARE(model.state().customEq[12], 12);
    QCOMPARE(model.state().sourceGain[5], 20);
    QCOMPARE(model.state().sourceGain[6], 0);
}

/// Whatever a store that was damaged, or made elsewhere, says: what decides how loud it is has its readers' default.
void tst_SoundModel::storedLevelsOutOfRangeAreNeverLoud() {
    SettingsStore empty;
    const SoundState expected = SoundModel(empty).state();
    for (const int value : {-1000, 25, 41, 99999, std::numeric_limits<int>::max()}) {
        SettingsStore store;
        for (int number = 0; number < SoundState::bands; ++number) {
            store.set(QString("eq%1").arg(number), value);
            store.set(QString("inputgain%1").arg(number), value == 25 ? 41 : value);
        }
        store.set("crossover/frontlevel", value);
        store.set("crossover/rearlevel", value);
        store.set("crossover/subwooferlevel", value);
        QVERIFY(SoundModel(store).state() == expected);
        store.set("Setup_Sub", true);
        store.set("subwooferLevel", value);
        QCOMPARE(SoundModel(store).state().subwooferLevel, 3);
    }
}

void tst_SoundModel::noCallOutOfRangeIsLouder() {
    SettingsStore store;
    SoundModel model(store);
    model.setChannelLevel(0, 7);
    model.setCustomEq(5, 3);
    model.setSubwooferLevel(1);
    model.setFilter(FilterChannel::Rear, {2, 2, 1});
    const SoundState before = model.state();
    const SettingsMap kept = store.values();
    for (const int value : {41, 1000, std::numeric_limits<int>::max()}) {
        model.setChannelLevel(0, value);
        model.setCustomEq(5, value);
        model.setSubwooferLevel(value);
        model.setFilter(FilterChannel::Rear, {2, 2, value});
        QVERIFY(model.state() == before);
    }
    QCOMPARE(store.values(), kept);
}

void tst_SoundModel::refusedValuesAreOneLineASecond() {
    qint64 time = 0;
    setLineClock([&time] { return time; });
    SettingsStore store;
    SoundModel model(store);
    LogWatch log;
    const auto goAstray = [&] {
        for (int i = 0; i < 1000; ++i) {
            model.setChannelLevel(0, 100 + i);
            model.setBalanceFader(-i - 16, 0);
            model.setDelays({0, 0, 0, 0, 0, 100 + i});
        }
        return log.takeDebug();
    };
    QCOMPARE(goAstray(), QStringList({"sound: channel level 100 is not one of 0 to 40, ignored",
                                      "sound: balance -16 is not within -15 to 15, taken as -15",
                                      "sound: delay 100 is not within 0 to 99, taken as 99"}));
    time = 999;
    QCOMPARE(goAstray(), QStringList());
    time = 1000;
    QCOMPARE(goAstray().size(), 3);
}

void tst_SoundModel::anyValueStaysInRange() {
    const quint32 seed = std::random_device{}();
    qDebug("seed %u", seed);
    std::mt19937 random(seed);
    LogWatch log;
    SettingsStore store;
    SoundModel model(store);
    const auto any = [&random] {
        const int wide = static_cast<int>(random());
        return random() % 2 == 0 ? wide : wide % 50;
    };
    for (int round = 0; round < 20000; ++round) {
        const Call calls[] = {[&](SoundModel &m) { m.setEqType(any()); },
                              [&](SoundModel &m) { m.setCustomEq(any(), any()); },
                              [&](SoundModel &m) { m.setBalanceFader(any(), any()); },
                              [&](SoundModel &m) { m.setChannelLevel(any(), any()); },
                              [&](SoundModel &m) { m.setSourceGain(any(), any()); },
                              [&](SoundModel &m) { m.setLoudness(any()); },
                              [&](SoundModel &m) { m.setSubwooferLevel(any()); },
                              [&](SoundModel &m) { m.setSubwooferPhase(any()); },
                              [&](SoundModel &m) {
                                  m.setFilter(FilterChannel::Front, {any(), any(), any()});
                              },
                              [&](SoundModel &m) {
                                  m.setFilter(FilterChannel::Rear, {any(), any(), any()});
                              },
                              [&](SoundModel &m) {
                                  m.setFilter(FilterChannel::Subwoofer, {any(), any(), any()});
                              },
                              [&](SoundModel &m) {
                                  m.setDelays({any(), any(), any(), any(), any(), any()});
                              },
                              [&](SoundModel &m) { m.setActiveSource(any()); },
                              [&](SoundModel &m) { m.customEq(any()); },
                              [&](SoundModel &m) { m.channelLevel(any()); }};
        calls[random() % std::size(calls)](model);
        QVERIFY(inRange(model.state()));
    }
    QVERIFY(log.takeDebug().size() > 1000);
}

void tst_SoundModel::beeps() {
    SettingsStore store;
    SoundModel model(store);
    QSignalSpy beeped(&model, SIGNAL(beeped(int)));
    QSignalSpy changed(&model, SIGNAL(changed()));
    model.beep(0);
    model.beep(3);
    QCOMPARE(beeped, QList<QVariantList>({{0}, {3}}));
    QCOMPARE(changed.count(), 0);
}

QTEST_GUILESS_MAIN(tst_SoundModel)
#include "tst_soundmodel.moc"
