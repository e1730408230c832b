// SPDX-License-Identifier: Apache-2.0
#include "desktest.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/desk/setups/setupfile.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QTableWidget>
#include <QUndoView>

using headunit::SettingsMap;
using headunit::SoundState;

class TestSetups : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_unit.reset(); }
    void keepShowAndApply();
    void deleteOne();
    void importShowsBeforeItChanges();
    void badImportChangesNothing();
    void exportWritesTheFile();
    void toggleChangesBetweenTwo();
    void toggleIsAtOnce();
    void changesGoToTheOneInForce();
    void matchedLevels();
    void toggleThereAndBackIsNoStep();
    void stepsAreListed();
    void exportAndImportOfTheProgram();
    void programRefuses_data();
    void programRefuses();

private:
    QWidget *part(const char *name) const { return m_panel->findChild<QWidget *>(name); }
    void press(const char *name) { QTest::mouseClick(part(name), Qt::LeftButton); }
    void answerDialog(const QString &path);
    QString message() const { return m_panel->findChild<QLabel *>("setups_message")->text(); }
    static SettingsMap keys() { return headunit::audioStore().values(); }
    static SoundState sound() { return headunit::SoundModel::instance().state(); }
    int run(const QStringList &arguments, QString *out, QString *err);

    QScopedPointer<UnitOnTheDesk> m_unit;
    headunit::Panel *m_panel = nullptr;
};

void TestSetups::init() {
    m_unit.reset(new UnitOnTheDesk);
    m_panel = m_unit->openDesk("setups")->panel("setups");
}

void TestSetups::answerDialog(const QString &path) {
    auto *const dialog = m_panel->findChild<QFileDialog *>("file_dialog");
    QVERIFY(dialog);
    auto *const edit = dialog->findChild<QLineEdit *>("fileNameEdit");
    edit->clear();
    QTest::keyClicks(edit, path);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_unit->pass();
}

void TestSetups::keepShowAndApply() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    const SettingsMap kept = keys();
    press("setups_key_save");
    answerDialog("quiet");
    auto *const names = m_panel->findChild<QListWidget *>("setups_names");
    QCOMPARE(names->count(), 1);
    QCOMPARE(names->item(0)->text(), QString("quiet"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    QVERIFY(m_unit->tap("key_Phase_180"));
    QTest::mouseClick(names->viewport(), Qt::LeftButton, Qt::NoModifier,
                      names->visualItemRect(names->item(0)).center());
    auto *const preview = m_panel->findChild<QTableWidget *>("setups_preview");
    QCOMPARE(preview->rowCount(), 2);
    QCOMPARE(preview->item(0, 0)->text(), QString("subwoofer.level"));
    QCOMPARE(preview->item(0, 1)->text(), QString("4 steps"));
    QCOMPARE(preview->item(0, 2)->text(), QString("3 steps"));
    QCOMPARE(sound().subwooferLevel, 4);  // only shown so far
    press("setups_key_apply");
    QCOMPARE(sound().subwooferLevel, 3);
    QCOMPARE(sound().subwooferPhase, 0);
    QVERIFY(headunit::setupChanges(keys(), kept).isEmpty());
    QCOMPARE(preview->rowCount(), 0);
    m_unit->desk->findChild<QAction *>("action_undo")->trigger();
    QCOMPARE(sound().subwooferLevel, 4);
    QCOMPARE(sound().subwooferPhase, 1);
}

void TestSetups::deleteOne() {
    press("setups_key_save");
    answerDialog("one");
    press("setups_key_save");
    answerDialog("two");
    auto *const names = m_panel->findChild<QListWidget *>("setups_names");
    QCOMPARE(names->count(), 2);
    QTest::mouseClick(names->viewport(), Qt::LeftButton, Qt::NoModifier,
                      names->visualItemRect(names->item(0)).center());
    press("setups_key_remove");
    QCOMPARE(names->count(), 1);
    QCOMPARE(names->item(0)->text(), QString("two"));
}

void TestSetups::importShowsBeforeItChanges() {
    QFile file(m_unit->root.filePath("other.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Audio set-up, version 1\ndelay.front_left = 30 ms\ncolour = red\nend of set-up\n");
    file.close();
    const SettingsMap before = keys();
    press("setups_key_import");
    answerDialog(file.fileName());
    auto *const preview = m_panel->findChild<QTableWidget *>("setups_preview");
    QCOMPARE(preview->rowCount(), 1);
    QCOMPARE(preview->item(0, 2)->text(), QString("9.9 ms"));
    QVERIFY(message().contains("line 2: delay.front_left: 30 ms is not within"));
    QVERIFY(message().contains("line 3: \"colour\" is not known here"));
    QCOMPARE(keys(), before);
    press("setups_key_apply");
    QCOMPARE(sound().delay[0], 99);
}

void TestSetups::badImportChangesNothing() {
    QFile file(m_unit->root.filePath("bad.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("Audio set-up, version 1\nsubwoofer.level = 9 steps\n");
    file.close();
    const SettingsMap before = keys();
    press("setups_key_import");
    answerDialog(file.fileName());
    QVERIFY2(message().endsWith("bad.txt: line 2: the file is cut off: it has no \"end of set-up\""),
             qPrintable(message()));
    QVERIFY(!part("setups_key_apply")->isEnabled());
    QTest::keyClick(m_panel, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(keys(), before);
}

void TestSetups::exportWritesTheFile() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    press("setups_key_export");
    answerDialog(m_unit->root.filePath("out"));
    const headunit::SetupFile read = headunit::readSetup(m_unit->root.filePath("out.txt"));
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.values.value("Setup_Sub"), QVariant(true));
}

void TestSetups::toggleChangesBetweenTwo() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    const SettingsMap a = keys();
    const SoundState soundA = sound();
    QTest::keyClick(m_unit->desk, Qt::Key_F5);  // B begins as a copy
    QCOMPARE(m_panel->findChild<QLabel *>("setups_in_force")->text(), QString("B is in force"));
    QCOMPARE(keys(), a);
    QVERIFY(m_unit->tap("key_subvol_next"));
    QVERIFY(m_unit->tap("key_Phase_180"));
    const SettingsMap b = keys();
    const SoundState soundB = sound();
    for (int i = 0; i < 3; ++i) {
        press("setups_key_toggle");
        QCOMPARE(keys(), a);
        QVERIFY(sound() == soundA);
        m_unit->car->activateWindow();
        QTest::keyClick(m_unit->car.get(), Qt::Key_F5);  // by ear, with the unit in front
        QCOMPARE(keys(), b);
        QVERIFY(sound() == soundB);
    }
}

/// The key has done all when it returns: no time passes until the other one sounds.
void TestSetups::toggleIsAtOnce() {
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QVERIFY(m_unit->tap("key_Subwoofer"));
    const qint64 now = headunit::VirtualTime::instance()->now();
    QTest::keyPress(m_unit->desk, Qt::Key_F5);
    QCOMPARE(sound().subwooferLevel, 0);
    QCOMPARE(headunit::VirtualTime::instance()->now(), now);
}

void TestSetups::changesGoToTheOneInForce() {
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QCOMPARE(sound().subwooferLevel, 0);
    press("setups_key_copy");  // A onto B
    QCOMPARE(message(), QString("B is now a copy of A"));
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QCOMPARE(sound().subwooferLevel, 0);
}

void TestSetups::matchedLevels() {
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    // B is louder by four steps of 1.5 dB.
    headunit::SoundModel::instance().setChannelLevel(0, sound().channelLevel[0] + 4);
    m_unit->pass();
    QTest::keyClick(m_unit->desk, Qt::Key_F6);
    QCOMPARE(sound().trim, -60);
    QCOMPARE(m_panel->findChild<QLabel *>("setups_in_force")->text(), QString("B is in force, -6.0 dB to match"));
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QCOMPARE(sound().trim, 0);  // A is the quieter one
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QCOMPARE(sound().trim, -60);
    // Changes made meanwhile are matched as well.
    headunit::SoundModel::instance().setChannelLevel(0, sound().channelLevel[0] - 2);
    m_unit->pass();
    QCOMPARE(sound().trim, -30);
    QTest::keyClick(m_unit->desk, Qt::Key_F6);
    QCOMPARE(sound().trim, 0);
    QTest::keyClick(m_unit->desk, Qt::Key_F6);
    m_unit->closeDesk();
    QCOMPARE(sound().trim, 0);
}

void TestSetups::toggleThereAndBackIsNoStep() {
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QUndoStack &stack = m_unit->desk->context().history.stack();
    const int steps = stack.count();
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QCOMPARE(stack.count(), steps + 1);
    QTest::keyClick(m_unit->desk, Qt::Key_F5);
    QCOMPARE(stack.count(), steps);
}

void TestSetups::stepsAreListed() {
    auto *const steps = m_panel->findChild<QUndoView *>("setups_steps");
    QCOMPARE(steps->model()->rowCount(), 1);
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    QCOMPARE(steps->model()->rowCount(), 3);
    QCOMPARE(steps->model()->index(2, 0).data().toString(), QString("subwoofer.level: 3 steps → 4 steps"));
    QTest::mouseClick(steps->viewport(), Qt::LeftButton, Qt::NoModifier,
                      steps->visualRect(steps->model()->index(0, 0)).center());
    QCOMPARE(sound().subwooferLevel, 0);
    QVERIFY(!keys().contains("Setup_Sub"));
}

int TestSetups::run(const QStringList &arguments, QString *out, QString *err) {
    QProcess process;
    process.start(HEADUNIT, arguments);
    if (!process.waitForFinished(600000)) {
        return -1;
    }
    *out = QString::fromUtf8(process.readAllStandardOutput());
    *err = QString::fromUtf8(process.readAllStandardError());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void TestSetups::exportAndImportOfTheProgram() {
    const QTemporaryDir first;
    const QTemporaryDir second;
    QString out;
    QString err;
    QFile file(first.filePath("in.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(
        "Audio set-up, version 1\nsubwoofer.on = on\ncrossover.front.frequency = 63 Hz\nequaliser.curve = 3\n"
        "delay.front_left = 0.5 ms\nend of set-up\n");
    file.close();
    QCOMPARE(run({"--root", first.path(), "--import", file.fileName()}, &out, &err), 0);
    QCOMPARE(out, QString("subwoofer.on: off → on\nequaliser.curve: 0 → 3\ncrossover.front.frequency: off → 63 Hz\n"
                          "delay.front_left: 0.0 ms → 0.5 ms\n4 values changed\n"));
    QCOMPARE(err, QString());
    QCOMPARE(run({"--root", first.path(), "--export", first.filePath("out.txt")}, &out, &err), 0);
    QCOMPARE(run({"--root", second.path(), "--import", first.filePath("out.txt")}, &out, &err), 0);
    QVERIFY(out.endsWith("4 values changed\n"));
    QCOMPARE(run({"--root", second.path(), "--export", first.filePath("again.txt")}, &out, &err), 0);
    QFile one(first.filePath("out.txt"));
    QFile two(first.filePath("again.txt"));
    QVERIFY(one.open(QIODevice::ReadOnly) && two.open(QIODevice::ReadOnly));
    QCOMPARE(one.readAll(), two.readAll());
    // The engine's samples are the same: so is the response, to the last digit.
    for (const QTemporaryDir *folder : {&first, &second}) {
        QCOMPARE(run({"--root", folder->path(), "--measure", folder->filePath("response.csv")}, &out, &err), 0);
    }
    QFile response(first.filePath("response.csv"));
    QFile other(second.filePath("response.csv"));
    QVERIFY(response.open(QIODevice::ReadOnly) && other.open(QIODevice::ReadOnly));
    const QByteArray curve = response.readAll();
    QVERIFY(curve.size() > 1000);
    QCOMPARE(curve, other.readAll());
}

void TestSetups::programRefuses_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    QTest::newRow("other version") << QByteArray("Audio set-up, version 9\nsubwoofer.on = on\nend of set-up\n")
                                   << "line 1: version 9 is not known here, only version 1";
    QTest::newRow("cut off") << QByteArray("Audio set-up, version 1\nsubwoofer.on = on\n")
                             << "line 2: the file is cut off: it has no \"end of set-up\"";
    QTest::newRow("wrong unit")
        << QByteArray("Audio set-up, version 1\nsubwoofer.on = on\ndelay.front_left = 1 s\nend of set-up\n")
        << "line 3: delay.front_left: \"1 s\": a number of ms is wanted";
}

void TestSetups::programRefuses() {
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    const QTemporaryDir folder;
    QFile file(folder.filePath("in.txt"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    QString out;
    QString err;
    QCOMPARE(run({"--root", folder.path(), "--import", file.fileName()}, &out, &err), 2);
    QCOMPARE(err, QString("headunit: --import %1: %2\n").arg(file.fileName(), reason));
    QCOMPARE(out, QString());
    QCOMPARE(run({"--root", folder.path(), "--export", folder.filePath("out.txt")}, &out, &err), 0);
    QCOMPARE(headunit::readSetup(folder.filePath("out.txt")).values.value("Setup_Sub"), QVariant(false));
}

DESK_TEST_MAIN(TestSetups)
#include "tst_setups.moc"
