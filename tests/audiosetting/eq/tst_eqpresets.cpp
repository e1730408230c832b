// SPDX-License-Identifier: Apache-2.0
// The EQ page's five presets: saving, recalling, selection.

#include "tests/audiosetting/eq/eqpagetest.h"
#include "tests/platform/testmain.h"

#include <limits>

using namespace eqpage;
using reference::everywhere;

namespace {

const int minimum = std::numeric_limits<int>::min();
const int maximum = std::numeric_limits<int>::max();
const int longPress = 1500;

/// The lines of a preset's saving, after the beep.
QStringList saving(int preset, const QList<int> &levels) {
    QStringList lines{lastPreset(preset)};
    for (int band = 0; band < levels.size(); ++band) {
        lines << QStringLiteral("setValue(\"%1\", 12, %2, true)").arg(presetKey(preset, band)).arg(levels[band]);
    }
    return lines << QStringLiteral("setValue(\"%1\", false, true, true)").arg(savedKey(preset));
}

}  // namespace

class tst_EqPresets : public PageTest {
    Q_OBJECT
private slots:
    void fivePresets_data() {
        QTest::addColumn<int>("preset");
        for (int preset = 0; preset < 5; ++preset) {
            QTest::addRow("preset %d", preset) << preset;
        }
    }

    void aLongPressSavesTheCurveShown_data() { fivePresets_data(); }
    void aLongPressSavesTheCurveShown() {
        QFETCH(int, preset);
        setLive(curve(preset));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QPushButton *const key = customKey(page, preset);
        finger::press(key, key->rect().center());
        advance(longPress - 1);
        QCOMPARE(recording::take(), QStringList());
        advance(1);
        QCOMPARE(recording::take(), QStringList{"doBeep(0)"} + saving(preset, curve(preset)));
        QCOMPARE(selected(page), preset);
        advance(5000);
        QCOMPARE(recording::take(), QStringList());
        // The release neither recalls nor beeps.
        finger::release(key, key->rect().center());
        QCOMPARE(recording::take(), QStringList{highlight(preset)});
        QCOMPARE(selected(page), preset);
        QCOMPARE(reference::levels(page), curve(preset));
    }

    void savingSelectsThePresetBeforeTheRelease() {
        setLive(curve(1));
        savePreset(4, curve(1));
        recording::setStored("HIGHLIGHT_PRESET_ID", 4);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(selected(page), 4);
        QPushButton *const key = customKey(page, 1);
        finger::press(key, key->rect().center());
        advance(longPress);
        QCOMPARE(recording::stored("HIGHLIGHT_PRESET_ID"), QVariant(4));
        QCOMPARE(selected(page), 1);
        finger::release(key, key->rect().center());
        QCOMPARE(recording::stored("HIGHLIGHT_PRESET_ID"), QVariant(1));
        QCOMPARE(selected(page), 1);
    }

    void storingIsGivenTheBandDraggedLast() {
        setLive(everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::hold(customKey(page, 0), longPress);
        QCOMPARE(debugLines().filter("preset: 0 section: 0 value: 0").size(), 1);
        finger::tap(reference::sliders(page)[4], at(20));
        finger::hold(customKey(page, 2), longPress);
        QCOMPARE(debugLines().filter("preset: 2 section: 4 value: 20").size(), 1);
        QVERIFY(QMetaObject::invokeMethod(&page, "save_eq_section_drag", Q_ARG(int, 6), Q_ARG(int, 9)));
        finger::hold(customKey(page, 1), longPress);
        QCOMPARE(debugLines().filter("preset: 1 section: 6 value: 9").size(), 1);
    }

    void storingAPresetMakesItTheLiveCurve() {
        recording::state().eqType = 3;
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        const QList<int> rock = reference::levels(reference::curves()[3]);
        finger::hold(customKey(page, 1), longPress);
        QCOMPARE(recording::take(), QStringList{"doBeep(0)"} + saving(1, rock) + QStringList{type(16)} + sendAll(rock) +
                                        QStringList{highlight(1)});
        QCOMPARE(reference::levels(page), rock);
        QCOMPARE(selected(page), 1);
    }

    void aSavedPresetShowsItsNameAnEmptyOneItsPicture() {
        savePreset(3, curve(1));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        const auto check = [&page](const QList<int> &stored) {
            for (int preset = 0; preset < 5; ++preset) {
                const auto name = page.findChild<QLabel *>(QStringLiteral("Txt_custom%1").arg(preset + 1));
                const auto picture = page.findChild<QLabel *>(QStringLiteral("Icn_preset_%1").arg(preset + 1));
                QCOMPARE(name->isVisible(), stored.contains(preset));
                QCOMPARE(picture->isVisible(), !stored.contains(preset));
            }
        };
        check({3});
        finger::hold(customKey(page, 0), longPress);
        check({0, 3});
        page.hide();
        recording::setStored(savedKey(3), false);
        show(&page);
        check({0});
    }

    void aShortPressRecallsASavedPreset_data() { fivePresets_data(); }
    void aShortPressRecallsASavedPreset() {
        QFETCH(int, preset);
        setLive(everywhere(12));
        savePreset(preset, curve(3));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QPushButton *const key = customKey(page, preset);
        finger::press(key, key->rect().center());
        QCOMPARE(recording::take(), QStringList());
        finger::release(key, key->rect().center());
        QStringList lines{"doBeep(0)", highlight(preset), lastPreset(preset)};
        for (int band = 0; band < 13; ++band) {
            if (curve(3)[band] != 12) {  // what the service holds already
                lines << send(24 - curve(3)[band], band);
            }
        }
        QCOMPARE(recording::take(), lines);
        QCOMPARE(reference::levels(page), curve(3));
        QCOMPARE(selected(page), preset);
        for (int band = 0; band < 13; ++band) {
            QCOMPARE(upKeys(page)[band]->isEnabled(), curve(3)[band] > 0);
            QCOMPARE(downKeys(page)[band]->isEnabled(), curve(3)[band] < 24);
        }
    }

    void recallingLeavesAPreset() {
        recording::state().eqType = 7;
        savePreset(0, everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(customKey(page, 0));
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", highlight(0), lastPreset(0), type(16)}) + sendAll(everywhere(12)));
        QCOMPARE(recording::state().eqType, 16);
    }

    void anEmptyPresetOnlyEvaluatesTheSelection() {
        setLive(curve(1));
        savePreset(4, curve(1));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(selected(page), 4);
        finger::tap(customKey(page, 2));
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(selected(page), 4);
    }

    void aPressJustTooShortToStoreRecalls() {
        setLive(everywhere(12));
        savePreset(2, curve(2));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::hold(customKey(page, 2), longPress - 1);
        QCOMPARE(recording::take().first(), QStringLiteral("doBeep(0)"));
        QCOMPARE(recording::stored(presetKey(2, 0)), QVariant(curve(2)[0]));
        QCOMPARE(reference::levels(page), curve(2));
    }

    void aNewPressAfterStoringRecalls() {
        setLive(curve(1));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::hold(customKey(page, 0), longPress);
        finger::tap(reference::sliders(page)[0], at(0));
        advance(80);
        recording::clear();
        finger::tap(customKey(page, 0));
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", highlight(0), lastPreset(0), send(24 - curve(1)[0], 0)}));
        QCOMPARE(reference::levels(page), curve(1));
    }

    void holdThatEndsBesideTheKeyIsOver_data() { fivePresets_data(); }
    void holdThatEndsBesideTheKeyIsOver() {
        QFETCH(int, preset);
        setLive(curve(preset));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QPushButton *const key = customKey(page, preset);
        finger::press(key, key->rect().center());
        advance(longPress);
        QCOMPARE(recording::take(), QStringList{"doBeep(0)"} + saving(preset, curve(preset)));
        // Leaving the key ends the hold as lifting from it does; lifting beside it adds nothing.
        const QPoint beside(key->width() / 2, -40);
        finger::move(key, beside);
        QCOMPARE(recording::take(), QStringList{highlight(preset)});
        finger::release(key, beside);
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(selected(page), preset);
        // The next tap recalls.
        const int level = curve(preset)[0] == 0 ? 24 : 0;
        finger::tap(reference::sliders(page)[0], at(level));
        advance(80);
        QCOMPARE(selected(page), -1);
        recording::clear();
        finger::tap(key);
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", highlight(preset), lastPreset(preset), send(24 - curve(preset)[0], 0)}));
        QCOMPARE(reference::levels(page), curve(preset));
        QCOMPARE(selected(page), preset);
    }

    void touchesOnNameAndPictureReachTheKey() {
        savePreset(0, curve(1));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(page.findChild<QLabel *>("Txt_custom1"));
        QVERIFY(recording::take().contains("doBeep(0)"));
        finger::press(page.findChild<QLabel *>("Icn_preset_2"), QPoint(68, 36));
        QVERIFY(customKey(page, 1)->isDown());
        finger::release(page.findChild<QLabel *>("Icn_preset_2"), QPoint(68, 36));
        finger::tap(page.findChild<QLabel *>("Txt_flat"));
        QCOMPARE(recording::take().first(), QStringLiteral("doBeep(0)"));
    }

    // Selection -------------------------------------------------------------------------------------------------

    void theFirstPresetWithTheCurveShownIsSelected() {
        setLive(curve(1));
        savePreset(1, curve(2));
        savePreset(2, curve(1));
        savePreset(3, curve(1));
        for (int band = 0; band < 13; ++band) {
            recording::setStored(presetKey(0, band), curve(1)[band]);  // equal, but never stored
        }
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(selected(page), 2);
        QVERIFY(page.eqValueCompare(0) && page.eqValueCompare(2) && page.eqValueCompare(3));
        QVERIFY(!page.eqValueCompare(1));
    }

    void oneLevelOffIsAnotherCurve() {
        setLive(curve(1));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        for (int band = 0; band < 13; ++band) {
            QList<int> levels = curve(1);
            levels[band] += levels[band] < 24 ? 1 : -1;
            savePreset(0, levels);
            page.updateCurrentSelect();
            QCOMPARE(selected(page), -1);
        }
    }

    void theHighlightedPresetIsSelectedWhateverItStores() {
        setLive(curve(1));
        savePreset(1, curve(1));
        savePreset(3, curve(2));
        recording::setStored("HIGHLIGHT_PRESET_ID", 3);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(selected(page), 3);
    }

    void aHighlightThatNamesNoSavedPresetSelectsNone_data() {
        QTest::addColumn<int>("highlighted");
        for (int highlighted : {2, 5, -2, minimum, maximum}) {
            QTest::addRow("%d", highlighted) << highlighted;
        }
    }
    void aHighlightThatNamesNoSavedPresetSelectsNone() {
        QFETCH(int, highlighted);
        setLive(curve(1));
        savePreset(1, curve(1));
        recording::setStored("HIGHLIGHT_PRESET_ID", highlighted);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(selected(page), -1);
        QCOMPARE(recording::stored("HIGHLIGHT_PRESET_ID"), QVariant(highlighted));
    }

    void underAPresetTheSelectionFollowsAfter20Milliseconds() {
        recording::state().eqType = 3;
        savePreset(4, reference::levels(reference::curves()[3]));
        Audiosetting_right_eq_widget page(nullptr);
        page.show();
        advance(19);
        QCOMPARE(selected(page), -1);
        advance(1);
        QCOMPARE(selected(page), 4);
        QCOMPARE(recording::take(), QStringList());
    }

    void onlyTheLiveCurveAsksForTheLastPresetAndIsNotEvaluatedLater() {
        for (int number : {0, 3, 16, 17, 20}) {
            recording::reset();
            setLive(curve(1));
            recording::state().eqType = number;
            recording::setLogged(recording::Reads);
            Audiosetting_right_eq_widget page(nullptr);
            page.show();
            advance(19);
            QCOMPARE(recording::take().contains("getValue(\"custom_eq_type_id\", 0)"), number == 16);
            advance(1);
            QCOMPARE(recording::take().isEmpty(), number == 16);
        }
    }

    void updateCustomEqUiSelectsSavedPresetsOnly() {
        savePreset(1, curve(1));
        Audiosetting_right_eq_widget page(nullptr);
        page.updateCustomEqUi(1);
        QCOMPARE(selected(page), 1);
        for (int preset : {0, 5, -1, minimum, maximum}) {
            page.updateCustomEqUi(1);
            page.updateCustomEqUi(preset);
            QCOMPARE(selected(page), -1);
        }
    }

    // Slots called by name, and bad values -----------------------------------------------------------------------

    void savingInNoPresetOnlyNotesTheNumber() {
        Audiosetting_right_eq_widget page(nullptr);
        for (int preset : {-1, 5, minimum, maximum}) {
            page.saveCustomEqValue(preset, 0, 0);
            QCOMPARE(recording::take(), QStringList{lastPreset(preset)});
        }
    }

    void presetsAndBandsOutOfRangeAreIgnored() {
        Audiosetting_right_eq_widget page(nullptr);
        for (int preset : {-1, 5, minimum, maximum}) {
            QCOMPARE(page.getCustomEqValue(0, preset), 0);
            QVERIFY(!page.eqValueCompare(preset));
            page.updateCustomEqByType(preset, 0, 3);
            QVERIFY(QMetaObject::invokeMethod(&page, "onButtonCustomPressed", Q_ARG(int, preset)));
            QVERIFY(QMetaObject::invokeMethod(&page, "onbuttonCustomClicked", Q_ARG(int, preset)));
            QCOMPARE(recording::take(), QStringList());
            page.updateEqType(preset);
            QCOMPARE(recording::take(), QStringList{lastPreset(preset)});
        }
        for (int band : {-1, 13}) {
            page.updateCustomEqByType(0, band, 3);
            QCOMPARE(recording::take(), QStringList());
        }
    }

    void oneLevelIsWrittenAndRead() {
        Audiosetting_right_eq_widget page(nullptr);
        QCOMPARE(page.getCustomEqValue(5, 2), 12);
        page.updateCustomEqByType(2, 5, 7);
        QCOMPARE(recording::take(), QStringList{"setValue(\"customeq3_5\", 12, 7, true)"});
        QCOMPARE(page.getCustomEqValue(5, 2), 7);
    }

    void recallByNameSendsAndShows() {
        Audiosetting_right_eq_widget page(nullptr);
        void (Audiosetting_right_eq_widget::*const recalls[])() = {
            &Audiosetting_right_eq_widget::onSetCustom1, &Audiosetting_right_eq_widget::onSetCustom2,
            &Audiosetting_right_eq_widget::onSetCustom3, &Audiosetting_right_eq_widget::onSetCustom4,
            &Audiosetting_right_eq_widget::onSetCustom5};
        for (int preset = 0; preset < 5; ++preset) {
            setLive(everywhere(24));
            recording::state().customEq.fill(-7);
            savePreset(preset, curve(preset));
            (page.*recalls[preset])();
            QCOMPARE(recording::take(), sendAll(curve(preset)));
            QCOMPARE(reference::levels(page), curve(preset));
        }
    }

    void levelsOutOfRangeInAPresetGoThroughUnchanged() {
        setLive(everywhere(12));
        QList<int> levels = everywhere(12);
        levels[0] = 25;
        levels[1] = -1;
        levels[2] = maximum;
        levels[3] = minimum;
        savePreset(0, levels);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(customKey(page, 0));
        QCOMPARE(reference::levels(page), levels);
        QCOMPARE(selected(page), 0);
        QCOMPARE(recording::stored(presetKey(0, 3)), QVariant(minimum));
        QVERIFY(!downKeys(page)[2]->isEnabled());
        QVERIFY(!upKeys(page)[3]->isEnabled());
    }

    void aBadLastPresetDoesNoHarmOnShow() {
        savePreset(0, curve(1));
        for (int preset : {-1, 5, minimum, maximum}) {
            setLive(curve(2));
            recording::setStored("custom_eq_type_id", preset);
            Audiosetting_right_eq_widget page(nullptr);
            show(&page);
            QCOMPARE(selected(page), -1);
            QCOMPARE(recording::take(), QStringList());
            // Recalling a preset repairs it.
            finger::tap(customKey(page, 0));
            QCOMPARE(recording::stored("custom_eq_type_id"), QVariant(0));
            QCOMPARE(reference::levels(page), curve(1));
            recording::setStored("HIGHLIGHT_PRESET_ID", -1);
            recording::clear();
        }
    }
};

PAGE_TEST_MAIN(tst_EqPresets)
#include "tst_eqpresets.moc"
