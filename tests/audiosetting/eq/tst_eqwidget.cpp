// SPDX-License-Identifier: Apache-2.0
#include "eq/eqwidget.h"

#include "eq/eqtable.h"
#include "navigation/pageid.h"
#include "tests/audiosetting/eq/eqreference.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QLabel>
#include <QPixmapCache>
#include <QPushButton>
#include <QSignalSpy>

#include <limits>

using audiosetting::EQWidget;
using reference::everywhere;

namespace {

const int minimum = std::numeric_limits<int>::min();
const int maximum = std::numeric_limits<int>::max();
const int visibleBands = 10;

QString send(int gain, int band) {
    return QStringLiteral("setCustomEq(%1, %2, true)").arg(gain).arg(band);
}

QString type(int number) {
    return QStringLiteral("setEQType(%1, true)").arg(number);
}

QStringList gainTexts(const EQWidget &panel) {
    QStringList texts;
    for (int band = 0; band < visibleBands; ++band) {
        texts << panel.findChild<QLabel *>(QStringLiteral("val_%1").arg(band))->text();
    }
    return texts;
}

QStringList gainTexts(const QList<int> &levels) {
    QStringList texts;
    for (int level : levels.mid(0, visibleBands)) {
        texts << (level < 12 ? QStringLiteral("+") : QString()) + QString::number(12 - level);
    }
    return texts;
}

QString nameShown(const EQWidget &panel) {
    return panel.findChild<QLabel *>("txt_name")->text();
}

QPoint at(int level) {
    return QPoint(30, reference::touchY(reference::panelBorders, level));
}

const reference::Curve *presetOf(int type) {
    for (const reference::Curve &curve : reference::panelCurves()) {
        if (curve.type == type) {
            return &curve;
        }
    }
    return nullptr;
}

}  // namespace

class tst_EqWidget : public PageTest {
    Q_OBJECT
private slots:
    void declaresSignalsAndSlotsInOrder() {
        QCOMPARE(methods(EQWidget::staticMetaObject),
                 QStringList({"signal touchBack()", "signal eqSignalShowPage(SettingPageType)",
                              "signal eqsignaltohome()", "slot update_eq_section_drag(int,int)",
                              "slot save_eq_section_drag(int,int)", "slot onBackKeyClicked()",
                              "slot on_key_left_clicked()", "slot on_key_right_clicked()", "slot onEqTypeChanged(int)",
                              "slot onSaveCustomEqValue()", "slot onUpdateCustomEqData()", "slot onResetEqValue()"}));
    }

    void pagesHaveTheNumbersOfTheContainer() {
        using namespace audiosetting;
        QCOMPARE(int(SettingPageGeneral), int(PageGeneral));
        QCOMPARE(int(SettingPageEq), int(PageEq));
        QCOMPARE(int(SettingPageCrossover), int(PageCrossover));
        QCOMPARE(int(SettingPageTiming), int(PageTiming));
        QCOMPARE(int(SettingPageFactoryEq), int(PageFactoryEq));
        QCOMPARE(int(SettingPageVolume), int(PageVolume));
        QCOMPARE(int(SettingPageSourceGain), int(PageSourceGain));
        QCOMPARE(int(SettingPageSettingsRoot), int(PageSettingsRoot));
    }

    void constructionAndShowSendNothing() {
        for (int number : {0, 3, 6, 16, 21, -1}) {
            recording::state().eqType = number;
            EQWidget panel;
            show(&panel);
            QCOMPARE(recording::take(), QStringList());
        }
    }

    void tenBandsShowAndThreeLieBeyond() {
        EQWidget panel;
        show(&panel);
        const auto sliders = reference::sliders(panel);
        QCOMPARE(sliders.size(), 13);
        for (int band = 0; band < 13; ++band) {
            cm::SliderBarWidget *const slider = sliders[band];
            QCOMPARE(slider->geometry(), QRect(94 * band + 38, 60, 60, 371));
            QVERIFY(slider->isVisible());
            QCOMPARE(slider->visibleRegion().isEmpty(), band >= visibleBands);
            for (int level = 0; level <= 24; ++level) {
                slider->setBarLevel(level);
                QCOMPARE(slider->level2Point(level), reference::panelCenters[level]);
                QCOMPARE(slider->point2Level(reference::touchY(reference::panelBorders, level)), level);
            }
        }
        // A touch at y 345 or below the last border kept is the lowest level; the table's 25th entry is not.
        QCOMPARE(sliders[0]->point2Level(345), 23);
        QCOMPARE(sliders[0]->point2Level(346), 24);
    }

    void slidersLookAsPrescribed() {
        EQWidget panel;
        show(&panel);
        const QString knob = QStringLiteral(":/halverv2_icon/setup_bg_sliding_point.png");
        QVERIFY(!QPixmap(knob).isNull());
        for (cm::SliderBarWidget *slider : reference::sliders(panel)) {
            for (int level : {0, 1, 12, 23, 24}) {
                slider->setBarLevel(level);
                // A bar of 16 px, the panel's own knob, and no number on it.
                QCOMPARE(reference::picture(*slider),
                         reference::sliderPicture(knob, reference::panelCenters, QSize(60, 371), {}, level));
            }
        }
    }

    void captionsNameTenBands() {
        EQWidget panel;
        show(&panel);
        const char *const captions[] = {"32Hz", "63Hz", "125Hz", "250Hz", "500Hz",
                                        "1KHz", "2KHz", "4KHz",  "8KHz",  "16KHz"};
        for (int band = 0; band < visibleBands; ++band) {
            const QLabel *const caption = panel.findChild<QLabel *>(QStringLiteral("txt_freq_%1").arg(band));
            QVERIFY(caption);
            QCOMPARE(caption->text(), QLatin1String(captions[band]));
            QCOMPARE(caption->geometry().center().x(), 94 * band + 38 + 29);
        }
        QVERIFY(!panel.findChild<QLabel *>("txt_freq_10"));
        QVERIFY(!panel.findChild<QLabel *>("val_10"));
    }

    void presetsAreShownWithNameAndGains_data() {
        QTest::addColumn<int>("number");
        for (int number : {0, 1, 2, 3, 7, 8, 21, 4, 5, 6, 9, 15, 17, 20, 22, -1, minimum, maximum}) {
            QTest::addRow("%d", number) << number;
        }
    }
    void presetsAreShownWithNameAndGains() {
        QFETCH(int, number);
        recording::state().eqType = number;
        recording::state().customEq.fill(5);
        EQWidget panel;
        show(&panel);
        const reference::Curve *const curve = presetOf(number);
        const QList<int> levels = curve ? reference::levels(*curve) : everywhere(12);
        QCOMPARE(reference::levels(panel), levels);
        QCOMPARE(gainTexts(panel), gainTexts(levels));
        QCOMPARE(nameShown(panel), curve ? QStringLiteral("#%1").arg(curve->text) : QString());
        QCOMPARE(panel.getEQName(), nameShown(panel));
    }

    void theCustomCurveIsShownFromTheService() {
        recording::state().eqType = 16;
        recording::state().customEq = {{-12, -11, -1, 0, 1, 5, 11, 12, 3, -3, 2, 7, -9}};
        EQWidget panel;
        show(&panel);
        QCOMPARE(reference::levels(panel), QList<int>({24, 23, 13, 12, 11, 7, 1, 0, 9, 15, 10, 5, 21}));
        QCOMPARE(gainTexts(panel), QStringList({"-12", "-11", "-1", "0", "+1", "+5", "+11", "+12", "+3", "-3"}));
        QCOMPARE(nameShown(panel), QStringLiteral("#681"));
    }

    void labelsShowTheServicesOwnValues() {
        // The EQ page keeps 0 to 24 where this panel keeps gains.
        recording::state().eqType = 16;
        recording::state().customEq = {{13, 24, maximum, -13, minimum, 0, 0, 0, 0, 0, 0, 0, 0}};
        EQWidget panel;
        show(&panel);
        QCOMPARE(reference::levels(panel).mid(0, 4), QList<int>({-1, -12, 12 - maximum, 25}));
        QCOMPARE(gainTexts(panel).mid(0, 6),
                 QStringList({"+13", "+24", QStringLiteral("+%1").arg(maximum), "-13", QString::number(minimum), "0"}));
        QCOMPARE(recording::take(), QStringList());
        panel.setEqBarValue(3, 30);
        QCOMPARE(reference::levels(panel)[3], 30);
        QCOMPARE(gainTexts(panel)[3], QStringLiteral("-18"));
    }

    void gainsCarryTheirSign() {
        EQWidget panel;
        for (int gain = -12; gain <= 12; ++gain) {
            QCOMPARE(panel.toEQString(gain), (gain > 0 ? QStringLiteral("+") : QString()) + QString::number(gain));
        }
        panel.updateEqLabel(3, 7);
        QCOMPARE(gainTexts(panel)[3], QStringLiteral("+7"));
        for (int band : {-1, 10, 12, 13, minimum, maximum}) {
            panel.updateEqLabel(band, 9);  // no such label: nothing happens
        }
    }

    void labelsThatAHostAddsAreFound() {
        recording::state().eqType = 16;
        EQWidget panel;
        show(&panel);
        QWidget row(&panel);
        QHash<int, QLabel *> added;
        for (int band : {10, 11, 12, 13}) {
            added[band] = new QLabel(band == 11 ? &row : &panel);
            added[band]->setObjectName(QStringLiteral("val_%1").arg(band));
        }
        recording::state().customEq = {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 4, -5, 0}};
        panel.updateEqVal();
        QCOMPARE(added[10]->text(), QStringLiteral("+4"));
        QCOMPARE(added[11]->text(), QStringLiteral("-5"));
        QCOMPARE(added[12]->text(), QStringLiteral("0"));
        panel.setEqBarValue(12, 3);
        QCOMPARE(added[12]->text(), QStringLiteral("+9"));
        panel.updateEqLabel(13, 1);
        QCOMPARE(added[13]->text(), QString());
        // A label that goes is not written.
        delete added.take(10);
        panel.updateEqVal();
    }

    // Sliders ---------------------------------------------------------------------------------------------------

    void aDragSendsOnTheLeadingEdgeAndAtRelease() {
        recording::state().eqType = 16;
        EQWidget panel;
        show(&panel);
        cm::SliderBarWidget *const slider = reference::sliders(panel)[4];
        finger::press(slider, at(12));
        QCOMPARE(recording::take(), QStringList{send(0, 4)});
        for (int level = 11; level >= 7; --level) {
            advance(9);
            finger::move(slider, at(level));
            QCOMPARE(recording::take(), QStringList());
            QCOMPARE(reference::levels(panel)[4], level);
            QCOMPARE(gainTexts(panel)[4], QStringLiteral("+%1").arg(12 - level));
        }
        advance(5);                                  // 50 ms after the press
        QCOMPARE(recording::take(), QStringList());  // there is no trailing edge
        finger::move(slider, at(6));
        QCOMPARE(recording::take(), QStringList{send(6, 4)});
        advance(49);
        finger::move(slider, at(5));
        QCOMPARE(recording::take(), QStringList());
        finger::release(slider, at(5));
        QCOMPARE(recording::take(), QStringList{send(7, 4)});
        QCOMPARE(recording::state().customEq[4], 7);
        // The release ended the throttle: the next press sends at once.
        finger::press(slider, at(5));
        QCOMPARE(recording::take(), QStringList{send(7, 4)});
        advance(500);
        QCOMPARE(recording::take(), QStringList());
        finger::release(slider, at(5));
    }

    void atMostOneValuePerFiftyMilliseconds() {
        recording::state().eqType = 16;
        EQWidget panel;
        show(&panel);
        cm::SliderBarWidget *const slider = reference::sliders(panel)[0];
        int sent = 0;
        finger::press(slider, at(12));
        for (int ms = 0; ms < 1000; ++ms) {
            finger::move(slider, at(ms % 25));
            sent += recording::take().size();
            advance(1);
        }
        QCOMPARE(sent, 20);
        finger::release(slider, at(999 % 25));
        QCOMPARE(recording::take(), QStringList{send(12 - 999 % 25, 0)});
    }

    void everyLevelOfEveryBandInViewReachesTheService() {
        recording::state().eqType = 16;
        EQWidget panel;
        show(&panel);
        for (int band = 0; band < visibleBands; ++band) {
            for (int level = 0; level <= 24; ++level) {
                finger::tap(reference::sliders(panel)[band], at(level));
                QCOMPARE(recording::state().customEq[band], 12 - level);
                QCOMPARE(reference::levels(panel)[band], level);
            }
        }
    }

    void theFirstTouchLeavesAPreset() {
        recording::state().eqType = 3;
        EQWidget panel;
        show(&panel);
        cm::SliderBarWidget *const slider = reference::sliders(panel)[9];
        finger::press(slider, at(0));
        QCOMPARE(recording::take(), QStringList({type(16), send(12, 9)}));
        QCOMPARE(nameShown(panel), QStringLiteral("#681"));
        finger::release(slider, at(0));
        QCOMPARE(recording::take(), QStringList{send(12, 9)});
        // The other bands go on showing the preset.
        QCOMPARE(reference::levels(panel).mid(0, 9), reference::levels(*presetOf(3)).mid(0, 9));
    }

    void aReleaseLeavesAPresetToo() {
        recording::state().eqType = 3;
        EQWidget panel;
        QVERIFY(QMetaObject::invokeMethod(&panel, "save_eq_section_drag", Q_ARG(int, 2), Q_ARG(int, 20)));
        QCOMPARE(recording::take(), QStringList({type(16), send(-8, 2)}));
    }

    // Keys ------------------------------------------------------------------------------------------------------

    void leftStepsUpThroughEveryNumber() {
        EQWidget panel;
        show(&panel);
        CHILD(QPushButton, left, &panel, "key_left");
        recording::state().customEq.fill(4);
        QVERIFY(QMetaObject::invokeMethod(&panel, "onUpdateCustomEqData"));
        for (int number = 1; number <= 17; ++number) {
            finger::tap(left);
            const int now = number % 17;
            QStringList lines{"doBeep(0)", type(now)};
            for (int band = 0; now == 16 && band < 13; ++band) {
                lines << send(4, band);
            }
            QCOMPARE(recording::take(), lines);
            const reference::Curve *const curve = presetOf(now);
            QCOMPARE(reference::levels(panel), curve ? reference::levels(*curve) : everywhere(now == 16 ? 8 : 12));
            QCOMPARE(nameShown(panel), now == 16 ? QStringLiteral("#681")
                                       : curve   ? QStringLiteral("#%1").arg(curve->text)
                                                 : QString());
        }
    }

    void rightStepsDownThroughEveryNumber() {
        EQWidget panel;
        show(&panel);
        CHILD(QPushButton, right, &panel, "key_right");
        for (int number = 16; number >= 0; --number) {
            finger::tap(right);
            const QStringList lines = recording::take();
            QCOMPARE(lines.mid(0, 2), QStringList({"doBeep(0)", type(number)}));
            QCOMPARE(lines.size(), number == 16 ? 15 : 2);
        }
    }

    void stepsFromFarAwayNeverOverflow() {
        EQWidget panel;
        const QList<std::array<int, 3>> steps{
            {{21, 22, 20}}, {{-1, 0, -2}}, {{maximum, 0, maximum - 1}}, {{minimum, minimum + 1, 16}}};
        for (const auto &step : steps) {
            recording::state().eqType = step[0];
            panel.prevEQType();
            QCOMPARE(recording::take(), QStringList{type(step[1])});
            recording::state().eqType = step[0];
            panel.nextEQType();
            QCOMPARE(recording::take(), QStringList{type(step[2])});
        }
    }

    void resetLeavesTheLastThreeBands() {
        recording::state().eqType = 16;
        recording::state().customEq.fill(5);
        EQWidget panel;
        show(&panel);
        finger::tap(panel.findChild<QPushButton *>("key_reset"));
        QStringList lines{"doBeep(0)", type(0)};
        for (int band = 0; band < 13; ++band) {
            lines << send(band < 10 ? 0 : 5, band);
        }
        QCOMPARE(recording::take(), lines);
        QCOMPARE(reference::levels(panel), everywhere(12).mid(0, 10) + everywhere(7).mid(0, 3));
        QCOMPARE(gainTexts(panel), gainTexts(everywhere(12)));
        QCOMPARE(nameShown(panel), QStringLiteral("#3"));
    }

    void backAsksTheHostToClose() {
        EQWidget panel;
        show(&panel);
        QSignalSpy back(&panel, SIGNAL(touchBack()));
        finger::tap(panel.findChild<QPushButton *>("key_back"));
        advance(0);
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)"}));
        QVERIFY(panel.isVisible());  // the host closes it
        QCOMPARE(back.size(), 0);
    }

    void touchesGoThroughPicturesAndCaption() {
        EQWidget panel;
        show(&panel);
        CHILD(QLabel, caption, &panel, "Txt_reset");
        finger::tap(caption);
        QCOMPARE(recording::take().mid(0, 2), QStringList({"doBeep(0)", type(0)}));
        for (const char *name : {"bg_base", "bg_txt"}) {
            QVERIFY(panel.findChild<QLabel *>(name)->testAttribute(Qt::WA_TransparentForMouseEvents));
        }
    }

    void keysAreBigEnoughForAFinger() {
        EQWidget panel;
        for (const QPushButton *key : panel.findChildren<QPushButton *>()) {
            QVERIFY2(key->width() >= 80 && key->height() >= 80, qPrintable(key->objectName()));
            QVERIFY(QRect(0, 0, 1024, 552).contains(key->geometry()));
        }
        QCOMPARE(panel.size(), QSize(1024, 552));
    }

    // Showing again, called by name ---------------------------------------------------------------------------------

    void everyShowTakesTheServicesCurve() {
        EQWidget panel;
        show(&panel);
        panel.hide();
        recording::state().customEq.fill(-6);
        recording::state().eqType = 8;
        show(&panel);
        QCOMPARE(nameShown(panel), QStringLiteral("#235"));
        QCOMPARE(recording::take(), QStringList());
        QVERIFY(QMetaObject::invokeMethod(&panel, "onSaveCustomEqValue"));
        QStringList lines;
        for (int band = 0; band < 13; ++band) {
            lines << send(-6, band);
        }
        QCOMPARE(recording::take(), lines);
    }

    void aChangedTypeSendsTheKeptCurveAndShows() {
        EQWidget panel;
        show(&panel);
        recording::state().eqType = 7;
        QVERIFY(QMetaObject::invokeMethod(&panel, "onEqTypeChanged", Q_ARG(int, 3)));
        QStringList lines;
        for (int band = 0; band < 13; ++band) {
            lines << send(0, band);
        }
        QCOMPARE(recording::take(), lines);
        QCOMPARE(nameShown(panel), QStringLiteral("#241"));
        QCOMPARE(reference::levels(panel), reference::levels(*presetOf(7)));
    }

    void absurdArgumentsHarmNothing() {
        recording::state().eqType = 16;
        EQWidget panel;
        show(&panel);
        for (int value : {minimum, -1, 13, 25, maximum}) {
            QVERIFY(QMetaObject::invokeMethod(&panel, "update_eq_section_drag", Q_ARG(int, value), Q_ARG(int, 4)));
            QVERIFY(QMetaObject::invokeMethod(&panel, "update_eq_section_drag", Q_ARG(int, 4), Q_ARG(int, value)));
            QCOMPARE(reference::levels(panel)[4], value);
        }
        QCOMPARE(gainTexts(panel)[4], QString::number(12 - maximum));
    }

    void languageIsFollowed() {
        EQWidget panel;
        show(&panel);
        recording::state().texts.insert(3, QStringLiteral("Linear"));
        recording::state().texts.insert(1073, QStringLiteral("Neutre"));
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&panel, &event);
        QCOMPARE(nameShown(panel), QStringLiteral("Linear"));
        QCOMPARE(panel.findChild<QLabel *>("Txt_reset")->text(), QStringLiteral("Neutre"));
        QCOMPARE(gainTexts(panel), gainTexts(everywhere(12)));
    }

    void destructionClearsThePixmapCache() {
        {
            EQWidget panel;
            show(&panel);
            QPixmapCache::insert(QStringLiteral("test"), QPixmap(8, 8));
        }
        QVERIFY(!QPixmapCache::find(QStringLiteral("test"), nullptr));
    }
};

PAGE_TEST_MAIN(tst_EqWidget)
#include "tst_eqwidget.moc"
