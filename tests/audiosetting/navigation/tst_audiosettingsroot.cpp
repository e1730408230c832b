// SPDX-License-Identifier: Apache-2.0
#include "navigation/audiosettingsroot.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

namespace {

const QString white = QStringLiteral("color: #FFF;");
const QString grey = QStringLiteral("color: #57575F;");

}  // namespace

class tst_AudiosettingsRoot : public PageTest {
    Q_OBJECT
private slots:
    void constructionReadsDefeatAndSetsTheFont() {
        recording::setLogged(recording::Reads | recording::Toolkit);
        AudiosettingsRoot root(nullptr);
        QCOMPARE(recording::take(), QStringList({"getValue(\"ADV_AUDIO_SETTINGS\", 0)",
                                                 "sync_default_font(AudiosettingsRoot, \"Txt_\")"}));
    }

    void showingReadsAndWritesNothing() {
        AudiosettingsRoot root(nullptr);
        recording::setLogged(recording::Reads);
        show(&root);
        QCOMPARE(recording::take(),
                 QStringList({"translate(439)", "translate(1081)", "translate(1082)", "translate(1083)",
                              "getValue(\"ADV_AUDIO_SETTINGS\", 0)", "getValue(\"Setup_Loudness\", 0)"}));
    }

    void captionsAreTranslatedAtEveryShow() {
        AudiosettingsRoot root(nullptr);
        show(&root);
        const QHash<QString, int> captions{{"Txt_001_loudness", 439},
                                           {"Txt_003_source_gain", 1081},
                                           {"Txt_004_vol_settings", 1082},
                                           {"Txt_005_res_audio", 1083}};
        for (auto it = captions.begin(); it != captions.end(); ++it) {
            QCOMPARE(root.findChild<QLabel *>(it.key())->text(), QStringLiteral("#%1").arg(it.value()));
            recording::state().texts.insert(it.value(), it.key().toUpper());
        }
        root.hide();
        root.show();
        for (auto it = captions.begin(); it != captions.end(); ++it) {
            QCOMPARE(root.findChild<QLabel *>(it.key())->text(), it.key().toUpper());
        }
    }

    void captionsFollowTheLanguage() {
        AudiosettingsRoot root(nullptr);
        show(&root);
        recording::state().texts.insert(1081, QStringLiteral("Quellpegel"));
        QEvent event(QEvent::LanguageChange);
        QCoreApplication::sendEvent(&root, &event);
        QCOMPARE(root.findChild<QLabel *>("Txt_003_source_gain")->text(), QStringLiteral("Quellpegel"));
    }

    void entriesAnnounceTheirPage_data() {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<QString>("expected");
        QTest::newRow("source gain") << "Key_003_source_gain"
                                     << "Txt_003_source_gain"
                                     << "showSourceGain";
        QTest::newRow("volume") << "Key_004_vol_settings"
                                << "Txt_004_vol_settings"
                                << "showAudioSettings";
        QTest::newRow("reset") << "Key_005_res_audio"
                               << "Txt_005_res_audio"
                               << "showResetAudiosettings";
    }
    void entriesAnnounceTheirPage() {
        QFETCH(QString, key);
        QFETCH(QString, caption);
        QFETCH(QString, expected);
        AudiosettingsRoot root(nullptr);
        show(&root);
        connect(&root, &AudiosettingsRoot::showAudioSettings, [] { recording::note("showAudioSettings"); });
        connect(&root, &AudiosettingsRoot::showSourceGain, [] { recording::note("showSourceGain"); });
        connect(&root, &AudiosettingsRoot::showResetAudiosettings, [] { recording::note("showResetAudiosettings"); });

        QWidget *const row = root.findChild<QPushButton *>(key);
        QWidget *const text = root.findChild<QLabel *>(caption);
        QVERIFY(row && text);
        QVERIFY(text->testAttribute(Qt::WA_TransparentForMouseEvents));
        const QStringList calls{"doBeep(0)", expected};
        // Anywhere on the row, the caption too.
        for (const QPoint &pos : {QPoint(0, 0), QPoint(847, 71), QPoint(424, 36), QPoint(0, 71), QPoint(847, 0)}) {
            finger::tap(row, pos);
            QCOMPARE(recording::take(), calls);
        }
        finger::tap(text);
        QCOMPARE(recording::take(), calls);
        // A finger that leaves the row before it lifts chose nothing.
        finger::press(row, QPoint(424, 36));
        finger::move(row, QPoint(424, -5));
        finger::release(row, QPoint(424, -5));
        QCOMPARE(recording::take(), QStringList());
    }

    void loudnessIsStoredAndSent() {
        AudiosettingsRoot root(nullptr);
        show(&root);
        CHILD(QPushButton, key, &root, "Key_001_loudness");
        finger::tap(key);
        QVERIFY(key->isChecked());
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"Setup_Loudness\", 0, true, true)", "setLoudness(1)"}));
        QCOMPARE(recording::stored("Setup_Loudness").toInt(), 1);
        finger::tap(key);
        QVERIFY(!key->isChecked());
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"Setup_Loudness\", 0, false, true)", "setLoudness(0)"}));
        QCOMPARE(recording::stored("Setup_Loudness").toInt(), 0);
    }

    void captionOfLoudnessIsNoKey() {
        AudiosettingsRoot root(nullptr);
        show(&root);
        CHILD(QLabel, caption, &root, "Txt_001_loudness");
        finger::tap(caption);
        QCOMPARE(recording::take(), QStringList());
    }

    void loudnessIsReadAtEveryShow_data() {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("checked");
        QTest::newRow("never written") << QVariant() << false;
        QTest::newRow("0") << QVariant(0) << false;
        QTest::newRow("1") << QVariant(1) << true;
        QTest::newRow("true") << QVariant(true) << true;
        QTest::newRow("false") << QVariant(false) << false;
        QTest::newRow("no number") << QVariant("loud") << false;
    }
    void loudnessIsReadAtEveryShow() {
        QFETCH(QVariant, stored);
        QFETCH(bool, checked);
        AudiosettingsRoot root(nullptr);
        CHILD(QPushButton, key, &root, "Key_001_loudness");
        key->setChecked(!checked);
        recording::setStored("Setup_Loudness", stored);
        show(&root);
        QCOMPARE(key->isChecked(), checked);
        root.hide();
        key->setChecked(!checked);
        root.show();
        QCOMPARE(key->isChecked(), checked);
        QCOMPARE(recording::take(), QStringList());
    }

    void defeatFreezesLoudness() {
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        recording::setStored("Setup_Loudness", 1);
        AudiosettingsRoot root(nullptr);
        CHILD(QPushButton, key, &root, "Key_001_loudness");
        CHILD(QLabel, caption, &root, "Txt_001_loudness");
        show(&root);
        QVERIFY(!key->isEnabled());
        QVERIFY(!key->isChecked());  // as it was
        QCOMPARE(caption->styleSheet(), grey);
        finger::tap(key);
        QCOMPARE(recording::take(), QStringList());

        recording::setStored("ADV_AUDIO_SETTINGS", 0);
        root.hide();
        root.show();
        QVERIFY(key->isEnabled());
        QVERIFY(key->isChecked());
        QCOMPARE(caption->styleSheet(), white);

        recording::setStored("ADV_AUDIO_SETTINGS", 5);
        recording::setStored("Setup_Loudness", 0);
        root.hide();
        root.show();
        QVERIFY(!key->isEnabled());
        QVERIFY(key->isChecked());  // left as it is
        QCOMPARE(caption->styleSheet(), grey);
    }

    void defeatLeavesTheEntriesAlone() {
        recording::setStored("ADV_AUDIO_SETTINGS", 1);
        AudiosettingsRoot root(nullptr);
        show(&root);
        for (const char *name : {"Key_003_source_gain", "Key_004_vol_settings", "Key_005_res_audio"}) {
            QVERIFY(root.findChild<QPushButton *>(QLatin1String(name))->isEnabled());
        }
        for (const char *name : {"Txt_003_source_gain", "Txt_004_vol_settings", "Txt_005_res_audio"}) {
            QVERIFY(!root.findChild<QLabel *>(QLatin1String(name))->styleSheet().contains(QLatin1String("57575F")));
        }
    }

    void updateKeyEnByHand() {
        AudiosettingsRoot root(nullptr);
        CHILD(QPushButton, key, &root, "Key_001_loudness");
        CHILD(QLabel, caption, &root, "Txt_001_loudness");
        recording::setStored("Setup_Loudness", 1);
        root.updateKeyEn(true);
        QVERIFY(!key->isEnabled() && !key->isChecked());
        QCOMPARE(caption->styleSheet(), grey);
        root.updateKeyEn(false);
        QVERIFY(key->isEnabled() && key->isChecked());
        QCOMPARE(caption->styleSheet(), white);
        recording::setStored("Setup_Loudness", 0);
        root.updateKeyEn(false);
        QVERIFY(!key->isChecked());
    }

    void signalsAndSlots() {
        QCOMPARE(
            methods(AudiosettingsRoot::staticMetaObject),
            QStringList({"signal showAudioSettings()", "signal showSourceGain()", "signal showResetAudiosettings()",
                         "slot on_Key_003_source_gain_clicked()", "slot on_Key_004_vol_settings_clicked()",
                         "slot on_Key_005_res_audio_clicked()", "slot on_Key_001_loudness_clicked()"}));
    }
};

PAGE_TEST_MAIN(tst_AudiosettingsRoot)
#include "tst_audiosettingsroot.moc"
