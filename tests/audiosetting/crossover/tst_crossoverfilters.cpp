// SPDX-License-Identifier: Apache-2.0
#include "crossover/crossoverfilters.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <limits>

using namespace audiosetting::crossover;

class tst_CrossoverFilters : public PageTest {
    Q_OBJECT

private slots:
    void startsWithTheDefaults() {
        const CrossoverFilters filters;
        for (int channel = 0; channel < channelCount; ++channel) {
            QCOMPARE(filters.value(channel, Freq), 0);
            QCOMPARE(filters.value(channel, Y), 0);
            QCOMPARE(filters.value(channel, Level), 12);
            QCOMPARE(filters.value(channel, Slope), 1);
            QCOMPARE(filters.value(channel, Heigh), 506);
        }
        QCOMPARE(recording::take(), QStringList());
    }

    void presetIsWhatWasSaved() {
        CrossoverFilters filters;
        int next = 100;
        for (int channel = 0; channel < channelCount; ++channel) {
            for (int field = 0; field < fieldCount; ++field) {
                filters.setValue(channel, field, next++);
            }
        }
        filters.savePreset(1);
        QCOMPARE(recording::take().size(), channelCount * fieldCount);
        CrossoverFilters loaded;
        loaded.loadPreset(0);
        QCOMPARE(loaded.value(Front, Freq), 0);
        loaded.loadPreset(1);
        loaded.storeAll();
        CrossoverFilters current;
        current.load();
        next = 100;
        for (int channel = 0; channel < channelCount; ++channel) {
            for (int field = 0; field < fieldCount; ++field) {
                QCOMPARE(current.value(channel, field), next++);
            }
        }
    }

    void stepsGoAround_data() {
        QTest::addColumn<int>("channel");
        QTest::addColumn<int>("lastFrequency");
        QTest::newRow("front") << int(Front) << 11;
        QTest::newRow("rear") << int(Rear) << 5;
        QTest::newRow("subwoofer") << int(Subwoofer) << 5;
    }
    void stepsGoAround() {
        QFETCH(int, channel);
        QFETCH(int, lastFrequency);
        const int lowest = std::numeric_limits<int>::min();
        const int highest = std::numeric_limits<int>::max();
        const auto frequency = [channel](int from, int step) {
            CrossoverFilters filters;
            filters.setValue(channel, Freq, from);
            filters.stepFrequency(channel, step);
            return filters.value(channel, Freq);
        };
        const auto slope = [channel](int from, int step) {
            CrossoverFilters filters;
            filters.setValue(channel, Slope, from);
            filters.stepSlope(channel, step);
            return filters.value(channel, Slope);
        };
        QCOMPARE(frequency(0, 1), 1);
        QCOMPARE(frequency(lastFrequency, 1), 0);
        QCOMPARE(frequency(0, -1), lastFrequency);
        QCOMPARE(frequency(lastFrequency, -1), lastFrequency - 1);
        QCOMPARE(frequency(highest, 1), 0);
        QCOMPARE(frequency(lowest, -1), lastFrequency);
        QCOMPARE(slope(1, 1), 2);
        QCOMPARE(slope(3, 1), 1);
        QCOMPARE(slope(1, -1), 3);
        QCOMPARE(slope(3, -1), 2);
        QCOMPARE(slope(highest, 1), 1);
        QCOMPARE(slope(lowest, -1), 3);
    }

    void eachChannelHasItsOperation() {
        CrossoverFilters filters;
        filters.setValue(Front, Freq, 9);
        filters.setValue(Rear, Slope, 2);
        filters.setValue(Subwoofer, Level, 4);
        filters.send(Front);
        filters.send(Rear);
        filters.send(Subwoofer);
        QCOMPARE(recording::take(), QStringList({"setCrossoverFrontFreq(9, 1, 12)", "setCrossoverRearFreq(0, 2, 12)",
                                                 "setLPFValue(0, 1, 4)"}));
    }
};

PAGE_TEST_MAIN(tst_CrossoverFilters)
#include "tst_crossoverfilters.moc"
