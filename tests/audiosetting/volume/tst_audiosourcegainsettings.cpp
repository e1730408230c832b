// SPDX-License-Identifier: Apache-2.0
#include "volume/audiosourcegainsettings.h"

#include "platform/scrollbar.h"
#include "tests/audiosetting/volume/sliderpage.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"
#include "volume/audiosourcegainsettings_b.h"

#include <QPixmap>
#include <QPushButton>

#include <algorithm>
#include <limits>
#include <memory>
#include <random>

using namespace sliderpage;

namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

struct Row {
    int source;
    const char *name;  ///< "key_<name>_plus", "<name>slider"
    const char *caption;
    const char *text;
    int textId;
    const char *slot;  ///< "<slot>Plus()"
    const char *sliderSlot;
    const char *updateKeys;
};

const Row radio{0, "radio", "txt_Radio", "Radio", 361, "onRadioCamera", "onRadioVolumeSliderChanged", "Radio"};
const Row androidAuto{4,  "androidauto", "txt_androidauto",         "Android Auto",
                      15, "onAA",        "onAaVolumeSliderChanged", "AndroidAuto"};
const Row carPlay{3,  "applecarplay", "txt_applecarplay",      "Apple CarPlay",
                  14, "onCp",         "onCplumeSliderChanged", "CarPlay"};
const Row siriusXm{5, "siriusxm", "txt_siriusxm", "SiriusXM", 427, "onSiriusXm", "onSiriuxXmlumeSliderChanged", "Siri"};
const Row dab{6, "dab", "txt_dab", "DAB", 0, "onDab", "onDablumeSliderChanged", "Dab"};
const Row btMusic{2,    "btmusic",   "txt_bluetoothmusic",         "Bluetooth Music",
                  1084, "onBtMusic", "onBtMusiclumeSliderChanged", "BTMusic"};
const Row usb{1, "usb", "txt_usb", "USB", 16, "onUsb", "onUsblumeSliderChanged", "USB"};

/// The two regional pages.
struct Region {
    const char *className;
    const QMetaObject &meta;
    std::unique_ptr<audiosetting::SourceGainWidget> (*create)();
    QList<const Row *> rows;  ///< from top to bottom
};

template <class Page> std::unique_ptr<audiosetting::SourceGainWidget> createPage() {
    return std::unique_ptr<audiosetting::SourceGainWidget>(new Page(nullptr));
}

const Region regions[] = {
    {"Audiosourcegainsettings",
     Audiosourcegainsettings::staticMetaObject,
     createPage<Audiosourcegainsettings>,
     {&radio, &androidAuto, &carPlay, &siriusXm, &btMusic, &usb}},
    {"Audiosourcegainsettings_b",
     Audiosourcegainsettings_b::staticMetaObject,
     createPage<Audiosourcegainsettings_b>,
     {&radio, &androidAuto, &carPlay, &dab, &btMusic, &usb}},
};

QString keyOf(int source) {
    return QStringLiteral("audioinputgain%1").arg(source);
}

QString stored(const Row &row, int gain) {
    return QStringLiteral("setValue(\"%1\", 0, %2, true)").arg(keyOf(row.source)).arg(gain);
}

QString sent(const Row &row, int value) {
    return QStringLiteral("setAudioInputGainValue(%1, %2)").arg(row.source).arg(value);
}

/// The microcontroller's value for a gain.
int offset(int gain) {
    return gain > highest - 10 ? highest : gain + 10;
}

const auto beep = QStringLiteral("doBeep(0)");

}  // namespace

class tst_Audiosourcegainsettings : public PageTest {
    Q_OBJECT

    static QPushButton *key(QWidget &page, const Row &row, const char *step) {
        return page.findChild<QPushButton *>(QStringLiteral("key_%1_%2").arg(QLatin1String(row.name), step));
    }
    static HorizontalSlider *sliderOf(QWidget &page, const Row &row) {
        return slider(&page, QByteArray(row.name) + "slider");
    }
    static QByteArray keys(QWidget &page, const Row &row) {
        return QByteArray::number(key(page, row, "minus")->isEnabled()) + ' ' +
               QByteArray::number(key(page, row, "plus")->isEnabled());
    }
    static QByteArray expectedKeys(int gain) { return gain <= -10 ? "0 1" : gain < 10 ? "1 1" : "1 0"; }
    static void tapKey(QWidget &page, const Row &row, const char *step) {
        reveal(&page, key(page, row, step));
        finger::tap(key(page, row, step));
    }
    static void call(QObject &page, const QByteArray &slot) {
        QVERIFY2(QMetaObject::invokeMethod(&page, slot.constData(), Qt::DirectConnection), slot.constData());
    }

private slots:
    void init() {
        PageTest::init();
        for (const Region &region : regions) {
            for (const Row *row : region.rows) {
                recording::state().texts[row->textId] = QStringLiteral("text %1").arg(row->textId);
            }
        }
    }

    void declareTheirSlotsInOrder() {
        for (const Region &region : regions) {
            QCOMPARE(region.meta.className(), region.className);
            QStringList expected;
            for (const Row *row : region.rows) {
                expected << QLatin1String(row->sliderSlot) + QStringLiteral("(int iIdex, int iValue)");
            }
            for (const Row *row : region.rows) {
                expected << QLatin1String(row->slot) + QStringLiteral("Plus()")
                         << QLatin1String(row->slot) + QStringLiteral("Minus()");
            }
            QCOMPARE(signatures(region.meta, QMetaMethod::Slot), expected);
            QCOMPARE(signatures(region.meta, QMetaMethod::Signal), QStringList());
            QCOMPARE(QByteArray(region.meta.superClass()->className()), QByteArray("QWidget"));
        }
    }

    void haveTheRowsOfTheirForms() {
        for (const Region &region : regions) {
            const auto page = region.create();
            QCOMPARE(page->objectName(), QLatin1String(region.className));
            QCOMPARE(page->windowTitle(), QStringLiteral("Form"));
            QCOMPARE(page->geometry(), QRect(0, 130, 1024, 470));
            CHILD(QScrollArea, area, page.get(), "scrollArea");
            QCOMPARE(area->geometry(), QRect(40, 0, 980, 440));
            QCOMPARE(area->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
            QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
            QCOMPARE(contents(page.get())->size(), QSize(955, 1065));
            QList<FormRow> form;
            QList<QByteArray> names;
            int y = 0;
            for (const Row *row : region.rows) {
                names << QByteArray("key_") + row->name + "_minus" << QByteArray("key_") + row->name + "_plus"
                      << QByteArray(row->name) + "slider";
                form << FormRow{row->caption, "QLabel", QRect(80, y, 864, 72)}
                     << FormRow{names[names.size() - 3].constData(), "QPushButton", QRect(80, y + 90, 72, 72)}
                     << FormRow{names[names.size() - 2].constData(), "QPushButton", QRect(170, y + 90, 72, 72)}
                     << FormRow{names[names.size() - 1].constData(), "QLabel", QRect(300, y + 90, 638, 72)};
                y += 180;
            }
            compareForm(contents(page.get()), form);
        }
    }

    void captionsAndKeysLookAsTheFormSays() {
        for (const Region &region : regions) {
            const auto page = region.create();
            for (const Row *row : region.rows) {
                const QLabel *const caption = page->findChild<QLabel *>(QLatin1String(row->caption));
                QCOMPARE(caption->text(), QLatin1String(row->text));
                QCOMPARE(caption->font().pointSize(), 23);
                QCOMPARE(caption->styleSheet(),
                         QStringLiteral("border-image: url(:/corvina_icon/audiosetting_txt_line.png);\n"
                                        "color: rgb(255, 255, 255);"));
                const struct {
                    const char *step;
                    const char *picture;
                    const char *side;
                } steps[] = {{"minus", "prev", "left"}, {"plus", "next", "right"}};
                for (const auto &step : steps) {
                    const QPushButton *const button = key(*page, *row, step.step);
                    const auto shows = [&](QIcon::Mode mode, QIcon::State state, const QString &picture) {
                        return button->icon().pixmap(72, 72, mode, state).toImage() ==
                               QPixmap(QStringLiteral(":/corvina_icon/") + picture).toImage();
                    };
                    const QString name = QStringLiteral("key_vol_%1_").arg(QLatin1String(step.picture));
                    QCOMPARE(button->iconSize(), QSize(72, 72));
                    QVERIFY(shows(QIcon::Normal, QIcon::Off, name + QStringLiteral("n.png")));
                    QVERIFY(shows(QIcon::Selected, QIcon::On, name + QStringLiteral("p.png")));
                    QVERIFY(shows(QIcon::Disabled, QIcon::Off,
                                  QStringLiteral("settings_icn_%1_d.png").arg(QLatin1String(step.side))));
                }
            }
        }
        QCOMPARE(QPixmap(QStringLiteral(":/corvina_volume_slider/volume_slider_bar_n_2.png")).size(), QSize(638, 72));
    }

    void buildTheirPartsInOrder() {
        for (const Region &region : regions) {
            recording::clear();
            recording::setLogged(recording::Toolkit | recording::Reads);
            const auto page = region.create();
            QStringList expected{QStringLiteral("ScrollManage(true, false)"), QStringLiteral("ScrollBar(0)")};
            for (int i = 0; i < 6; ++i) {
                expected << QStringLiteral("HorizontalSlider::setShowSlider(true)")
                         << QStringLiteral("HorizontalSlider::setFreqRange(-10, 11)")
                         << QStringLiteral(
                                "HorizontalSlider::addSliderImage(\":/corvina_volume_slider/"
                                "key_volume_slider.png\")")
                         << QStringLiteral(
                                "HorizontalSlider::setAddPage(\":/corvina_volume_slider/"
                                "volume_slider_bar_p_3.png\")")
                         << QStringLiteral(
                                "HorizontalSlider::setSubPage(\":/corvina_volume_slider/"
                                "volume_slider_bar_n_2.png\")");
            }
            // No stored value is read before the page is shown.
            QCOMPARE(recording::take(), expected);
            QStringList order;
            const auto made = contents(page.get())->findChildren<HorizontalSlider *>();
            for (const HorizontalSlider *slider : made) {
                order << QString::number(slider->y());
            }
            QCOMPARE(order.join(QLatin1Char(' ')), QStringLiteral("90 270 450 630 810 990"));
        }
    }

    void anotherInitialisationGoesOnScrollingAsBefore() {
        for (const Region &region : regions) {
            const auto page = region.create();
            show(page.get());
            recording::setLogged(recording::Toolkit);
            recording::clear();
            page->initUi();
            advance(0);
            QCOMPARE(recording::take().filter("ScrollManage"), QStringList());
            QCOMPARE(scrollBar(page.get())->geometry(), QRect(56, 0, 24, 432));
            recording::setLogged(0);
        }
    }

    void theScreensBackgroundShinesThrough() {
        QWidget screen;
        screen.resize(1024, 600);
        for (const Region &region : regions) {
            const auto page = region.create();
            page->setParent(&screen);
            page->show();
            show(&screen);
            QCOMPARE(colourBetweenRows(page.get(), Qt::green, Qt::red), QColor(Qt::red));
        }
    }

    void scrollBarStandsOnThePageAndReachesEveryRow() {
        for (const Region &region : regions) {
            const auto page = region.create();
            show(page.get());
            QScrollBar *const bar = scrollBar(page.get());
            QVERIFY(qobject_cast<cm::ScrollBar *>(bar));
            QCOMPARE(bar->parentWidget(), page.get());
            QCOMPARE(bar->geometry(), QRect(56, 0, 24, 432));
            QVERIFY(bar->isVisible());
            QCOMPARE(bar->maximum(), 625);
            bar->setValue(625);
            QCOMPARE(key(*page, usb, "plus")->visibleRegion().boundingRect(), QRect(0, 0, 72, 72));
        }
    }

    void constructAndShowSendNothingOfAnEmptyStore() {
        for (const Region &region : regions) {
            const auto page = region.create();
            QCOMPARE(recording::take(), QStringList());
            show(page.get());
            QCOMPARE(recording::take(), QStringList());
            for (const Row *row : region.rows) {
                QCOMPARE(sliderOf(*page, *row)->value(), 0);
                QCOMPARE(keys(*page, *row), QByteArray("1 1"));
                QCOMPARE(page->findChild<QLabel *>(QLatin1String(row->caption))->text(),
                         row->textId ? QStringLiteral("text %1").arg(row->textId) : QStringLiteral("DAB"));
            }
            page->hide();
            QCOMPARE(recording::take(), QStringList());
        }
    }

    void showReadsTheStoreInOrder() {
        for (const Region &region : regions) {
            const auto page = region.create();
            recording::setLogged(recording::Reads | recording::Toolkit);
            recording::clear();
            page->resume();
            QStringList expected;
            for (int source : {0, 1, 2, 3, 4, 5}) {
                expected << QStringLiteral("getValue(\"%1\", 0)").arg(keyOf(source))
                         << QStringLiteral("HorizontalSlider::setValue(0)");
            }
            for (const Row *row : {&radio, &androidAuto, &carPlay, region.rows[3], &btMusic, &usb}) {
                expected << QStringLiteral("getValue(\"%1\", 0)").arg(keyOf(row->source));
            }
            if (region.rows[3] == &siriusXm) {
                // In the order of the sources for the sliders, of the screen for the gains.
                QCOMPARE(expected.last(), QStringLiteral("getValue(\"audioinputgain1\", 0)"));
            }
            QCOMPARE(recording::take(), expected);
        }
    }

    void showSendsTheGainsThatChanged() {
        for (const Region &region : regions) {
            recording::reset();
            for (int source = 0; source < 7; ++source) {
                recording::setStored(keyOf(source), source - 4);
            }
            const auto page = region.create();
            show(page.get());
            QStringList expected;
            for (const Row *row : {&radio, &usb, &btMusic, &carPlay}) {
                expected << stored(*row, row->source - 4) << sent(*row, row->source + 6);
            }
            // Android Auto is at 0 already.
            if (region.rows[3] == &siriusXm) {
                expected << stored(siriusXm, 1) << sent(siriusXm, 11);
            }
            QCOMPARE(recording::take(), expected);
            page->hide();
            show(page.get());
            QCOMPARE(recording::take(), QStringList());
            recording::setStored(keyOf(3), 9);
            page->resume();
            QCOMPARE(recording::take(), (QStringList{stored(carPlay, 9), sent(carPlay, 19)}));
        }
    }

    void dabShowsSiriusXmsGainAndKeepsItsOwn() {
        recording::setStored(keyOf(5), 3);
        recording::setStored(keyOf(6), -10);
        Audiosourcegainsettings_b page(nullptr);
        show(&page);
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(sliderOf(page, dab)->value(), 3);
        QCOMPARE(keys(page, dab), QByteArray("0 1"));
        tapKey(page, dab, "plus");
        QCOMPARE(sliderOf(page, dab)->value(), -9);
        QCOMPARE(recording::take(), (QStringList{beep, stored(dab, -9), sent(dab, 1)}));
        // Shown again: the slider as before, the gain is kept.
        page.hide();
        show(&page);
        QCOMPARE(recording::take(), QStringList());
        QCOMPARE(sliderOf(page, dab)->value(), 3);
        QCOMPARE(recording::stored(keyOf(6)).toInt(), -9);
        QCOMPARE(recording::stored(keyOf(5)).toInt(), 3);
    }

    void keysFollowTheStoredGain_data() {
        QTest::addColumn<int>("gain");
        for (int gain : {lowest, -11, -10, -9, 0, 9, 10, 11, 15, 20, 21, highest - 9, highest}) {
            QTest::newRow(QByteArray::number(gain)) << gain;
        }
    }
    void keysFollowTheStoredGain() {
        QFETCH(int, gain);
        for (const Region &region : regions) {
            for (int source = 0; source < 7; ++source) {
                recording::setStored(keyOf(source), gain);
            }
            const auto page = region.create();
            recording::clear();
            show(page.get());
            const QStringList lines = recording::take();
            for (const Row *row : region.rows) {
                QCOMPARE(sliderOf(*page, *row)->value(), gain);
                QCOMPARE(keys(*page, *row), expectedKeys(gain));
                QCOMPARE(lines.count(sent(*row, offset(gain))), int(gain != 0 && row != &dab));
            }
            QVERIFY(!page->grab().isNull());
        }
    }

    // Fingers -----------------------------------------------------------------------------------------------------

    void keysStepTheirSource() {
        for (const Region &region : regions) {
            const auto page = region.create();
            show(page.get());
            recording::clear();
            recording::setLogged(recording::Toolkit);
            for (const Row *row : region.rows) {
                tapKey(*page, *row, "plus");
                QCOMPARE(recording::take(), (QStringList{beep, QStringLiteral("HorizontalSlider::setValue(1)"),
                                                         stored(*row, 1), sent(*row, 11)}));
                tapKey(*page, *row, "minus");
                tapKey(*page, *row, "minus");
                QCOMPARE(recording::take(),
                         (QStringList{beep, QStringLiteral("HorizontalSlider::setValue(0)"), stored(*row, 0),
                                      sent(*row, 10), beep, QStringLiteral("HorizontalSlider::setValue(-1)"),
                                      stored(*row, -1), sent(*row, 9)}));
                QCOMPARE(recording::stored(keyOf(row->source)).toInt(), -1);
            }
            recording::reset();
        }
    }

    void slidersStoreAndSendEveryValue() {
        for (const Region &region : regions) {
            recording::reset();
            const auto page = region.create();
            show(page.get());
            for (const Row *row : region.rows) {
                HorizontalSlider *const slider = sliderOf(*page, *row);
                reveal(page.get(), slider);
                recording::clear();
                finger::press(slider, placeOf(slider, -10, 21, 4));
                finger::move(slider, placeOf(slider, -10, 21, 10) + QPoint(40, 0));
                QCOMPARE(keys(*page, *row), QByteArray("1 0"));
                finger::move(slider, placeOf(slider, -10, 21, -10) - QPoint(40, 0));
                QCOMPARE(keys(*page, *row), QByteArray("0 1"));
                finger::release(slider, placeOf(slider, -10, 21, -3));
                QCOMPARE(keys(*page, *row), QByteArray("1 1"));
                QCOMPARE(recording::take(),
                         (QStringList{stored(*row, 4), sent(*row, 14), stored(*row, 10), sent(*row, 20),
                                      stored(*row, -10), sent(*row, 0), stored(*row, -3), sent(*row, 7)}));
            }
        }
    }

    void everyNotificationIsSent() {
        for (const Region &region : regions) {
            const auto page = region.create();
            recording::clear();
            for (const Row *row : region.rows) {
                for (int i = 0; i < 2; ++i) {
                    QVERIFY(QMetaObject::invokeMethod(page.get(), row->sliderSlot, Q_ARG(int, 99), Q_ARG(int, 5)));
                    QCOMPARE(recording::take(), (QStringList{stored(*row, 5), sent(*row, 15)}));
                }
            }
        }
    }

    void slotsClampEveryStoredGain_data() { keysFollowTheStoredGain_data(); }
    void slotsClampEveryStoredGain() {
        QFETCH(int, gain);
        for (const Region &region : regions) {
            for (const Row *row : region.rows) {
                for (const bool up : {true, false}) {
                    recording::reset();
                    recording::setStored(keyOf(row->source), gain);
                    recording::setStored(keyOf(5), gain);
                    const auto page = region.create();
                    page->resume();
                    recording::clear();
                    call(*page, QByteArray(row->slot) + (up ? "Plus" : "Minus"));
                    // Radio's plus stops at 20 only.
                    const int top = row == &radio ? 20 : 10;
                    const int expected = up ? (gain >= top ? top : gain + 1) : (gain <= -10 ? -10 : gain - 1);
                    QCOMPARE(sliderOf(*page, *row)->value(), expected);
                    QCOMPARE(keys(*page, *row), expectedKeys(expected));
                    QStringList lines{beep};
                    if (expected != gain) {
                        lines << stored(*row, expected) << sent(*row, offset(expected));
                    }
                    QCOMPARE(recording::take(), lines);
                }
            }
        }
    }

    void keysStopAtTheEnds() {
        for (const Region &region : regions) {
            for (const Row *row : region.rows) {
                recording::reset();
                recording::setStored(keyOf(row->source), 9);
                const auto page = region.create();
                show(page.get());
                tapKey(*page, *row, "plus");
                QCOMPARE(sliderOf(*page, *row)->value(), 10);
                QCOMPARE(keys(*page, *row), QByteArray("1 0"));
                recording::clear();
                tapKey(*page, *row, "plus");
                QCOMPARE(recording::take(), QStringList());
                recording::setStored(keyOf(row->source), -9);
                page->resume();
                tapKey(*page, *row, "minus");
                QCOMPARE(keys(*page, *row), QByteArray("0 1"));
                recording::clear();
                tapKey(*page, *row, "minus");
                QCOMPARE(recording::take(), QStringList());
            }
        }
    }

    void keyStatesCanBeAskedForOneByOne() {
        Audiosourcegainsettings page(nullptr);
        const struct {
            const Row &row;
            void (Audiosourcegainsettings::*update)();
        } updates[] = {
            {radio, &Audiosourcegainsettings::updateBtnRadioState},
            {carPlay, &Audiosourcegainsettings::updateBtnCarPlayState},
            {androidAuto, &Audiosourcegainsettings::updateBtnAndroidAutoState},
            {siriusXm, &Audiosourcegainsettings::updateBtnSiriState},
            {btMusic, &Audiosourcegainsettings::updateBtnBTMusicState},
            {usb, &Audiosourcegainsettings::updateBtnUSBState},
        };
        for (const auto &update : updates) {
            key(page, update.row, "plus")->setEnabled(false);
            (page.*update.update)();
            QVERIFY2(key(page, update.row, "plus")->isEnabled(), update.row.name);
        }
        Audiosourcegainsettings_b other(nullptr);
        key(other, dab, "minus")->setEnabled(false);
        other.updateBtnDabState();
        QVERIFY(key(other, dab, "minus")->isEnabled());
    }

    void languageChangesTheCaptionsOnly() {
        for (const Region &region : regions) {
            recording::setStored(keyOf(0), 10);
            const auto page = region.create();
            show(page.get());
            recording::clear();
            for (const Row *row : region.rows) {
                recording::state().texts[row->textId] = QStringLiteral("other %1").arg(row->textId);
            }
            QEvent change(QEvent::LanguageChange);
            QCoreApplication::sendEvent(page.get(), &change);
            for (const Row *row : region.rows) {
                QCOMPARE(page->findChild<QLabel *>(QLatin1String(row->caption))->text(),
                         row->textId ? QStringLiteral("other %1").arg(row->textId) : QStringLiteral("DAB"));
            }
            QCOMPARE(keys(*page, radio), QByteArray("1 0"));
            QCOMPARE(recording::take(), QStringList());
        }
    }

    // Against a model ---------------------------------------------------------------------------------------------

    void randomUse() {
        const unsigned seed =
            qEnvironmentVariableIsSet("TEST_SEED") ? qEnvironmentVariableIntValue("TEST_SEED") : std::random_device()();
        qInfo("TEST_SEED=%u", seed);
        std::mt19937 random(seed);
        const auto pick = [&](int count) { return int(random() % unsigned(count)); };
        for (const Region &region : regions) {
            recording::reset();
            const auto page = region.create();
            show(page.get());
            QHash<int, int> gains;
            for (int step = 0; step < 10000; ++step) {
                const Row &row = *region.rows[pick(6)];
                int &gain = gains[row.source];
                switch (pick(4)) {
                    case 0:
                        gain = std::min(gain + 1, 10);
                        QTest::mouseClick(key(*page, row, "plus"), Qt::LeftButton);
                        break;
                    case 1:
                        gain = std::max(gain - 1, -10);
                        QTest::mouseClick(key(*page, row, "minus"), Qt::LeftButton);
                        break;
                    case 2: {
                        const int to = pick(21) - 10;
                        HorizontalSlider *const slider = sliderOf(*page, row);
                        // A touch where the slider stands is no change; DAB's stands elsewhere than its gain.
                        gain = slider->value() == to ? gain : to;
                        QTest::mouseClick(slider, Qt::LeftButton, Qt::NoModifier, placeOf(slider, -10, 21, to));
                        break;
                    }
                    case 3:
                        if (pick(50) == 0) {
                            page->hide();
                            page->show();
                            QCOMPARE(sliderOf(*page, row)->value(), &row == &dab ? 0 : gain);
                        }
                        break;
                }
                QCOMPARE(keys(*page, row), expectedKeys(gain));
                if (&row != &dab) {
                    QCOMPARE(sliderOf(*page, row)->value(), gain);
                    QCOMPARE(recording::stored(keyOf(row.source)).toInt(), gain);
                    QCOMPARE(recording::state().inputGain.value(row.source, 10), gain + 10);
                }
                recording::clear();
            }
        }
    }
};

PAGE_TEST_MAIN(tst_Audiosourcegainsettings)
#include "tst_audiosourcegainsettings.moc"
