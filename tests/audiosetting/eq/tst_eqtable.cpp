// SPDX-License-Identifier: Apache-2.0
#include "eq/eqtable.h"

#include "tests/audiosetting/eq/eqreference.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <limits>

using namespace audiosetting;

class tst_EqTable : public PageTest {
    Q_OBJECT
private slots:
    void levelsCountFromTheTop() {
        QCOMPARE(eq::levelGains().size(), 25);
        for (int gain = -12; gain <= 12; ++gain) {
            QCOMPARE(eq::levelOfGain(gain), 12 - gain);
            QCOMPARE(eq::levelGains().at(12 - gain), gain);
        }
    }

    void aGainThatIsNotThereIsLevelZero() {
        for (int gain : {13, -13, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            QCOMPARE(eq::levelOfGain(gain), 0);
        }
    }

    void countingFromTheOtherEndTwiceGivesEveryValueBack() {
        QCOMPARE(eq::fromOtherEnd(24, 0), 24);
        QCOMPARE(eq::fromOtherEnd(24, 30), -6);
        QCOMPARE(eq::fromOtherEnd(24, -8), 32);
        QCOMPARE(eq::fromOtherEnd(12, -12), 24);
        const int minimum = std::numeric_limits<int>::min();
        const int maximum = std::numeric_limits<int>::max();
        QCOMPARE(eq::fromOtherEnd(24, maximum), 24 - maximum);
        for (int end : {12, 24}) {
            for (int value : {minimum, minimum + 1, -13, -1, 0, 13, 25, maximum - 1, maximum}) {
                QCOMPARE(eq::fromOtherEnd(end, eq::fromOtherEnd(end, value)), value);
            }
        }
    }

    void holdsThePresetsAndTheFiveCustomRows() {
        QCOMPARE(eq::curves().size(), 13);
        for (const reference::Curve &curve : reference::curves()) {
            const int row = eq::findByType(eq::curves(), curve.type);
            QVERIFY(row >= 0);
            QVERIFY(std::equal(curve.gains.begin(), curve.gains.end(), eq::curves().at(row).gain));
        }
        for (int type = 16; type <= 20; ++type) {
            const tagAudioEQItem_T &item = eq::curves().at(eq::findByType(eq::curves(), type));
            QCOMPARE(item.id, type);
            QVERIFY(std::all_of(item.gain, item.gain + eqBandCount, [](int gain) { return gain == 0; }));
        }
    }

    void rowsCarryTheirIds() {
        const QList<QPair<int, int>> rows{{0, 0}, {1, 1}, {2, 2}, {3, 3}, {7, 4}, {8, 5}, {4, 6}, {5, 7}};
        for (int i = 0; i < rows.size(); ++i) {
            QCOMPARE(eq::curves().at(i).type, rows.at(i).first);
            QCOMPARE(eq::curves().at(i).id, rows.at(i).second);
        }
    }

    void theFirstRowOfATypeWins() {
        QList<tagAudioEQItem_T> table = eq::curves();
        table.append(table.at(1));
        table.last().gain[0] = 9;
        QCOMPARE(eq::findByType(table, 1), 1);
        QCOMPARE(eq::curveOfType(table, 1).gain[0], 1);
    }

    void aTypeWithoutARowIsFlat() {
        for (int type : {6, 9, 15, 21, -1}) {
            QCOMPARE(eq::findByType(eq::curves(), type), -1);
            const tagAudioEQItem_T flat = eq::curveOfType(eq::curves(), type);
            QVERIFY(std::all_of(flat.gain, flat.gain + eqBandCount, [](int gain) { return gain == 0; }));
        }
    }

    void anItemIsFifteenNumbersOf32Bits() { QCOMPARE(sizeof(tagAudioEQItem_T), size_t(15 * 4)); }
};

PAGE_TEST_MAIN(tst_EqTable)
#include "tst_eqtable.moc"
