// SPDX-License-Identifier: Apache-2.0
// The EQ page's curve: what it shows, its sliders, step keys and Flat.

#include "tests/audiosetting/eq/eqpagetest.h"
#include "tests/audiosetting/eq/otherlanguage.h"
#include "tests/platform/testmain.h"

#include <limits>

using namespace eqpage;
using reference::everywhere;

namespace {

const int minimum = std::numeric_limits<int>::min();
const int maximum = std::numeric_limits<int>::max();

}  // namespace

class tst_EqPage : public PageTest {
    Q_OBJECT
private slots:
    void declaresItsSlotsInOrder() {
        QCOMPARE(
            methods(Audiosetting_right_eq_widget::staticMetaObject),
            QStringList({"slot update_eq_section_drag(int,int)", "slot save_eq_section_drag(int,int)",
                         "slot onEqTypeChanged(int)", "slot onSaveCustomEqValue()", "slot onUpdateCustomEqData()",
                         "slot onResetEqValue()", "slot onButtonCustomPressed(int)", "slot onbuttonCustomClicked(int)",
                         "slot onCustomEqValueDelay()", "slot onCustom1LongRelease()", "slot onCustom2LongRelease()",
                         "slot onCustom3LongRelease()", "slot onCustom4LongRelease()", "slot onCustom5LongRelease()",
                         "slot on_key_flat_clicked()", "slot onSliderBarWidgetCompeted()", "slot onBarPrevClicked(int)",
                         "slot onBarNextClicked(int)"}));
    }

    // Showing ---------------------------------------------------------------------------------------------------

    void constructionAndShowWriteAndSendNothing() {
        for (int number : {0, 3, 16, 20, -1}) {
            recording::reset();
            recording::state().eqType = number;
            recording::setStored("HIGHLIGHT_PRESET_ID", 3);
            savePreset(3, curve(1));
            Audiosetting_right_eq_widget page(nullptr);
            show(&page);
            advance(1000);
            QCOMPARE(recording::take(), QStringList());
        }
    }

    void bandsStandWhereTheyBelong() {
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(page.size(), QSize(888, 470));
        CHILD(QWidget, area, &page, "widget");
        const char *const captions[] = {"63",   "100",  "160", "250",  "400", "630", "1k",
                                        "1.6k", "2.5k", "4k",  "6.3k", "10k", "16k"};
        const auto sliders = reference::sliders(page);
        QCOMPARE(sliders.size(), 13);
        QCOMPARE(upKeys(page).size(), 13);
        QCOMPARE(downKeys(page).size(), 13);
        for (int band = 0; band < 13; ++band) {
            const int x = 68 * band + 3;
            QCOMPARE(sliders[band]->parentWidget(), area);
            QCOMPARE(sliders[band]->geometry(), QRect(x, 68, 36, 164));
            QCOMPARE(upKeys(page)[band]->geometry(), QRect(x - 2, 0, 40, 40));
            QCOMPARE(downKeys(page)[band]->geometry(), QRect(x - 2, 260, 40, 40));
            for (const char *row : {"up", "next"}) {
                const cm::LabelButton *key = (row[0] == 'u' ? upKeys(page) : downKeys(page))[band];
                const QString picture = QStringLiteral("qrc:/corvina_icon/eq_%1_%2.png").arg(QLatin1String(row));
                QCOMPARE(key->icon(cm::LabelButton::NormalOff), QUrl(picture.arg("n")));
                QCOMPARE(key->icon(cm::LabelButton::NormalOn), QUrl(picture.arg("p")));
                QCOMPARE(key->icon(cm::LabelButton::Disabled), QUrl(picture.arg("d")));
            }
            QStringList texts;
            bool track = false;
            for (const QLabel *label : area->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly)) {
                if (label->geometry() == QRect(x + 10, 68, 16, 164)) {
                    track = label->pixmap(Qt::ReturnByValue).size() == QSize(16, 164);
                } else if (label->y() == 330 &&
                           label->geometry().center().x() == sliders[band]->geometry().center().x()) {
                    QCOMPARE(label->height(), 22);
                    QCOMPARE(label->font().pointSize(), 16);
                    texts << label->text();
                }
            }
            QVERIFY(track);
            QCOMPARE(texts, QStringList(QLatin1String(captions[band])));
            for (int level = 0; level <= 24; ++level) {
                sliders[band]->setBarLevel(level);
                QCOMPARE(sliders[band]->level2Point(level), reference::pageCenters[level]);
                QCOMPARE(sliders[band]->point2Level(reference::touchY(reference::pageBorders, level)), level);
            }
        }
    }

    void slidersLookAsPrescribed() {
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        const QString knob = QStringLiteral(":/corvina_icon/audiosetting_slider_point.png");
        QVERIFY(!QPixmap(knob).isNull());
        QList<int> numbers;
        for (int gain = 12; gain >= -12; --gain) {
            numbers << gain;
        }
        for (cm::SliderBarWidget *slider : reference::sliders(page)) {
            for (int level : {0, 1, 12, 23, 24}) {
                slider->setBarLevel(level);
                QCOMPARE(reference::picture(*slider),
                         reference::sliderPicture(knob, reference::pageCenters, QSize(36, 164), numbers, level));
            }
        }
    }

    void presetsAreShown_data() {
        QTest::addColumn<int>("number");
        QTest::addColumn<QList<int>>("levels");
        for (const reference::Curve &preset : reference::curves()) {
            QTest::addRow("%d", preset.type) << preset.type << reference::levels(preset);
        }
        for (int number : {6, 9, 10, 15, -1, minimum}) {
            QTest::addRow("%d", number) << number << everywhere(12);
        }
    }
    void presetsAreShown() {
        QFETCH(int, number);
        QFETCH(QList<int>, levels);
        setLive(curve(1));
        recording::state().eqType = number;
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(reference::levels(page), levels);
    }

    void customCurvesAreShownFromTheStore() {
        Audiosetting_right_eq_widget page(nullptr);
        for (int number : {16, 17, 20, 21, maximum}) {
            setLive(curve(number % 25));
            recording::state().customEq.fill(1);  // not what is shown
            recording::state().eqType = number;
            page.hide();
            show(&page);
            QCOMPARE(reference::levels(page), curve(number % 25));
        }
    }

    void aCurveThatWasNeverStoredIsAtTheBottom() {
        recording::state().eqType = 16;
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(reference::levels(page), everywhere(24));
    }

    void valuesOfAnotherScaleGoThroughShowEditAndCommitUnchanged() {
        // The band-adjust panel keeps gains, down to -12, where this page keeps 0 to 24.
        const QList<int> values{-8, 25, -1, -12, 12, 0, 24, 36, maximum, minimum, minimum + 1, 3, -9};
        recording::state().eqType = 16;
        for (int band = 0; band < 13; ++band) {
            recording::state().customEq[band] = values[band];
            recording::setStored(QStringLiteral("eq%1").arg(band), values[band]);
        }
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(reference::levels(page).mid(0, 8), QList<int>({32, -1, 25, 36, 12, 24, 0, -12}));
        for (int band = 0; band < 13; ++band) {
            const int level = reference::levels(page)[band];
            QCOMPARE(upKeys(page)[band]->isEnabled(), level >= 1);
            QCOMPARE(downKeys(page)[band]->isEnabled(), level < 24);
        }
        finger::tap(reference::sliders(page)[5], at(4));
        advance(80);
        QCOMPARE(recording::take(), QStringList({highlight(-1), send(20, 5)}));
        for (int band = 0; band < 13; ++band) {
            QCOMPARE(recording::stored(QStringLiteral("eq%1").arg(band)), QVariant(band == 5 ? 20 : values[band]));
        }
        // A preset keeps and recalls them as well.
        finger::hold(customKey(page, 2), 1500);
        QCOMPARE(recording::stored(presetKey(2, 0)), QVariant(32));
        recording::clear();
        finger::tap(customKey(page, 2));
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", highlight(2), lastPreset(2)}));
        // Steps start from there.
        finger::tap(upKeys(page)[0]);
        QCOMPARE(reference::levels(page)[0], 31);
        finger::tap(downKeys(page)[1]);
        QCOMPARE(reference::levels(page)[1], 0);
    }

    void everyShowReadsAgain() {
        setLive(curve(1));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        page.hide();
        setLive(curve(2));
        show(&page);
        QCOMPARE(reference::levels(page), curve(2));
    }

    void keysAtTheEndsAreDisabledOnShow() {
        QList<int> levels = everywhere(12);
        levels[0] = 0;
        levels[1] = 1;
        levels[2] = 23;
        levels[3] = 24;
        setLive(levels);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        for (int band = 0; band < 13; ++band) {
            QCOMPARE(upKeys(page)[band]->isEnabled(), band != 0);
            QCOMPARE(downKeys(page)[band]->isEnabled(), band != 3);
        }
    }

    void flatIsTranslatedAndSlotsByTheForm() {
        recording::state().texts.insert(1073, QStringLiteral("Linear"));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        CHILD(QLabel, flat, &page, "Txt_flat");
        CHILD(QLabel, first, &page, "Txt_custom1");
        QCOMPARE(flat->text(), QStringLiteral("Linear"));
        QCOMPARE(first->text(), QStringLiteral("Preset1"));
        recording::state().texts.insert(1073, QStringLiteral("Neutre"));
        OtherLanguage language;
        QCoreApplication::installTranslator(&language);
        advance(0);
        QCOMPARE(flat->text(), QStringLiteral("Neutre"));
        QCOMPARE(first->text(), QStringLiteral("<Preset1>"));
        QCoreApplication::removeTranslator(&language);
    }

    // Sliders ---------------------------------------------------------------------------------------------------

    void aDragSendsTheCurveOncePerTimer() {
        setLive(everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        cm::SliderBarWidget *const slider = reference::sliders(page)[4];
        finger::press(slider, at(12));  // where the knob is: nothing changes
        QCOMPARE(recording::take(), QStringList());
        for (int level = 11; level >= 4; --level) {
            finger::move(slider, at(level));
            QCOMPARE(recording::take(), QStringList{highlight(-1)});
            advance(9);
        }
        QCOMPARE(recording::take(), QStringList());  // 72 ms after the first step
        advance(7);
        QCOMPARE(recording::take(), QStringList());
        advance(1);
        QCOMPARE(recording::take(), QStringList{send(20, 4)});
        advance(1000);
        QCOMPARE(recording::take(), QStringList());
        finger::move(slider, at(3));
        finger::release(slider, at(3));
        QCOMPARE(recording::take(), QStringList{highlight(-1)});
        advance(80);
        QCOMPARE(recording::take(), QStringList{send(21, 4)});
        QCOMPARE(recording::state().customEq[4], 21);
    }

    void theTimerIsNotStartedAnew() {
        setLive(everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        cm::SliderBarWidget *const slider = reference::sliders(page)[0];
        finger::press(slider, at(10));
        advance(79);
        finger::move(slider, at(9));
        recording::clear();
        advance(1);
        QCOMPARE(recording::take(), QStringList{send(15, 0)});
    }

    void everyBandOfTheCurveThatDiffersIsSent() {
        recording::state().eqType = 3;  // Rock is shown, another curve is live
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(reference::sliders(page)[12], at(20));
        QCOMPARE(recording::take(), QStringList{highlight(-1)});
        QList<int> levels = reference::levels(reference::curves()[3]);
        levels[12] = 20;
        QCOMPARE(reference::levels(page), levels);
        advance(80);
        QCOMPARE(recording::take(), QStringList{type(16)} + sendAll(levels));
        // Bands that the service holds already are not sent again.
        finger::tap(reference::sliders(page)[0], at(0));
        advance(80);
        QCOMPARE(recording::take(), QStringList({highlight(-1), send(24, 0)}));
    }

    void anyOtherCustomTypeBecomesTheLiveCurve() {
        setLive(everywhere(12));
        recording::state().eqType = 18;
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(reference::sliders(page)[1], at(0));
        advance(80);
        QCOMPARE(recording::take(), QStringList({highlight(-1), type(16), send(24, 1)}));
    }

    void withNoValidSlotTheSlidersStayLocal_data() {
        QTest::addColumn<int>("preset");
        for (int preset : {-1, 5, 16, minimum, maximum}) {
            QTest::addRow("%d", preset) << preset;
        }
    }
    void withNoValidSlotTheSlidersStayLocal() {
        QFETCH(int, preset);
        recording::setStored("custom_eq_type_id", preset);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(reference::sliders(page)[1], at(3));
        advance(80);
        QCOMPARE(recording::take(), QStringList{highlight(-1)});
        QCOMPARE(reference::levels(page)[1], 3);
        QCOMPARE(recording::state().eqType, 0);
        QCOMPARE(debugLines().filter("custom_eq_type_id").size(), 13);
    }

    void everyLevelOfEveryBandReachesTheService() {
        setLive(everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        for (int band = 0; band < 13; ++band) {
            for (int level = 0; level <= 24; ++level) {
                finger::tap(reference::sliders(page)[band], at(level));
                QCOMPARE(upKeys(page)[band]->isEnabled(), level > 0);
                QCOMPARE(downKeys(page)[band]->isEnabled(), level < 24);
                advance(80);
                QCOMPARE(recording::state().customEq[band], 24 - level);
            }
        }
    }

    void aDragClearsTheSelectionWithTheCommit() {
        setLive(curve(1));
        savePreset(2, curve(1));
        recording::setStored("HIGHLIGHT_PRESET_ID", 2);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(selected(page), 2);
        const int before = curve(1)[0];
        finger::press(reference::sliders(page)[0], at(before + 1));
        QCOMPARE(selected(page), 2);
        advance(80);
        QCOMPARE(selected(page), -1);
        // Back at the stored curve it is recognised.
        finger::move(reference::sliders(page)[0], at(before));
        advance(80);
        QCOMPARE(selected(page), 2);
    }

    // Step keys -------------------------------------------------------------------------------------------------

    void stepKeysMoveOneLevel_data() {
        QTest::addColumn<bool>("up");
        QTest::addColumn<int>("from");
        for (int level : {1, 12, 23, 24}) {
            QTest::addRow("up from %d", level) << true << level;
        }
        for (int level : {0, 1, 12, 23}) {
            QTest::addRow("down from %d", level) << false << level;
        }
    }
    void stepKeysMoveOneLevel() {
        QFETCH(bool, up);
        QFETCH(int, from);
        const int to = up ? from - 1 : from + 1;
        setLive(everywhere(from));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        for (int band = 0; band < 13; ++band) {
            finger::tap((up ? upKeys(page) : downKeys(page))[band]);
            QCOMPARE(recording::take(), QStringList({"doBeep(0)", highlight(-1)}));
            QCOMPARE(reference::levels(page)[band], to);
            QCOMPARE(upKeys(page)[band]->isEnabled(), to > 0);
            QCOMPARE(downKeys(page)[band]->isEnabled(), to < 24);
            advance(80);
            QCOMPARE(recording::take(), QStringList{send(24 - to, band)});
        }
    }

    void aDisabledStepKeyDoesNothing() {
        setLive(everywhere(0));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(upKeys(page)[3]);
        advance(200);
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(reference::levels(page)[3], 0);
    }

    void fastStepsSendOnce() {
        setLive(everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        for (int i = 0; i < 6; ++i) {
            finger::tap(upKeys(page)[7]);
            advance(10);
        }
        recording::clear();
        advance(20);
        QCOMPARE(recording::take(), QStringList{send(18, 7)});
    }

    void stepSlotsIgnoreUnknownBands() {
        Audiosetting_right_eq_widget page(nullptr);
        for (int band : {-1, 13, minimum, maximum}) {
            QVERIFY(QMetaObject::invokeMethod(&page, "onBarPrevClicked", Q_ARG(int, band)));
            QVERIFY(QMetaObject::invokeMethod(&page, "onBarNextClicked", Q_ARG(int, band)));
            QCOMPARE(recording::take(), QStringList({"doBeep(0)", "doBeep(0)"}));
            page.updatePrevNextById(band);
            page.setEqBarValue(band, 5);
        }
        QCOMPARE(reference::levels(page), everywhere(0));
    }

    // Flat and what is called by name -----------------------------------------------------------------------------

    void flatSelectsTheFlatCurve() {
        setLive(everywhere(24));
        savePreset(1, everywhere(12));
        savePreset(4, everywhere(12));
        recording::setStored("HIGHLIGHT_PRESET_ID", 4);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QCOMPARE(selected(page), 4);
        finger::tap(page.findChild<QPushButton *>("key_flat"));
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", type(0), highlight(-1)}));
        QCOMPARE(reference::levels(page), everywhere(12));
        QCOMPARE(selected(page), 1);  // the first preset that stores it
        for (int band = 0; band < 13; ++band) {
            QVERIFY(upKeys(page)[band]->isEnabled() && downKeys(page)[band]->isEnabled());
        }
        QVERIFY(!page.findChild<QPushButton *>("key_flat")->isCheckable());
        advance(500);
        QCOMPARE(recording::take(), QStringList());
    }

    void saveSendsLevelsUnconverted() {
        recording::state().eqType = 5;
        for (int band = 0; band < 13; ++band) {
            recording::state().customEq[band] = band;
        }
        Audiosetting_right_eq_widget page(nullptr);
        QVERIFY(QMetaObject::invokeMethod(&page, "onUpdateCustomEqData"));
        QCOMPARE(recording::take(), QStringList());
        QVERIFY(QMetaObject::invokeMethod(&page, "onSaveCustomEqValue"));
        QStringList lines{type(5)};
        for (int band = 0; band < 13; ++band) {
            lines << send(24 - band, band);
        }
        QCOMPARE(recording::take(), lines);
    }

    void aChangedTypeSendsTheKeptLevelsAndShowsTheCurve() {
        recording::state().customEq.fill(20);
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        recording::state().eqType = 8;
        QVERIFY(QMetaObject::invokeMethod(&page, "onEqTypeChanged", Q_ARG(int, 2)));
        QStringList lines{type(8)};
        for (int band = 0; band < 13; ++band) {
            lines << send(4, band);
        }
        QCOMPARE(recording::take(), lines);
        QCOMPARE(reference::levels(page), reference::levels(reference::curves().last()));
    }

    void resetLeavesTheLastThreeBands() {
        setLive(everywhere(5));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        QVERIFY(QMetaObject::invokeMethod(&page, "onResetEqValue"));
        QStringList lines{type(0), type(0)};
        for (int band = 0; band < 13; ++band) {
            lines << send(band < 10 ? 12 : 5, band);
        }
        QCOMPARE(recording::take(), lines);
        QCOMPARE(reference::levels(page), everywhere(12).mid(0, 10) + everywhere(5).mid(0, 3));
    }

    void aFinishedDragSendsOneBandAtOnce() {
        setLive(everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(reference::sliders(page)[2], at(0));
        recording::clear();
        QVERIFY(QMetaObject::invokeMethod(&page, "save_eq_section_drag", Q_ARG(int, 6), Q_ARG(int, 9)));
        QCOMPARE(recording::take(), QStringList{send(15, 6)});
        advance(500);  // the timer was stopped with it
        QCOMPARE(recording::take(), QStringList());
    }

    void absurdArgumentsHarmNothing() {
        setLive(everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        for (int value : {minimum, -1, 25, maximum}) {
            QVERIFY(QMetaObject::invokeMethod(&page, "update_eq_section_drag", Q_ARG(int, 3), Q_ARG(int, value)));
            QCOMPARE(reference::levels(page)[3], value);
            QVERIFY(QMetaObject::invokeMethod(&page, "update_eq_section_drag", Q_ARG(int, value), Q_ARG(int, 3)));
            page.updateCustomEqValue(3, value);
        }
        recording::state().customEq.fill(minimum);
        QVERIFY(QMetaObject::invokeMethod(&page, "onUpdateCustomEqData"));
        recording::clear();
        QVERIFY(QMetaObject::invokeMethod(&page, "onSaveCustomEqValue"));
        QCOMPARE(recording::take()[1], send(int(24u - unsigned(minimum)), 0));
    }

    void onSetFlatEqOnlyShows() {
        recording::state().eqType = 7;
        Audiosetting_right_eq_widget page(nullptr);
        page.onSetFlatEq();
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(reference::levels(page), reference::levels(reference::curves()[6]));
    }

    void hidingDoesNotLoseTheLastDrag() {
        setLive(everywhere(12));
        Audiosetting_right_eq_widget page(nullptr);
        show(&page);
        finger::tap(reference::sliders(page)[2], at(0));
        page.hide();
        recording::clear();
        advance(80);
        QCOMPARE(recording::take(), QStringList{send(24, 2)});
    }
};

PAGE_TEST_MAIN(tst_EqPage)
#include "tst_audiosetting_right_eq_widget.moc"
