// SPDX-License-Identifier: Apache-2.0
#include "volume/audiovolumsettings.h"

#include "platform/labelbutton.h"
#include "platform/scrollbar.h"
#include "tests/audiosetting/volume/sliderpage.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QPixmap>
#include <QTranslator>

#include <algorithm>
#include <limits>
#include <random>

using namespace sliderpage;

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

struct Row {
    int type;
    const char *placeholder;
    const char *minus;
    const char *plus;
    const char *caption;
    const char *text;
    const char *slot;  ///< what its slots' names begin with
    const char *sliderSlot;
};

// In the order in which the sliders are loaded.
const Row rows[] = {
    {0, "mainvolumeslider", "key_main_minus", "key_main_plus", "txt_MainVolume", "Main Volume", "onMainVolum",
     "onMainVolumeSliderChanged"},
    {1, "Ringtonevolumeslider", "key_ringtone_volume_minus", "key_ringtone_volume_plus", "txt_rigtone_volume",
     "Ringtone Volume", "onRingtoneVolum", "onRingtoneVolSliderChanged"},
    {2, "phonevolumeslider", "key_phone_volume_minus", "key_phone_volume_plus", "txt_Phone_Volume", "Phone Volume",
     "onPhoneVolum", "onPhoneVolSliderChanged"},
    {3, "navivolumeslider", "key_navig_volume_minus", "key_navig_volume_plus", "txt_navigation_volume",
     "Navigation Volume", "onNaviVolum", "onNaviVolSliderChanged"},
    {4, "voicevolumeslider", "key_voice_volume_minus", "key_voice_volume_plus", "txt_Voice_volume", "Voice Volume",
     "onVoiceVolum", "onVoiceVolSliderChanged"},
    {6, "TAvolumeslider", "key_ta_volume_minus", "key_ta_volume_plus", "txt_ta_volume", "TA Volume", "onTAVolum",
     "onTAVolSliderChanged"},
};
const Row &mainRow = rows[0];
const Row &phoneRow = rows[2];
const Row &navigationRow = rows[3];
const Row &voiceRow = rows[4];
const Row &taRow = rows[5];

QString keyOf(const Row &row) {
    return QStringLiteral("inputgain%1").arg(row.type);
}

void setServiceLevels(int level) {
    for (const Row &row : rows) {
        recording::state().volume[row.type] = level;
    }
}

QString sent(const Row &row, int level) {
    return QStringLiteral("setVolumeLevel(%1, %2)").arg(level).arg(row.type);
}

QString announced(const Row &row, int level) {
    return QStringLiteral("audioVolumeChanged(0, %1, %2)").arg(level).arg(row.type);
}

QString sentToMcu(const Row &row, int level) {
    return QStringLiteral("setAudioVolumeValue(%1, %2)").arg(row.type).arg(level);
}

const auto beep = QStringLiteral("doBeep(0)");

class FormTexts : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override {
        return QLatin1String(context) + QLatin1Char('/') + QLatin1String(source);
    }
};

}  // namespace

class tst_Audiovolumsettings : public PageTest {
    Q_OBJECT

    static cm::LabelButton *key(QWidget &page, const char *name) {
        return page.findChild<cm::LabelButton *>(QLatin1String(name));
    }
    static HorizontalSlider *sliderOf(QWidget &page, const Row &row) { return slider(&page, row.placeholder); }
    /// "minus plus" of a row: 1 for an enabled key.
    static QByteArray keys(QWidget &page, const Row &row) {
        return QByteArray::number(key(page, row.minus)->isEnabled()) + ' ' +
               QByteArray::number(key(page, row.plus)->isEnabled());
    }
    static QByteArray expectedKeys(int level) { return level <= 0 ? "0 1" : level < 40 ? "1 1" : "1 0"; }
    /// Taps a key. The last row lies outside of the screen, where only an event of its own reaches it.
    static void tapKey(QWidget &page, const Row &row, const char *name) {
        if (&row == &taRow) {
            QTest::mouseClick(key(page, name), Qt::LeftButton);
        } else {
            reveal(&page, key(page, name));
            finger::tap(key(page, name));
        }
    }
    static void call(QObject &page, const QByteArray &slot) {
        QVERIFY2(QMetaObject::invokeMethod(&page, slot.constData(), Qt::DirectConnection), slot.constData());
    }
    static void slide(QObject &page, const Row &row, int index, int value) {
        QVERIFY(QMetaObject::invokeMethod(&page, row.sliderSlot, Q_ARG(int, index), Q_ARG(int, value)));
    }

private slots:
    void declaresItsSlotsInOrder() {
        const QMetaObject &meta = Audiovolumsettings::staticMetaObject;
        QCOMPARE(QByteArray(meta.superClass()->className()), QByteArray("QWidget"));
        QStringList expected;
        for (const char *name : {"Main", "Phone", "Voice", "Navi", "Ringtone", "TA"}) {
            expected << QStringLiteral("on%1%2SliderChanged(int iIdex, int iValue)")
                            .arg(QLatin1String(name), qstrcmp(name, "Main") == 0 ? "Volume" : "Vol");
        }
        for (const char *name : {"Main", "Phone", "Voice", "Navi", "Ringtone", "TA"}) {
            expected << QStringLiteral("on%1VolumPlus()").arg(QLatin1String(name))
                     << QStringLiteral("on%1VolumMinus()").arg(QLatin1String(name));
        }
        expected << QStringLiteral("onAudioVolumeChange(int mute, int vol, int type)");
        QCOMPARE(signatures(meta, QMetaMethod::Slot), expected);
        QCOMPARE(signatures(meta, QMetaMethod::Signal), QStringList());
    }

    void hasTheRowsOfItsForm() {
        Audiovolumsettings page(nullptr);
        QCOMPARE(page.objectName(), QStringLiteral("Audiovolumsettings"));
        QCOMPARE(page.windowTitle(), QStringLiteral("Form"));
        QCOMPARE(page.geometry(), QRect(0, 130, 1024, 470));
        CHILD(QScrollArea, area, &page, "scrollArea");
        QCOMPARE(area->geometry(), QRect(40, 0, 980, 440));
        QCOMPARE(area->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
        QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(!area->widgetResizable());
        QCOMPARE(area->widget(), contents(&page));
        QCOMPARE(contents(&page)->size(), QSize(955, 885));

        QList<FormRow> form;
        const Row *const fromTop[] = {&mainRow, &phoneRow, &voiceRow, &navigationRow, &rows[1], &taRow};
        for (int i = 0; i < 6; ++i) {
            const int y = 180 * i;
            form << FormRow{fromTop[i]->caption, "QLabel", QRect(80, y, 864, 72)}
                 << FormRow{fromTop[i]->minus, "cm::LabelButton", QRect(80, y + 90, 72, 72)}
                 << FormRow{fromTop[i]->plus, "cm::LabelButton", QRect(170, y + 90, 72, 72)}
                 << FormRow{fromTop[i]->placeholder, "QLabel", QRect(300, y + 90, 638, 72)};
        }
        compareForm(contents(&page), form);
    }

    void captionsAndKeysLookAsTheFormSays() {
        Audiovolumsettings page(nullptr);
        for (const Row &row : rows) {
            const QLabel *const caption = page.findChild<QLabel *>(QLatin1String(row.caption));
            QVERIFY2(caption, row.caption);
            QCOMPARE(caption->text(), QLatin1String(row.text));
            QCOMPARE(caption->font().pointSize(), 23);
            QCOMPARE(caption->textFormat(), Qt::AutoText);
            QCOMPARE(caption->styleSheet(),
                     QStringLiteral("border-image: url(:/corvina_icon/audiosetting_txt_line.png);\n"
                                    "color: rgb(255, 255, 255);"));
            const struct {
                const char *key;
                const char *step;
                const char *side;
            } steps[] = {{row.minus, "prev", "left"}, {row.plus, "next", "right"}};
            for (const auto &step : steps) {
                const cm::LabelButton *const button = key(page, step.key);
                const QString folder = QStringLiteral("qrc:/corvina_icon/");
                QCOMPARE(button->property("bgPathNormalOff").toUrl().toString(),
                         folder + QStringLiteral("key_vol_%1_n.png").arg(QLatin1String(step.step)));
                QCOMPARE(button->property("bgPathNormalOn").toUrl().toString(),
                         folder + QStringLiteral("key_vol_%1_p.png").arg(QLatin1String(step.step)));
                QCOMPARE(button->property("bgPathDisable").toUrl().toString(),
                         folder + QStringLiteral("settings_icn_%1_d.png").arg(QLatin1String(step.side)));
                for (const char *state : {"bgPathNormalOff", "bgPathNormalOn", "bgPathDisable"}) {
                    const QPixmap picture(button->property(state).toUrl().toString().mid(3));
                    QCOMPARE(picture.size(), button->size());
                }
            }
            QVERIFY(page.findChild<QLabel *>(QLatin1String(row.placeholder))->text().isEmpty());
        }
        QCOMPARE(QPixmap(QStringLiteral(":/corvina_icon/audiosetting_txt_line.png")).size(), QSize(864, 72));
        QCOMPARE(QPixmap(QStringLiteral(":/corvina_volume_slider/volume_slider_bar_n.png")).size(), QSize(638, 52));
        QCOMPARE(QPixmap(QStringLiteral(":/corvina_volume_slider/volume_slider_bar_p_3.png")).size(), QSize(638, 52));
        QVERIFY(!QPixmap(QStringLiteral(":/corvina_volume_slider/key_volume_slider.png")).isNull());
    }

    void buildsItsPartsInOrder() {
        recording::setLogged(recording::Toolkit | recording::Reads);
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        QStringList lines = recording::take();
        lines = lines.mid(lines.indexOf(QStringLiteral("ScrollManage(true, false)")));
        QStringList expected{QStringLiteral("ScrollManage(true, false)"), QStringLiteral("ScrollBar(0)")};
        for (int i = 0; i < 6; ++i) {
            expected << QStringLiteral("HorizontalSlider::setShowSlider(true)")
                     << QStringLiteral("HorizontalSlider::setFreqRange(0, 41)")
                     << QStringLiteral(
                            "HorizontalSlider::addSliderImage(\":/corvina_volume_slider/"
                            "key_volume_slider.png\")")
                     << QStringLiteral(
                            "HorizontalSlider::setAddPage(\":/corvina_volume_slider/"
                            "volume_slider_bar_p_3.png\")")
                     << QStringLiteral(
                            "HorizontalSlider::setSubPage(\":/corvina_volume_slider/"
                            "volume_slider_bar_n.png\")");
        }
        for (const Row &row : rows) {
            expected << QStringLiteral("getValue(\"%1\", 16)").arg(keyOf(row));
        }
        for (const Row &row : rows) {
            // Voice asks for the level of Navigation.
            expected << QStringLiteral("HorizontalSlider::setValue(16)")
                     << QStringLiteral("getSourceVolByType(%1)").arg(&row == &voiceRow ? 3 : row.type);
        }
        QCOMPARE(lines, expected);
        // Stacking: Main's slider before the others, in the order of their making.
        QStringList order;
        const auto sliders = contents(&page)->findChildren<HorizontalSlider *>(QString(), Qt::FindDirectChildrenOnly);
        for (const HorizontalSlider *made : sliders) {
            order << QString::number(made->y());
        }
        QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("90 270 450 630 810 990"));
    }

    void onlyMainsSliderOutlivesAnotherInitialisation() {
        Audiovolumsettings page(nullptr);
        const auto slidersAt = [&](const Row &row) {
            const QRect place = page.findChild<QLabel *>(QLatin1String(row.placeholder))->geometry();
            const auto sliders = page.findChildren<HorizontalSlider *>();
            return std::count_if(sliders.begin(), sliders.end(),
                                 [&](const HorizontalSlider *slider) { return slider->geometry() == place; });
        };
        recording::setLogged(recording::Toolkit);
        page.initUi();
        QCOMPARE(recording::take().filter("ScrollManage"), QStringList());  // the one that there is goes on
        for (const Row &row : rows) {
            QCOMPARE(int(slidersAt(row)), &row == &mainRow ? 1 : 2);
        }
        QCOMPARE(page.findChildren<cm::ScrollBar *>().size(), 1);
    }

    void theScreensBackgroundShinesThrough() {
        QWidget screen;
        screen.resize(1024, 600);
        Audiovolumsettings page(&screen);
        page.show();
        show(&screen);
        QCOMPARE(colourBetweenRows(&page, Qt::green, Qt::red), QColor(Qt::red));
    }

    void scrollBarStandsOnThePage() {
        Audiovolumsettings page(nullptr);
        show(&page);
        QScrollBar *const bar = scrollBar(&page);
        QVERIFY(qobject_cast<cm::ScrollBar *>(bar));
        QCOMPARE(bar->parentWidget(), &page);
        QCOMPARE(bar->geometry(), QRect(56, 0, 24, 432));
        QVERIFY(bar->isVisible());
        // 885 px in 440.
        QCOMPARE(bar->maximum(), 445);
        bar->setValue(445);
        QVERIFY(key(page, rows[1].plus)->visibleRegion().boundingRect() == QRect(0, 0, 72, 72));
        QVERIFY(key(page, taRow.plus)->visibleRegion().isEmpty());
        QVERIFY(sliderOf(page, taRow)->visibleRegion().isEmpty());
    }

    void scrollBarStaysThereWhenThePageIsInitialisedInSight() {
        Audiovolumsettings page(nullptr);
        show(&page);
        page.initUi();
        advance(0);
        QCOMPARE(scrollBar(&page)->geometry(), QRect(56, 0, 24, 432));
        QVERIFY(scrollBar(&page)->isVisible());
    }

    void constructAndShowSendNothingThatIsInForce() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        QCOMPARE(recording::take(), QStringList());
        show(&page);
        QCOMPARE(recording::take(), QStringList());
        for (const Row &row : rows) {
            QCOMPARE(sliderOf(page, row)->value(), 16);
            QCOMPARE(keys(page, row), QByteArray("1 1"));
        }
    }

    void constructSendsWhatDiffersFromTheService() {
        // The service is at 0. Voice compares itself with Navigation, which has just become 16.
        Audiovolumsettings page(nullptr);
        QStringList expected;
        for (const Row &row : rows) {
            if (&row != &voiceRow) {
                expected << sent(row, 16) << announced(row, 16);
            }
        }
        QCOMPARE(recording::take(), expected);
        show(&page);
        QCOMPARE(recording::take(), QStringList());
    }

    void showReadsTheStoreAgain() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        page.hide();
        for (const Row &row : rows) {
            recording::setStored(keyOf(row), 20 + row.type);
            recording::state().volume[row.type] = 20 + row.type;
        }
        recording::clear();
        recording::setLogged(recording::Reads | recording::Toolkit);
        show(&page);
        QStringList expected;
        for (const Row &row : rows) {
            expected << QStringLiteral("getValue(\"%1\", 16)").arg(keyOf(row));
        }
        for (const Row &row : rows) {
            expected << QStringLiteral("HorizontalSlider::setValue(%1)").arg(20 + row.type);
            expected << QStringLiteral("getSourceVolByType(%1)").arg(&row == &voiceRow ? 3 : row.type);
            if (&row == &voiceRow) {
                expected << sent(row, 24);
            }
        }
        QCOMPARE(recording::take(), expected);
        for (const Row &row : rows) {
            QCOMPARE(sliderOf(page, row)->value(), 20 + row.type);
        }
    }

    void keysFollowTheStoredLevel_data() {
        QTest::addColumn<int>("level");
        for (int level : {lowest, -1, 0, 1, 39, 40, 41, 100, highest}) {
            QTest::newRow(QByteArray::number(level)) << level;
        }
    }
    void keysFollowTheStoredLevel() {
        QFETCH(int, level);
        for (const Row &row : rows) {
            recording::setStored(keyOf(row), level);
        }
        setServiceLevels(level);
        Audiovolumsettings page(nullptr);
        show(&page);
        QCOMPARE(recording::take(), QStringList());
        for (const Row &row : rows) {
            QCOMPARE(sliderOf(page, row)->value(), level);
            QCOMPARE(keys(page, row), expectedKeys(level));
        }
        QVERIFY(!page.grab().isNull());
    }

    void hideClearsTheTouchPageRequestEachTime() {
        setServiceLevels(16);
        recording::setShared(QStringLiteral("SettingTouchPageType"), 3);
        Audiovolumsettings page(nullptr);
        for (int i = 0; i < 2; ++i) {
            show(&page);
            recording::clear();
            page.hide();
            QCOMPARE(recording::take(),
                     QStringList{QStringLiteral("SettingsFunc::setValue(\"SettingTouchPageType\", 0, 0, true)")});
            QCOMPARE(recording::shared(QStringLiteral("SettingTouchPageType")).toInt(), 0);
        }
    }

    // Keys --------------------------------------------------------------------------------------------------------

    void keysStepTheirChannel() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        recording::clear();
        recording::setLogged(recording::Toolkit);
        for (const Row &row : rows) {
            const QString shown17 = QStringLiteral("HorizontalSlider::setValue(17)");
            const QString shown16 = QStringLiteral("HorizontalSlider::setValue(16)");
            const bool phone = &row == &phoneRow;
            // Voice back at the level that Navigation has is not sent through the audio service.
            const bool voice = &row == &voiceRow;

            tapKey(page, row, row.plus);
            QStringList expected{beep};
            if (phone) {
                expected << QStringLiteral("setValue(\"inputgain2\", 16, 17, true)");
            }
            const QString followed17 = QStringLiteral("HorizontalSlider::setCurrentLevel(17)");
            expected << shown17 << sent(row, 17) << announced(row, 17) << followed17 << sentToMcu(row, 17);
            QCOMPARE(recording::take(), expected);
            QCOMPARE(sliderOf(page, row)->value(), 17);

            tapKey(page, row, row.minus);
            const QString followed16 = QStringLiteral("HorizontalSlider::setCurrentLevel(16)");
            expected.clear();
            if (phone) {
                expected << shown16 << sent(row, 16) << announced(row, 16) << followed16 << beep << sentToMcu(row, 16);
            } else if (voice) {
                expected << beep << shown16 << sentToMcu(row, 16) << announced(row, 16) << followed16;
            } else {
                expected << beep << shown16 << sent(row, 16) << announced(row, 16) << followed16 << sentToMcu(row, 16);
            }
            QCOMPARE(recording::take(), expected);
            QCOMPARE(sliderOf(page, row)->value(), 16);
        }
    }

    void keysStopAtTheEnds() {
        for (const Row &row : rows) {
            recording::reset();
            recording::setStored(keyOf(row), 39);
            setServiceLevels(39);
            Audiovolumsettings page(nullptr);
            show(&page);
            tapKey(page, row, row.plus);
            QCOMPARE(sliderOf(page, row)->value(), 40);
            QCOMPARE(keys(page, row), QByteArray("1 0"));
            recording::clear();
            tapKey(page, row, row.plus);  // disabled
            QCOMPARE(recording::take(), QStringList());

            recording::setStored(keyOf(row), 1);
            page.resume();
            QCOMPARE(keys(page, row), QByteArray("1 1"));
            tapKey(page, row, row.minus);
            QCOMPARE(sliderOf(page, row)->value(), 0);
            QCOMPARE(keys(page, row), QByteArray("0 1"));
            recording::clear();
            tapKey(page, row, row.minus);
            QCOMPARE(recording::take(), QStringList());
        }
    }

    /// The outcome of the slots for every stored level, whatever their keys show.
    void slotsClampEveryStoredLevel_data() {
        QTest::addColumn<int>("level");
        for (int level : {lowest, lowest + 1, -5, -1, 0, 1, 20, 39, 40, 41, 45, highest - 1, highest}) {
            QTest::newRow(QByteArray::number(level)) << level;
        }
    }
    void slotsClampEveryStoredLevel() {
        QFETCH(int, level);
        for (const Row &row : rows) {
            for (const bool up : {true, false}) {
                recording::reset();
                recording::setStored(keyOf(row), level);
                setServiceLevels(level);
                Audiovolumsettings page(nullptr);
                page.resume();
                recording::clear();
                call(page, QByteArray(row.slot) + (up ? "Plus" : "Minus"));
                int expected = up ? (level >= 40 ? 40 : level + 1) : (level <= 0 ? 0 : level - 1);
                if (up && &row == &mainRow) {
                    // Main overshoots by one, and leaves what is above the range.
                    expected = level > 40 ? level : level + 1;
                }
                QCOMPARE(sliderOf(page, row)->value(), expected);
                QCOMPARE(keys(page, row), expectedKeys(expected));
                const QStringList lines = recording::take();
                QCOMPARE(lines.count(beep), 1);
                QCOMPARE(lines.count(sentToMcu(row, expected)), 1);
                const bool stored = up && &row == &phoneRow;
                QCOMPARE(lines.filter(QStringLiteral("setValue(")).size(), int(stored));
                QCOMPARE(recording::stored(keyOf(row)).toInt(), stored ? expected : level);
            }
        }
    }

    void phonePlusAtTheTopStillStoresAndSends() {
        recording::setStored(keyOf(phoneRow), 40);
        setServiceLevels(40);
        Audiovolumsettings page(nullptr);
        page.resume();
        recording::clear();
        call(page, "onPhoneVolumPlus");
        QCOMPARE(recording::take(), (QStringList{beep, QStringLiteral("setValue(\"inputgain2\", 16, 40, true)"),
                                                 QStringLiteral("setAudioVolumeValue(2, 40)")}));
    }

    // Sliders -----------------------------------------------------------------------------------------------------

    void slidersSendThroughTheAudioServiceOnly() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        for (const Row &row : rows) {
            if (&row == &taRow) {
                continue;  // below what can be scrolled to: the next test
            }
            HorizontalSlider *const slider = sliderOf(page, row);
            reveal(&page, slider);
            // Another one for each row: Voice is not sent to where Navigation is.
            const int last = 7 + row.type;
            recording::clear();
            finger::press(slider, placeOf(slider, 0, 41, 25));
            finger::move(slider, placeOf(slider, 0, 41, 40));
            finger::move(slider, placeOf(slider, 0, 41, 40) + QPoint(40, 20));
            QCOMPARE(keys(page, row), QByteArray("1 0"));
            finger::move(slider, placeOf(slider, 0, 41, 0));
            QCOMPARE(keys(page, row), QByteArray("0 1"));
            finger::release(slider, placeOf(slider, 0, 41, last));
            QCOMPARE(recording::take(),
                     (QStringList{sent(row, 25), announced(row, 25), sent(row, 40), announced(row, 40), sent(row, 0),
                                  announced(row, 0), sent(row, last), announced(row, last)}));
            QCOMPARE(keys(page, row), QByteArray("1 1"));
        }
    }

    void theRowOffTheScreenIsConnected() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        recording::clear();
        HorizontalSlider *const slider = sliderOf(page, taRow);
        QTest::mousePress(slider, Qt::LeftButton, Qt::NoModifier, placeOf(slider, 0, 41, 30));
        QTest::mouseRelease(slider, Qt::LeftButton, Qt::NoModifier, placeOf(slider, 0, 41, 30));
        QCOMPARE(recording::take(), (QStringList{sent(taRow, 30), announced(taRow, 30)}));
    }

    void aLevelInForceIsNotSentAgain() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        for (const Row &row : rows) {
            recording::state().volume[&row == &voiceRow ? 3 : row.type] = 33;
            recording::clear();
            const int lines = debugLines().size();
            slide(page, row, 33, 33);
            QCOMPARE(recording::take(), QStringList());
            QCOMPARE(debugLines().size(), lines + 1);
            // The line carries the name of the slot.
            QVERIFY2(
                debugLines().last().contains(QStringLiteral("Audiovolumsettings::%1(int, int)").arg(row.sliderSlot)),
                qPrintable(debugLines().last()));
            // The page's own level is as before: minus steps from 16.
            call(page, QByteArray(row.slot) + "Minus");
            QCOMPARE(sliderOf(page, row)->value(), 15);
            recording::state().volume[row.type] = 16;
            recording::state().volume[3] = 16;
        }
    }

    void theIndexOfASliderMeansNothing() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        recording::clear();
        slide(page, mainRow, -77, 12);
        QCOMPARE(recording::take().first(), sent(mainRow, 12));
    }

    void voiceIsComparedWithNavigation() {
        setServiceLevels(16);
        recording::state().volume[3] = 20;
        recording::setStored(keyOf(navigationRow), 20);
        Audiovolumsettings page(nullptr);
        show(&page);
        HorizontalSlider *const slider = sliderOf(page, voiceRow);
        reveal(&page, slider);
        recording::clear();
        // To the level of Navigation: ignored.
        finger::tap(slider, placeOf(slider, 0, 41, 20));
        QCOMPARE(slider->value(), 20);
        QCOMPARE(recording::take(), QStringList());
        // To the level that Voice has already: sent.
        finger::tap(slider, placeOf(slider, 0, 41, 16));
        QCOMPARE(recording::take(), QStringList{sent(voiceRow, 16)});
    }

    // Changes made elsewhere --------------------------------------------------------------------------------------

    void followsTheServicesChannels() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        for (int type = -1; type < 9; ++type) {
            recording::setLogged(recording::Toolkit);
            recording::clear();
            const int lines = debugLines().size();
            recording::announceVolume(1, 0, type);
            QCOMPARE(debugLines().size(), lines + 1);
            QVERIFY2(debugLines().last().contains("Audiovolumsettings::onAudioVolumeChange(int, int, int)") &&
                         debugLines().last().endsWith(QStringLiteral("-- vol: 0 type: %1").arg(type)),
                     qPrintable(debugLines().last()));
            const auto row =
                std::find_if(std::begin(rows), std::end(rows), [&](const Row &r) { return r.type == type; });
            QStringList expected{QStringLiteral("audioVolumeChanged(1, 0, %1)").arg(type)};
            if (row != std::end(rows)) {
                expected << QStringLiteral("HorizontalSlider::setCurrentLevel(0)");
            }
            QCOMPARE(recording::take(), expected);
            if (row != std::end(rows)) {
                QCOMPARE(sliderOf(page, *row)->value(), 0);
                // The keys stay as they were; the next step starts from the new level.
                QCOMPARE(keys(page, *row), QByteArray("1 1"));
                tapKey(page, *row, row->plus);
                QCOMPARE(sliderOf(page, *row)->value(), 1);
            }
        }
    }

    void aChangeDuringADragIsDroppedForThatSliderOnly() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        HorizontalSlider *const slider = sliderOf(page, mainRow);
        finger::press(slider, placeOf(slider, 0, 41, 20));
        recording::announceVolume(0, 3, 0);
        recording::announceVolume(0, 4, 2);
        QCOMPARE(slider->value(), 20);
        QCOMPARE(sliderOf(page, phoneRow)->value(), 4);
        finger::move(slider, placeOf(slider, 0, 41, 22));
        recording::announceVolume(0, 5, 0);
        recording::announceVolume(0, 6, 3);
        QCOMPARE(slider->value(), 22);
        QCOMPARE(sliderOf(page, navigationRow)->value(), 6);
        finger::release(slider, placeOf(slider, 0, 41, 22));
        tapKey(page, mainRow, mainRow.plus);
        QCOMPARE(slider->value(), 23);
        recording::announceVolume(0, 7, 0);
        QCOMPARE(slider->value(), 7);
    }

    void setCurrentVolumeSliderSaysWhetherItFollowed() {
        Audiovolumsettings page(nullptr);
        show(&page);
        int level = 1;
        const int lines = debugLines().size();
        QVERIFY(!page.setCurrentVolumeSlider(nullptr, level, 9));
        QCOMPARE(level, 1);
        QCOMPARE(debugLines().size(), lines + 1);
        HorizontalSlider *const slider = sliderOf(page, mainRow);
        QVERIFY(page.setCurrentVolumeSlider(slider, level, 9));
        QCOMPARE(level, 9);
        QCOMPARE(slider->value(), 9);
        finger::press(slider, placeOf(slider, 0, 41, 5));
        const int before = debugLines().size();
        QVERIFY(!page.setCurrentVolumeSlider(slider, level, 30));
        QCOMPARE(debugLines().size(), before + 1);
        QCOMPARE(level, 9);
        QCOMPARE(slider->value(), 5);
        finger::release(slider, placeOf(slider, 0, 41, 5));
    }

    void isUpdateVolumeComparesWithTheService() {
        Audiovolumsettings page(nullptr);
        recording::state().volume[7] = 12;
        QVERIFY(!page.isUpdateVolume(7, 12));
        QVERIFY(page.isUpdateVolume(7, 13));
    }

    void aFingerBesideTheSlidersScrolls() {
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        recording::clear();
        CHILD(QLabel, caption, &page, "txt_Phone_Volume");
        finger::press(caption, QPoint(300, 30));
        finger::move(caption, QPoint(300, -30));
        finger::move(&page, QPoint(400, 100));
        finger::release(&page, QPoint(400, 100));
        QVERIFY(scrollBar(&page)->value() > 0);
        const int value = scrollBar(&page)->value();
        // A finger on a slider does not.
        HorizontalSlider *const slider = sliderOf(page, phoneRow);
        finger::press(slider, placeOf(slider, 0, 41, 16));
        finger::move(slider, placeOf(slider, 0, 41, 16) + QPoint(0, -60));
        finger::release(slider, placeOf(slider, 0, 41, 16) + QPoint(0, -60));
        QCOMPARE(scrollBar(&page)->value(), value);
        QCOMPARE(recording::take(), QStringList());
    }

    void languageChangesTheCaptionsOnly() {
        setServiceLevels(16);
        recording::setStored(keyOf(mainRow), 0);
        recording::state().volume[0] = 0;
        Audiovolumsettings page(nullptr);
        show(&page);
        recording::clear();
        FormTexts texts;
        QCoreApplication::installTranslator(&texts);
        advance(0);
        for (const Row &row : rows) {
            const QLabel *const caption = page.findChild<QLabel *>(QLatin1String(row.caption));
            QVERIFY2(caption, row.caption);
            QCOMPARE(caption->text(), QStringLiteral("Audiovolumsettings/") + QLatin1String(row.text));
            QCOMPARE(keys(page, row), expectedKeys(row.type == 0 ? 0 : 16));
        }
        QCOMPARE(recording::take(), QStringList());
        QCoreApplication::removeTranslator(&texts);
    }

    // Against a model ---------------------------------------------------------------------------------------------

    void randomUse() {
        const unsigned seed =
            qEnvironmentVariableIsSet("TEST_SEED") ? qEnvironmentVariableIntValue("TEST_SEED") : std::random_device()();
        qInfo("TEST_SEED=%u", seed);
        std::mt19937 random(seed);
        const auto pick = [&](int count) { return int(random() % unsigned(count)); };

        // The page's value and its display for each row. Its keys follow its own changes only, not those of others.
        int level[6];
        int keysFor[6];
        setServiceLevels(16);
        Audiovolumsettings page(nullptr);
        show(&page);
        std::fill_n(level, 6, 16);
        std::fill_n(keysFor, 6, 16);
        QHash<int, int> &service = recording::state().volume;

        for (int step = 0; step < 20000; ++step) {
            const int r = pick(6);
            const Row &row = rows[r];
            switch (pick(5)) {
                case 0:  // plus, if it can be touched
                    if (keysFor[r] < 40) {
                        level[r] = r == 0 ? (level[r] > 40 ? level[r] : level[r] + 1) : std::min(level[r] + 1, 40);
                        keysFor[r] = level[r];
                    }
                    QTest::mouseClick(key(page, row.plus), Qt::LeftButton);
                    break;
                case 1:
                    if (keysFor[r] > 0) {
                        level[r] = std::max(level[r] - 1, 0);
                        keysFor[r] = level[r];
                    }
                    QTest::mouseClick(key(page, row.minus), Qt::LeftButton);
                    break;
                case 2: {  // the slider
                    const int to = pick(41);
                    HorizontalSlider *const slider = sliderOf(page, row);
                    const bool changes = slider->value() != to && service.value(r == 4 ? 3 : row.type) != to;
                    QTest::mouseClick(slider, Qt::LeftButton, Qt::NoModifier, placeOf(slider, 0, 41, to));
                    if (changes) {
                        level[r] = to;
                        keysFor[r] = to;
                        QCOMPARE(service.value(row.type), to);
                    }
                    QCOMPARE(slider->value(), to);
                    break;
                }
                case 3: {  // a change elsewhere
                    const int to = pick(41);
                    service[row.type] = to;
                    recording::announceVolume(pick(2), to, row.type);
                    level[r] = to;
                    QCOMPARE(sliderOf(page, row)->value(), to);
                    break;
                }
                case 4:  // shown again, with a store that follows the services but for Phone plus
                    if (pick(50) == 0) {
                        page.hide();
                        for (int i = 0; i < 6; ++i) {
                            recording::setStored(keyOf(rows[i]), service.value(rows[i].type));
                            level[i] = keysFor[i] = service.value(rows[i].type);
                        }
                        page.show();
                        for (int i = 0; i < 6; ++i) {
                            QCOMPARE(sliderOf(page, rows[i])->value(), level[i]);
                        }
                    }
                    break;
            }
            QCOMPARE(keys(page, row), expectedKeys(keysFor[r]));
            recording::clear();
        }
    }
};

PAGE_TEST_MAIN(tst_Audiovolumsettings)
#include "tst_audiovolumsettings.moc"
