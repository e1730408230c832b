// SPDX-License-Identifier: Apache-2.0
#include "eq/audiosetting_right_factoryeq_widget.h"

#include "eq/eqtable.h"
#include "tests/audiosetting/eq/eqreference.h"
#include "tests/audiosetting/eq/otherlanguage.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>

#include <limits>

namespace {

struct Tile {
    const char *key;
    const char *caption;
    const char *text;
    int type;
};

// In the order of their ids, which is also that of the comparison with a custom curve.
const Tile tiles[] = {
    {"key_Rock", "txt_Rock", "Rock", 3},
    {"key_hiphop", "txt_hiphop", "Hip Hop", 8},
    {"key_electronic", "txt_electronic", "Electronic", 5},
    {"key_jazz", "txt_jazz", "Jazz", 7},
    {"key_pop", "txt_pop", "Pop", 2},
    {"key_flat", "txt_flat", "Flat", 0},
};

QString checkedKeys(const QWidget &page) {
    QStringList names;
    for (const QAbstractButton *key : page.findChildren<QAbstractButton *>()) {
        if (key->isChecked()) {
            names << key->objectName();
        }
    }
    return names.join(QLatin1Char(' '));
}

QStringList choiceOf(int type) {
    return {"doBeep(0)", "setValue(\"HIGHLIGHT_PRESET_ID\", -1, -1, true)",
            QStringLiteral("setEQType(%1, true)").arg(type)};
}

}  // namespace

class tst_FactoryEq : public PageTest {
    Q_OBJECT
private slots:
    void declaresItsSlotsInOrder() {
        QCOMPARE(
            methods(Audiosetting_right_factoryeq_widget::staticMetaObject),
            QStringList({"slot onButtoneEqClicked(int)", "slot onSetRockEq()", "slot onSetHipHopEq()",
                         "slot onSetElectronicEq()", "slot onSetJazzEq()", "slot onSetPopEq()", "slot onSetFlatEq()"}));
    }

    void constructionAndShowWriteAndSendNothing() {
        for (int type : {0, 3, 16}) {
            recording::state().eqType = type;
            Audiosetting_right_factoryeq_widget page(nullptr);
            show(&page);
            QCOMPARE(recording::take(), QStringList());
        }
    }

    void showingReadsTheCurveInForce() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        recording::setLogged(recording::Reads);
        show(&page);
        QCOMPARE(recording::take(), QStringList({"getCurrEQType()"}));
        page.hide();
        recording::state().eqType = 16;
        show(&page);
        QStringList reads{"getCurrEQType()"};
        for (int band = 0; band < reference::bands; ++band) {
            reads << QStringLiteral("getCustomEq(%1)").arg(band);
        }
        QCOMPARE(recording::take(), reads);
    }

    void aTapChoosesThePreset_data() {
        QTest::addColumn<int>("index");
        QTest::addColumn<QPoint>("at");
        for (int i = 0; i < 6; ++i) {
            QTest::addRow("%s on the picture", tiles[i].key) << i << QPoint(130, 40);
            QTest::addRow("%s on the caption", tiles[i].key) << i << QPoint(130, 165);
            QTest::addRow("%s at its corner", tiles[i].key) << i << QPoint(270, 201);
        }
    }
    void aTapChoosesThePreset() {
        QFETCH(int, index);
        QFETCH(QPoint, at);
        recording::state().eqType = index == 0 ? 8 : 3;
        recording::setStored("HIGHLIGHT_PRESET_ID", 2);
        Audiosetting_right_factoryeq_widget page(nullptr);
        show(&page);
        QPushButton *const key = page.findChild<QPushButton *>(QLatin1String(tiles[index].key));
        finger::tap(key, at);
        QCOMPARE(recording::take(), choiceOf(tiles[index].type));
        QCOMPARE(recording::stored("HIGHLIGHT_PRESET_ID"), QVariant(-1));
        QCOMPARE(recording::state().eqType, tiles[index].type);
        QCOMPARE(checkedKeys(page), QLatin1String(tiles[index].key));
    }

    void aTapOnThePresetInForceSendsItAgain() {
        recording::state().eqType = 7;
        Audiosetting_right_factoryeq_widget page(nullptr);
        show(&page);
        finger::tap(page.findChild<QPushButton *>("key_jazz"));
        QCOMPARE(recording::take(), choiceOf(7));
        QCOMPARE(checkedKeys(page), QStringLiteral("key_jazz"));
    }

    void aPressThatLeavesTheKeyChoosesNothing() {
        recording::state().eqType = 7;
        Audiosetting_right_factoryeq_widget page(nullptr);
        show(&page);
        CHILD(QPushButton, rock, &page, "key_Rock");
        finger::press(rock, QPoint(100, 100));
        finger::move(rock, QPoint(285, 100));
        finger::release(rock, QPoint(285, 100));
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(checkedKeys(page), QStringLiteral("key_jazz"));
    }

    void theSlotsOnlySelectTheirPreset() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        const char *const slotNames[] = {"onSetRockEq", "onSetHipHopEq", "onSetElectronicEq",
                                         "onSetJazzEq", "onSetPopEq",    "onSetFlatEq"};
        for (int i = 0; i < 6; ++i) {
            QVERIFY(QMetaObject::invokeMethod(&page, slotNames[i]));
            QCOMPARE(recording::take(), QStringList{QStringLiteral("setEQType(%1, true)").arg(tiles[i].type)});
            QVERIFY(QMetaObject::invokeMethod(&page, "onButtoneEqClicked", Q_ARG(int, i)));
            QCOMPARE(recording::take(), choiceOf(tiles[i].type));
        }
    }

    void anUnknownIdOnlyClearsTheHighlight() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        for (int id : {6, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            QVERIFY(QMetaObject::invokeMethod(&page, "onButtoneEqClicked", Q_ARG(int, id)));
            QCOMPARE(recording::take(), choiceOf(0).mid(0, 2));
        }
    }

    void theTypeInForceIsMarked_data() {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("key");
        for (const Tile &tile : tiles) {
            QTest::addRow("%d", tile.type) << tile.type << QString::fromLatin1(tile.key);
        }
        for (int type : {1, 4, 6, 9, 15, 17, 20, 21, -1, std::numeric_limits<int>::max()}) {
            QTest::addRow("%d", type) << type << QString();
        }
    }
    void theTypeInForceIsMarked() {
        QFETCH(int, type);
        QFETCH(QString, key);
        Audiosetting_right_factoryeq_widget page(nullptr);
        recording::state().eqType = 2;
        show(&page);
        QCOMPARE(checkedKeys(page), QStringLiteral("key_pop"));
        page.hide();
        recording::state().eqType = type;
        show(&page);
        QCOMPARE(checkedKeys(page), key);
        page.setButtonInitClick(2);
        page.setButtonInitClick(type);
        QCOMPARE(checkedKeys(page), key);
        QCOMPARE(recording::take(), QStringList());
    }

    void aCustomCurveEqualToAPresetMarksIt() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        recording::state().eqType = 16;
        for (const Tile &tile : tiles) {
            for (const reference::Curve &curve : reference::curves()) {
                if (curve.type == tile.type) {
                    for (int band = 0; band < reference::bands; ++band) {
                        recording::state().customEq[band] = curve.gains[band] + 12;
                    }
                }
            }
            page.resume();
            QCOMPARE(checkedKeys(page), QLatin1String(tile.key));
            // One band off by one, in turn, is no match.
            for (int &value : recording::state().customEq) {
                value += 1;
                page.resume();
                QCOMPARE(checkedKeys(page), QString());
                value -= 1;
            }
        }
        QCOMPARE(recording::state().eqType, 16);
        QCOMPARE(recording::take(), QStringList());
    }

    void aCustomCurveEqualToAPresetWithoutAKeyMarksNone() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        recording::state().eqType = 16;
        for (int band = 0; band < reference::bands; ++band) {
            recording::state().customEq[band] = reference::curves().at(1).gains[band] + 12;
        }
        page.resume();
        QCOMPARE(checkedKeys(page), QString());
    }

    void absurdServiceValuesMatchNothing() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        recording::state().eqType = 16;
        for (int value : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -12}) {
            recording::state().customEq.fill(value);
            page.resume();
            QCOMPARE(checkedKeys(page), QString());
        }
    }

    void otherLengthsNeverEqualACurve() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        const tagAudioEQItem_T flat = audiosetting::eq::curves().first();
        QList<int> levels = reference::everywhere(12);
        QVERIFY(page.eqCompareList(flat, levels));
        levels << 12;
        QVERIFY(!page.eqCompareList(flat, levels));
        QVERIFY(!page.eqCompareList(flat, levels.mid(0, 12)));
        QVERIFY(!page.eqCompareList(flat, {}));
        QCOMPARE(debugLines().size(), 3);
    }

    void rowsAreFoundByType() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        QCOMPARE(page.findItemIndexByType(3), 3);
        QCOMPARE(page.findItemIndexByType(7), 4);
        QCOMPARE(page.findItemIndexByType(20), 12);
        QCOMPARE(page.findItemIndexByType(6), 0);
        QCOMPARE(page.findItemIndexByType(-7), 0);
    }

    void onlyOneKeyIsCheckedAtATime() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        show(&page);
        QCOMPARE(page.findChild<QButtonGroup *>()->exclusive(), true);
        for (const Tile &tile : tiles) {
            finger::tap(page.findChild<QPushButton *>(QLatin1String(tile.key)));
            QCOMPARE(checkedKeys(page), QLatin1String(tile.key));
        }
    }

    void captionsFollowTheLanguage() {
        Audiosetting_right_factoryeq_widget page(nullptr);
        show(&page);
        for (const Tile &tile : tiles) {
            const QLabel *const caption = page.findChild<QLabel *>(QLatin1String(tile.caption));
            QCOMPARE(caption->text(), QLatin1String(tile.text));
            QCOMPARE(caption->styleSheet(), QStringLiteral("color: rgb(255, 255, 255);"));
        }
        OtherLanguage language;
        QCoreApplication::installTranslator(&language);
        advance(0);
        for (const Tile &tile : tiles) {
            QCOMPARE(page.findChild<QLabel *>(QLatin1String(tile.caption))->text(),
                     QLatin1Char('<') + QLatin1String(tile.text) + QLatin1Char('>'));
        }
        QCoreApplication::removeTranslator(&language);
    }
};

PAGE_TEST_MAIN(tst_FactoryEq)
#include "tst_audiosetting_right_factoryeq_widget.moc"
