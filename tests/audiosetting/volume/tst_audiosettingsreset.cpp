// SPDX-License-Identifier: Apache-2.0
#include "volume/audiosettingsreset.h"

#include "navigation/audiorootpagtsettings.h"
#include "tests/audiosetting/volume/sliderpage.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QPixmap>
#include <QPushButton>
#include <QSignalSpy>

#include <functional>
#include <limits>
#include <random>

using namespace sliderpage;

namespace {

using Values = QHash<QString, QVariant>;

const auto beep = QStringLiteral("doBeep(0)");

QStringList customCurve(const Values &values) {
    QStringList lines{QStringLiteral("setEQType(16, true)")};
    for (int band = 0; band < 13; ++band) {
        const int value = values.value(QStringLiteral("customeq1_%1").arg(band), 12).toInt();
        lines << QStringLiteral("setCustomEq(%1, %2, true)").arg(band).arg(value);
    }
    return lines;
}

QString filter(const char *call, int frequency, int slope, int level) {
    return QStringLiteral("%1(%2, %3, %4)").arg(QLatin1String(call)).arg(frequency).arg(slope).arg(level);
}

QStringList sourceGains(const Values &values) {
    QStringList lines;
    for (int source = 0; source < 6; ++source) {
        lines << QStringLiteral("setAudioInputGainValue(%1, %2)")
                     .arg(source)
                     .arg(values.value(QStringLiteral("audioinputgain%1").arg(source), 0).toInt());
    }
    return lines;
}

/// The calls of a reset that finds \a values in the store after the clear.
QStringList wholeReset(const Values &values) {
    const auto number = [&](const char *key, int otherwise) {
        return values.value(QLatin1String(key), otherwise).toInt();
    };
    QStringList lines{beep, QStringLiteral("clear(\"/media/flash/nvm/factory/audiosettings.ini\")"),
                      QStringLiteral("setBalanceFader(0, 0, true)")};
    lines << QStringLiteral("setSubwooferValue(%1)").arg(number("subwooferLevel", 3));
    lines << QStringLiteral("setLoudness(%1)").arg(int(values.value(QStringLiteral("Setup_Loudness"), false).toBool()));
    lines << customCurve(values);
    lines << filter("setLPFValue", number("crossover/subwooferfreq", 0), number("crossover/subwooferslope", 1),
                    number("crossover/subwooferlevel", 12));
    lines << filter("setCrossoverRearFreq", number("crossover/rearfreq", 0), number("crossover/rearslope", 1),
                    number("crossover/rearlevel", 12));
    lines << filter("setCrossoverFrontFreq", number("crossover/frontfreq", 0), number("crossover/rearfreq", 0),
                    number("crossover/rearlevel", 12));
    QStringList delays;
    for (int output = 0; output < 6; ++output) {
        delays << QString::number(values.value(QStringLiteral("timing/msec%1").arg(output), 0).toInt());
    }
    lines << QStringLiteral("setAudioTimerDelay(1, {%1})").arg(delays.join(QLatin1String(", ")));
    lines << sourceGains(values);
    for (int type = 0; type < 8; ++type) {
        lines << QStringLiteral("setVolumeLevel(15, %1)").arg(type);
        lines << QStringLiteral("audioVolumeChanged(0, 15, %1)").arg(type);
    }
    lines << QStringLiteral("setEQType(2, true)") << QStringLiteral("SettingsCacheSig(\"ADV_AUDIO_SETTINGS\")");
    return lines;
}

/// Every key that the dialog reads, and some that it must not.
const char *const keys[] = {
    "subwooferLevel",       "crossover/subwooferfreq", "crossover/subwooferslope", "crossover/subwooferlevel",
    "crossover/rearfreq",   "crossover/rearslope",     "crossover/rearlevel",      "crossover/frontfreq",
    "crossover/frontslope", "crossover/frontlevel",    "audioinputgain6",          "inputgain0",
    "EQ_DEFEAT_TYPE"};

/// A store in which each key, with some likelihood, holds what \a value gives.
template <class Value> Values fill(Value value, const std::function<bool()> &isThere) {
    Values values;
    const auto put = [&](const QString &key) {
        if (isThere()) {
            values.insert(key, value());
        }
    };
    for (const char *key : keys) {
        put(QLatin1String(key));
    }
    for (int i = 0; i < 13; ++i) {
        put(QStringLiteral("customeq1_%1").arg(i));
        put(QStringLiteral("default_volume%1").arg(i));
    }
    for (int i = 0; i < 6; ++i) {
        put(QStringLiteral("timing/msec%1").arg(i));
        put(QStringLiteral("audioinputgain%1").arg(i));
    }
    if (isThere()) {
        values.insert(QStringLiteral("Setup_Loudness"), value() % 2 != 0);
    }
    return values;
}

/// The dialog's parent.
class Screen : public QWidget {
public:
    Screen() { resize(1024, 600); }
};

const char *const question[] = {"reset_bg",  "Key_Reject",       "Txt_accept",      "Key_accept",
                                "txt_Title", "Txt_0012_item_01", "Txt_0012_item_04"};

}  // namespace

class tst_Audiosettingsreset : public PageTest {
    Q_OBJECT

    static QPushButton *key(QWidget &page, const char *name) {
        return page.findChild<QPushButton *>(QLatin1String(name));
    }
    static void open(Audiosettingsreset &page) {
        page.show();
        show(page.window());
    }
    static void call(QObject &page, const char *slot) {
        QVERIFY2(QMetaObject::invokeMethod(&page, slot, Qt::DirectConnection), slot);
    }
    /// The parts that are shown, of all that the form has.
    static QStringList shown(const QWidget &page) {
        QStringList names;
        const auto children = page.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *child : children) {
            if (child->isVisible()) {
                names << child->objectName();
            }
        }
        names.sort();
        return names;
    }
    static QStringList asking() {
        QStringList names;
        for (const char *name : question) {
            names << QLatin1String(name);
        }
        names.sort();
        return names;
    }
    static QStringList done() { return {QStringLiteral("txt_reset_success")}; }

    /// The container with the dialog open, by touch.
    static bool isShown(const AudioRootPagtSettings &root, const char *page) {
        return root.findChild<QWidget *>(QLatin1String(page))->isVisible();
    }

    static void openDialog(AudioRootPagtSettings &root) {
        show(&root);
        finger::tap(root.findChild<QWidget *>(QStringLiteral("key_advanced")));
        finger::tap(root.findChild<QWidget *>(QStringLiteral("Key_005_res_audio")));
        QVERIFY(root.findChild<Audiosettingsreset *>()->isVisible());
        recording::clear();
    }

private slots:
    void declaresItsSignalsAndSlotsInOrder() {
        const QMetaObject &meta = Audiosettingsreset::staticMetaObject;
        QCOMPARE(signatures(meta, QMetaMethod::Signal),
                 (QStringList{QStringLiteral("acceptClicked()"), QStringLiteral("rejectClicked()")}));
        QCOMPARE(
            signatures(meta, QMetaMethod::Slot),
            (QStringList{QStringLiteral("onAcceptClicked()"), QStringLiteral("onRejectClicked()"),
                         QStringLiteral("onDelayhidePop()"), QStringLiteral("makeEQDefaultEffect()"),
                         QStringLiteral("makeVolumeDefaultEffect()"), QStringLiteral("makeCrossoverDefaultEffect()"),
                         QStringLiteral("makeSourceGainDefaultEffect()")}));
    }

    void hasThePartsOfItsForm() {
        Screen screen;
        Audiosettingsreset page(&screen);
        QCOMPARE(page.objectName(), QStringLiteral("Audiosettingsreset"));
        QCOMPARE(page.windowTitle(), QStringLiteral("Form"));
        compareForm(&page, {{"reset_bg", "QLabel", QRect(72, 89, 880, 422)},
                            {"Key_Reject", "QPushButton", QRect(108, 108, 72, 72)},
                            {"Key_accept", "QPushButton", QRect(268, 379, 488, 96)},
                            {"Txt_accept", "QLabel", QRect(268, 379, 488, 96)},
                            {"Txt_0012_item_01", "QLabel", QRect(108, 170, 808, 130)},
                            {"Txt_0012_item_04", "QLabel", QRect(108, 280, 808, 72)},
                            {"txt_reset_success", "QLabel", QRect(72, 228, 880, 144)},
                            {"txt_Title", "QLabel", QRect(370, 108, 300, 72)}});
        const struct {
            const char *name;
            const char *text;
            int pointSize;
            bool bold;
            const char *style;
        } texts[] = {
            {"Txt_accept", "Yes, Reset my Audio Settings", 24, false, "color: rgb(255, 255, 255);"},
            {"Txt_0012_item_01", "<html><head/><body><p>This will reset all of your audio settings.</p></body></html>",
             30, false, ""},
            {"Txt_0012_item_04", "Do you want to proceed?", 30, true, ""},
            {"txt_reset_success", "Reset Successful", 45, false,
             "background-image: url(:/corvina_icon/audiosettings_reset_suc_pop.png);\ncolor: rgb(255, 255, 255);"},
            {"txt_Title", "Alert", 36, true, "color: rgb(255, 255, 255);"},
        };
        for (const auto &text : texts) {
            const QLabel *const label = page.findChild<QLabel *>(QLatin1String(text.name));
            QCOMPARE(label->text(), QLatin1String(text.text));
            QCOMPARE(label->font().pointSize(), text.pointSize);
            QCOMPARE(label->font().bold(), text.bold);
            QCOMPARE(label->styleSheet(), QLatin1String(text.style));
        }
        QVERIFY(page.findChild<QLabel *>(QStringLiteral("txt_reset_success"))->isHidden());
        QCOMPARE(recording::take(), QStringList());
    }

    void itsFontsAreThePagesFont() {
        Screen screen;
        QFont font(QStringLiteral("Another"));
        font.setBold(true);
        screen.setFont(font);
        Audiosettingsreset page(&screen);
        for (const char *name : {"txt_reset_success", "Txt_0012_item_01", "Txt_0012_item_04", "txt_Title"}) {
            const QLabel *const label = page.findChild<QLabel *>(QLatin1String(name));
            QCOMPARE(label->font().family(), QStringLiteral("Another"));
            QVERIFY2(label->font().bold(), name);
        }
    }

    void showsThePicturesOfItsForm() {
        Screen screen;
        Audiosettingsreset page(&screen);
        const auto picture = [](const char *name) {
            return QPixmap(QStringLiteral(":/corvina_icon/") + QLatin1String(name)).toImage();
        };
        QCOMPARE(page.findChild<QLabel *>(QStringLiteral("reset_bg"))->pixmap(Qt::ReturnByValue).toImage(),
                 picture("audio_reset_bg.png"));
        QCOMPARE(picture("audio_reset_bg.png").size(), QSize(880, 422));
        QCOMPARE(picture("audiosettings_reset_suc_pop.png").size(), QSize(880, 144));
        const struct {
            const char *name;
            QSize size;
            const char *normal;
            const char *pressed;
        } icons[] = {
            {"Key_Reject", QSize(72, 72), "settings_icn_close_n.png", "settings_icn_close_p.png"},
            {"Key_accept", QSize(488, 96), "settings_factory_yes_n.png", "settings_factory_yes_p.png"},
        };
        for (const auto &icon : icons) {
            const QPushButton *const button = key(page, icon.name);
            QCOMPARE(button->iconSize(), icon.size);
            QCOMPARE(button->icon().pixmap(icon.size, QIcon::Normal, QIcon::Off).toImage(), picture(icon.normal));
            QCOMPARE(button->icon().pixmap(icon.size, QIcon::Selected, QIcon::On).toImage(), picture(icon.pressed));
            QCOMPARE(picture(icon.normal).size(), icon.size);
            QVERIFY(picture(icon.normal) != picture(icon.pressed));
        }
    }

    void asksOnEveryShow() {
        for (int id = 969; id <= 973; ++id) {
            recording::state().texts[id] = QStringLiteral("text %1").arg(id);
        }
        Screen screen;
        Audiosettingsreset page(&screen);
        for (int i = 0; i < 2; ++i) {
            open(page);
            QCOMPARE(shown(page), asking());
            finger::tap(key(page, "Key_accept"));
            QCOMPARE(shown(page), done());
            page.hide();
        }
        const auto text = [&](const char *name) { return page.findChild<QLabel *>(QLatin1String(name))->text(); };
        QCOMPARE(text("Txt_0012_item_01"), QStringLiteral("text 969"));
        QCOMPARE(text("Txt_0012_item_04"), QStringLiteral("text 970"));
        QCOMPARE(text("Txt_accept"), QStringLiteral("text 971"));
        QCOMPARE(text("txt_Title"), QStringLiteral("text 972"));
        QCOMPARE(text("txt_reset_success"), QStringLiteral("text 973"));
    }

    void languageChangesItsTexts() {
        Screen screen;
        Audiosettingsreset page(&screen);
        open(page);
        recording::state().texts[970] = QStringLiteral("other");
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&page, &change);
        QCOMPARE(page.findChild<QLabel *>(QStringLiteral("Txt_0012_item_04"))->text(), QStringLiteral("other"));
        QCOMPARE(shown(page), asking());
    }

    void rejectOnlyBeepsAndSaysSo() {
        Screen screen;
        Audiosettingsreset page(&screen);
        open(page);
        QSignalSpy rejected(&page, SIGNAL(rejectClicked()));
        QSignalSpy accepted(&page, SIGNAL(acceptClicked()));
        finger::tap(key(page, "Key_Reject"));
        advance(10000);
        QCOMPARE(recording::take(), QStringList{beep});
        QCOMPARE(rejected.count(), 1);
        QCOMPARE(accepted.count(), 0);
        QCOMPARE(shown(page), asking());
    }

    void theBeepComesBeforeTheAnswer() {
        Screen screen;
        Audiosettingsreset page(&screen);
        open(page);
        connect(&page, &Audiosettingsreset::rejectClicked, this, [] { recording::note(QStringLiteral("rejected")); });
        finger::tap(key(page, "Key_Reject"));
        QCOMPARE(recording::take(), (QStringList{beep, QStringLiteral("rejected")}));
    }

    void acceptSendsTheWholeSequence_data() {
        QTest::addColumn<Values>("before");
        QTest::addColumn<Values>("factory");
        const auto always = [] { return true; };
        int next = 100;
        const Values full = fill([&] { return next++; }, always);
        QTest::newRow("empty store, no factory state") << Values() << Values();
        QTest::newRow("full store, no factory state") << full << Values();
        QTest::newRow("full factory state") << Values() << full;
        QTest::newRow("lowest numbers") << Values() << fill([] { return std::numeric_limits<int>::min(); }, always);
        QTest::newRow("highest numbers") << Values() << fill([] { return std::numeric_limits<int>::max(); }, always);
        Values oneMissing = full;
        oneMissing.remove(QStringLiteral("subwooferLevel"));
        oneMissing.remove(QStringLiteral("customeq1_7"));
        oneMissing.remove(QStringLiteral("crossover/rearfreq"));
        QTest::newRow("factory state that lacks keys") << full << oneMissing;
    }
    void acceptSendsTheWholeSequence() {
        QFETCH(Values, before);
        QFETCH(Values, factory);
        for (auto it = before.cbegin(); it != before.cend(); ++it) {
            recording::setStored(it.key(), it.value());
        }
        recording::setFactory(factory);
        Screen screen;
        Audiosettingsreset page(&screen);
        open(page);
        QCOMPARE(recording::take(), QStringList());
        finger::tap(key(page, "Key_accept"));
        QCOMPARE(recording::take(), wholeReset(factory));
        QCOMPARE(shown(page), done());
    }

    void acceptSendsTheWholeSequenceOfRandomStores() {
        const unsigned seed =
            qEnvironmentVariableIsSet("TEST_SEED") ? qEnvironmentVariableIntValue("TEST_SEED") : std::random_device()();
        qInfo("TEST_SEED=%u", seed);
        std::mt19937 random(seed);
        Screen screen;
        Audiosettingsreset page(&screen);
        open(page);
        page.hide();
        for (int i = 0; i < 1000; ++i) {
            const Values factory = fill([&] { return int(random()); }, [&] { return random() % 4 != 0; });
            recording::reset();
            recording::setFactory(factory);
            page.show();
            recording::clear();
            finger::tap(key(page, "Key_accept"));
            QCOMPARE(recording::take(), wholeReset(factory));
            page.hide();
        }
        advance(2500);
    }

    void acceptReadsLoudnessAsATruthValue() {
        recording::setLogged(recording::Reads);
        Screen screen;
        Audiosettingsreset page(&screen);
        open(page);
        recording::clear();
        finger::tap(key(page, "Key_accept"));
        const QStringList lines = recording::take();
        QCOMPARE(lines.count(QStringLiteral("getValue(\"Setup_Loudness\", false)")), 1);
        // Nothing is read before the clear, and the front's own slope and level are not read at all.
        QCOMPARE(lines.mid(0, 3).join(QLatin1Char(' ')),
                 beep + QStringLiteral(" clear(\"/media/flash/nvm/factory/audiosettings.ini\")"
                                       " setBalanceFader(0, 0, true)"));
        QVERIFY(lines.filter(QStringLiteral("crossover/frontslope")).isEmpty());
        QVERIFY(lines.filter(QStringLiteral("crossover/frontlevel")).isEmpty());
    }

    void aTouchOnTheCaptionAccepts() {
        Screen screen;
        Audiosettingsreset page(&screen);
        open(page);
        finger::tap(page.findChild<QLabel *>(QStringLiteral("Txt_accept")));
        QCOMPARE(shown(page), done());
        // The keys are gone: a second touch at the same place does nothing.
        recording::clear();
        finger::tap(&page, QPoint(512, 427));
        QCOMPARE(recording::take(), QStringList());
    }

    void saysThatItIsDoneAfterAWhile() {
        Screen screen;
        Audiosettingsreset page(&screen);
        open(page);
        QSignalSpy accepted(&page, SIGNAL(acceptClicked()));
        finger::tap(key(page, "Key_accept"));
        advance(2499);
        QCOMPARE(accepted.count(), 0);
        QCOMPARE(shown(page), done());
        advance(1);
        QCOMPARE(accepted.count(), 1);
        advance(10000);
        QCOMPARE(accepted.count(), 1);
        page.hide();
        open(page);
        QCOMPARE(shown(page), asking());
    }

    void delayedSlotOnlySaysSo() {
        Screen screen;
        Audiosettingsreset page(&screen);
        QSignalSpy accepted(&page, SIGNAL(acceptClicked()));
        call(page, "onDelayhidePop");
        QCOMPARE(accepted.count(), 1);
        QCOMPARE(recording::take(), QStringList());
    }

    // The four slots of their own ---------------------------------------------------------------------------------

    void partialSlotsSendTheirOwn() {
        int next = 50;
        const Values full = fill([&] { return next++; }, [] { return true; });
        for (const Values &values : {Values(), full}) {
            recording::reset();
            for (auto it = values.cbegin(); it != values.cend(); ++it) {
                recording::setStored(it.key(), it.value());
            }
            const auto number = [&](const QString &k, int otherwise) { return values.value(k, otherwise).toInt(); };
            Screen screen;
            Audiosettingsreset page(&screen);

            call(page, "makeEQDefaultEffect");
            QStringList eq{QStringLiteral("setEQType(16, true)")};
            for (int band = 0; band < 13; ++band) {
                eq << QStringLiteral("setCustomEq(0, %1, true)").arg(band);
            }
            QCOMPARE(recording::take(), eq << QStringLiteral("setEQType(0, true)"));

            call(page, "makeVolumeDefaultEffect");
            QStringList volumes;
            for (int type = 0; type < 5; ++type) {
                const int level = number(QStringLiteral("default_volume%1").arg(type), 20);
                volumes << QStringLiteral("setAudioVolumeValue(%1, %2)").arg(type).arg(level)
                        << QStringLiteral("audioVolumeChanged(0, %1, %2)").arg(level).arg(type);
            }
            QCOMPARE(recording::take(), volumes);

            call(page, "makeCrossoverDefaultEffect");
            QStringList filters;
            for (const char *channel : {"front", "rear", "subwoofer"}) {
                const QString name = QStringLiteral("crossover/") + QLatin1String(channel);
                const char *const send = qstrcmp(channel, "front") == 0  ? "setCrossoverFrontFreq"
                                         : qstrcmp(channel, "rear") == 0 ? "setCrossoverRearFreq"
                                                                         : "setLPFValue";
                filters << filter(send, number(name + QStringLiteral("freq"), 0),
                                  number(name + QStringLiteral("slope"), 1),
                                  number(name + QStringLiteral("level"), 12));
            }
            QCOMPARE(recording::take(), filters);

            call(page, "makeSourceGainDefaultEffect");
            QCOMPARE(recording::take(), sourceGains(values));
        }
    }

    // In the container --------------------------------------------------------------------------------------------

    void everythingInItIsOnTheScreen() {
        AudioRootPagtSettings root(nullptr);
        openDialog(root);
        Audiosettingsreset *const page = root.findChild<Audiosettingsreset *>();
        // The page area, and nothing of the top bar.
        const QRegion area = (page->visibleRegion() & page->mask()).translated(page->pos());
        QCOMPARE(area.boundingRect(), QRect(0, 130, 1024, 470));
        QCOMPARE(area.rectCount(), 1);
        const auto children = page->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget *child : children) {
            QVERIFY2(QRect(0, 130, 1024, 470).contains(child->geometry().translated(page->pos())),
                     qPrintable(child->objectName()));
        }
    }

    void backIsTouchedBesideTheDialog() {
        AudioRootPagtSettings root(nullptr);
        openDialog(root);
        CHILD(QWidget, back, &root, "key_return");
        // At each corner of the key, not only in its middle.
        for (const QPoint &corner : {QPoint(2, 2), QPoint(69, 2), QPoint(2, 69), QPoint(69, 69)}) {
            QCOMPARE(root.childAt(back->mapTo(&root, corner)), back);
        }
        finger::tap(back, QPoint(69, 69));
        QVERIFY(isShown(root, "Audiosetting_right_general_widget"));
        QVERIFY(!root.findChild<Audiosettingsreset *>()->isVisible());
        QCOMPARE(recording::take(), QStringList{beep});
    }

    void closeIsTouchedBesideTheDialog() {
        AudioRootPagtSettings root(nullptr);
        openDialog(root);
        CHILD(QWidget, close, &root, "Key_close");
        for (const QPoint &corner : {QPoint(2, 2), QPoint(69, 2), QPoint(2, 69), QPoint(69, 69)}) {
            QCOMPARE(root.childAt(close->mapTo(&root, corner)), close);
        }
        finger::tap(close, QPoint(2, 69));
        QCOMPARE(recording::take(), (QStringList{beep, QStringLiteral("postTouch(1, -1, -1, 0)")}));
    }

    void whatLiesBehindIsDimAndUntouchable() {
        AudioRootPagtSettings root(nullptr);
        show(&root);
        finger::tap(root.findChild<QWidget *>(QStringLiteral("key_advanced")));
        CHILD(QWidget, loudness, &root, "Key_001_loudness");
        const QPoint place = loudness->mapTo(&root, loudness->rect().center());
        const QImage bright = root.grab().toImage();
        finger::tap(root.findChild<QWidget *>(QStringLiteral("Key_005_res_audio")));
        const QImage dim = root.grab().toImage();
        int brightest = 0;
        for (int y = 135; y < 150; ++y) {
            for (int x = 0; x < 1024; ++x) {
                QVERIFY(qGray(dim.pixel(x, y)) <= qGray(bright.pixel(x, y)));
                brightest = qMax(brightest, qGray(dim.pixel(x, y)));
            }
        }
        QVERIFY(brightest < 64);
        for (int y = 0; y < 130; ++y) {
            for (int x = 0; x < 1024; ++x) {
                QCOMPARE(dim.pixel(x, y), bright.pixel(x, y));
            }
        }
        recording::clear();
        finger::tap(&root, place);
        finger::tap(&root, QPoint(20, 300));  // a tab
        QCOMPARE(recording::take(), QStringList());
        QVERIFY(root.findChild<Audiosettingsreset *>()->isVisible());
    }

    void acceptAndRejectLeadToTheSettingsRoot() {
        AudioRootPagtSettings root(nullptr);
        openDialog(root);
        Audiosettingsreset *const page = root.findChild<Audiosettingsreset *>();
        finger::tap(key(*page, "Key_Reject"));
        QVERIFY(!page->isVisible());
        CHILD(QWidget, entry, &root, "Key_005_res_audio");
        QVERIFY(entry->isVisible());

        finger::tap(entry);
        finger::tap(key(*page, "Key_accept"));
        advance(2499);
        QVERIFY(page->isVisible());
        advance(1);
        QVERIFY(!page->isVisible());
        QVERIFY(entry->isVisible());
    }

    /// The end of a reset leads to the settings root from wherever the driver has gone meanwhile.
    void itsEndIsAnnouncedAlsoWhenItWasLeft() {
        AudioRootPagtSettings root(nullptr);
        openDialog(root);
        finger::tap(root.findChild<QWidget *>(QStringLiteral("Key_accept")));
        finger::tap(root.findChild<QWidget *>(QStringLiteral("key_return")));
        QVERIFY(isShown(root, "Audiosetting_right_general_widget"));
        advance(2499);
        QVERIFY(isShown(root, "Audiosetting_right_general_widget"));
        advance(1);
        QVERIFY(isShown(root, "AudiosettingsRoot"));
        QVERIFY(!root.findChild<Audiosettingsreset *>()->isVisible());
    }

    void theOtherPagesFollowDefeat() {
        recording::setStored(QStringLiteral("ADV_AUDIO_SETTINGS"), 1);
        AudioRootPagtSettings root(nullptr);
        openDialog(root);
        CHILD(QWidget, loudness, &root, "Key_001_loudness");
        QVERIFY(!loudness->isEnabled());
        finger::tap(root.findChild<QWidget *>(QStringLiteral("Key_accept")));
        advance(2500);
        QVERIFY(loudness->isEnabled());
    }
};

Q_DECLARE_METATYPE(Values)
PAGE_TEST_MAIN(tst_Audiosettingsreset)
#include "tst_audiosettingsreset.moc"
