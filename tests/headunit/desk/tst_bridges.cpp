// SPDX-License-Identifier: Apache-2.0
// The windows for curves of other programs and for the tape measure, and the same by the command line.

#include "desktest.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/desk/setups/setupfile.h"
#include "headunit/desk/tape/tapedelays.h"

#include <QAction>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRandomGenerator>
#include <QTableWidget>

#include <cmath>

using headunit::SoundState;

class TestBridges : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { m_unit.reset(new UnitOnTheDesk); }
    void cleanup() { m_unit.reset(); }
    void importShowsBeforeItChanges();
    void badImportChangesNothing();
    void exportsTheCurve();
    void exportsTheResponses();
    void setupsWindowTakesCurves();
    void speedOfSound();
    void distancesBecomeDelays();
    void bothUnitsAreLive();
    void delaysAreOneStep();
    void tooFar();
    void remembersTheDistances();
    void program();

private:
    void open(const char *name) { m_panel = m_unit->openDesk(name)->panel(name); }
    QWidget *part(const QString &name) const { return m_panel->findChild<QWidget *>(name); }
    QString text(const QString &name) const { return m_panel->findChild<QLabel *>(name)->text(); }
    void press(const char *name) { QTest::mouseClick(part(name), Qt::LeftButton); }
    void type(const QString &name, const QString &value);
    void answerDialog(const QString &path);
    QString write(const QString &name, const QByteArray &text) const;
    static SoundState sound() { return headunit::SoundModel::instance().state(); }
    int run(const QStringList &arguments, QString *out, QString *err);

    QScopedPointer<UnitOnTheDesk> m_unit;
    headunit::Panel *m_panel = nullptr;
};

void TestBridges::answerDialog(const QString &path) {
    auto *const dialog = m_panel->findChild<QFileDialog *>("file_dialog");
    QVERIFY(dialog);
    auto *const edit = dialog->findChild<QLineEdit *>("fileNameEdit");
    edit->clear();
    QTest::keyClicks(edit, path);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_unit->desk->activateWindow();
    m_unit->pass();
}

void TestBridges::type(const QString &name, const QString &value) {
    auto *const edit = part(name)->findChild<QLineEdit *>();
    QTest::mouseDClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClicks(edit, value);
    QTest::keyClick(edit, Qt::Key_Tab);
}

QString TestBridges::write(const QString &name, const QByteArray &text) const {
    QFile file(m_unit->root.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write(text) >= 0 ? file.fileName() : QString();
}

void TestBridges::importShowsBeforeItChanges() {
    open("curves");
    const QString path = write("room.txt", "Preamp: -3 dB\nFilter 1: ON PK Fc 1000 Hz Gain -6.4 dB Q 1.5\n");
    const SoundState before = sound();
    auto *const bands = m_panel->findChild<QTableWidget *>("curves_bands");
    QCOMPARE(bands->rowCount(), 13);
    QCOMPARE(bands->item(6, 0)->text(), QString("1000 Hz"));
    QCOMPARE(bands->item(6, 1)->text(), QString());
    QVERIFY(!part("curves_key_apply")->isEnabled());
    press("curves_key_import");
    answerDialog(path);
    QCOMPARE(bands->item(6, 1)->text(), QString("-6.4 dB"));
    QCOMPARE(bands->item(6, 2)->text(), QString("-7 dB"));
    QCOMPARE(bands->item(6, 3)->text(), QString("+0.6 dB"));
    QCOMPARE(bands->item(6, 4)->text(), QString("0 dB"));
    QVERIFY2(text("curves_title").startsWith("\"room\": 0."), qPrintable(text("curves_title")));
    QVERIFY2(text("curves_message").contains("line 1: -3 dB for all frequencies are left to the volume"),
             qPrintable(text("curves_message")));
    QVERIFY(sound() == before);
    QTest::mouseClick(bands->viewport(), Qt::LeftButton);
    QTest::keyClick(bands, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(sound().eqType, 16);
    QCOMPARE(sound().customEq[6], 5);
    QCOMPARE(bands->item(6, 4)->text(), QString("-7 dB"));
    m_unit->desk->findChild<QAction *>("action_undo")->trigger();
    QVERIFY(sound() == before);
    QCOMPARE(bands->item(6, 4)->text(), QString("0 dB"));
    m_unit->unit->setLanguage("ja");
    m_unit->pass();
    QVERIFY(text("curves_title").contains("room") && !text("curves_title").contains("dB remain"));
}

void TestBridges::badImportChangesNothing() {
    open("curves");
    const SoundState before = sound();
    for (const QByteArray &bad :
         {QByteArray("Filter: ON PK Fc 0 Hz Gain 3 dB Q 1\n"), QByteArray("nothing\n"), QByteArray()}) {
        press("curves_key_import");
        answerDialog(write("bad.txt", bad));
        QVERIFY2(text("curves_message").contains("bad.txt: line 1: "), qPrintable(text("curves_message")));
        QVERIFY(!part("curves_key_apply")->isEnabled());
        QWidget *const bands = part("curves_bands");
        bands->setFocus();
        QTest::keyClick(bands, Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(sound() == before);
    }
}

void TestBridges::exportsTheCurve() {
    open("curves");
    headunit::SoundModel::instance().setEqType(8);
    press("curves_key_export");
    answerDialog(m_unit->root.filePath("hiphop"));
    QFile file(m_unit->root.filePath("hiphop.txt"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray written = file.readAll();
    QVERIFY(written.contains("bands: 63 Hz 10 dB, 100 Hz 6 dB,"));
    QCOMPARE(written.count("ON PK Fc"), 13);
    press("curves_key_import");
    answerDialog(file.fileName());
    auto *const bands = m_panel->findChild<QTableWidget *>("curves_bands");
    for (int band = 0; band < 13; ++band) {
        QCOMPARE(bands->item(band, 2)->text(), bands->item(band, 4)->text());
    }
}

void TestBridges::exportsTheResponses() {
    open("curves");
    press("curves_key_responses");
    answerDialog(m_unit->root.filePath("car"));
    for (const char *name : {"car-FL.frd", "car-SR.frd", "car-sum.frd"}) {
        QVERIFY2(QFile::exists(m_unit->root.filePath(name)), name);
    }
}

void TestBridges::setupsWindowTakesCurves() {
    open("setups");
    press("setups_key_import");
    answerDialog(write("room.txt", "GraphicEQ: 63 4; 16000 4\n"));
    auto *const preview = m_panel->findChild<QTableWidget *>("setups_preview");
    QCOMPARE(preview->rowCount(), 14);
    press("setups_key_apply");
    QCOMPARE(sound().eqType, 16);
    QCOMPARE(sound().customEq[6], 16);
}

void TestBridges::speedOfSound() {
    QVERIFY(std::abs(headunit::speedOfSound(0) - 331.3) < 0.1);
    QVERIFY(std::abs(headunit::speedOfSound(20) - 343.2) < 0.1);
    QVERIFY(std::abs(headunit::speedOfSound(40) - 354.7) < 0.2);
}

/// Within 0.05 ms, whatever was measured.
void TestBridges::distancesBecomeDelays() {
    QRandomGenerator random(5);
    for (int i = 0; i < 1000; ++i) {
        headunit::TapeDistances distances;
        for (double &distance : distances) {
            distance = random.bounded(3000) / 10.0;
        }
        const double celsius = random.bounded(-200, 600) / 10.0;
        const double farthest = *std::max_element(distances.begin(), distances.end());
        const auto delays = headunit::tapeDelays(distances, celsius);
        for (size_t output = 0; output < delays.size(); ++output) {
            // Delay and way of the sound come to the same for all.
            const double arrival =
                delays[output].steps * 0.1 + distances[output] * 10 / headunit::speedOfSound(celsius);
            QVERIFY(std::abs(arrival - farthest * 10 / headunit::speedOfSound(celsius)) <= 0.05 + 1e-9);
        }
    }
}

void TestBridges::bothUnitsAreLive() {
    open("tape");
    type("tape_cm0", "100");
    QCOMPARE(m_panel->findChild<QDoubleSpinBox *>("tape_inches0")->value(), 39.4);
    type("tape_inches1", "50");
    QCOMPARE(m_panel->findChild<QDoubleSpinBox *>("tape_cm1")->value(), 127.0);
    QCOMPARE(text("tape_exact0"), QString("0.787 ms"));
    QCOMPARE(text("tape_taken0"), QString("0.8 ms"));
    QCOMPARE(text("tape_rounding0"), QString("+0.013 ms"));
    QCOMPARE(text("tape_taken1"), QString("0.0 ms"));
    QCOMPARE(text("tape_taken2"), QString("3.7 ms"));
    type("tape_temperature", "-20");
    QCOMPARE(text("tape_exact0"), QString("0.847 ms"));
    QCOMPARE(text("tape_now0"), QString("0.0 ms"));
    headunit::SoundModel::instance().setDelays({12});  // by whatever page
    QCOMPARE(text("tape_now0"), QString("1.2 ms"));
}

void TestBridges::delaysAreOneStep() {
    open("tape");
    QVERIFY(!part("tape_key_apply")->isEnabled());
    const QStringList distances = {"80", "120", "150.5", "170", "200", "210"};
    for (int i = 0; i < distances.size(); ++i) {
        type(QString("tape_cm%1").arg(i), distances[i]);
    }
    QUndoStack &stack = m_unit->desk->context().history.stack();
    const int steps = stack.count();
    press("tape_key_apply");
    QCOMPARE(sound().delay, (std::array<int, 6>{38, 26, 17, 12, 3, 0}));
    QCOMPARE(text("tape_now0"), QString("3.8 ms"));
    QCOMPARE(stack.count(), steps + 1);
    QCOMPARE(stack.undoText(), QString("Tape measure: 5 settings"));
    QVERIFY(!part("tape_key_apply")->isEnabled());
    m_unit->desk->findChild<QAction *>("action_undo")->trigger();
    QCOMPARE(sound().delay, (std::array<int, 6>{}));
    QVERIFY(part("tape_key_apply")->isEnabled());
}

void TestBridges::tooFar() {
    open("tape");
    type("tape_cm5", "500");
    QVERIFY2(text("tape_message").startsWith("A loudspeaker is too near"), qPrintable(text("tape_message")));
    QCOMPARE(text("tape_taken0"), QString("9.9 ms"));
    type("tape_cm5", "5000");  // no car is as large
    QVERIFY(m_panel->findChild<QDoubleSpinBox *>("tape_cm5")->value() <= 1000);
}

void TestBridges::remembersTheDistances() {
    open("tape");
    type("tape_cm3", "123.4");
    type("tape_temperature", "31");
    m_unit->closeDesk();
    open("tape");
    QCOMPARE(m_panel->findChild<QDoubleSpinBox *>("tape_cm3")->value(), 123.4);
    QCOMPARE(m_panel->findChild<QDoubleSpinBox *>("tape_inches3")->value(), 48.6);
    QCOMPARE(m_panel->findChild<QDoubleSpinBox *>("tape_temperature")->value(), 31.0);
}

int TestBridges::run(const QStringList &arguments, QString *out, QString *err) {
    QProcess process;
    process.start(HEADUNIT, QStringList{"--root", m_unit->root.filePath("other")} + arguments);
    if (!process.waitForFinished(600000)) {
        return -1;
    }
    *out = QString::fromUtf8(process.readAllStandardOutput());
    *err = QString::fromUtf8(process.readAllStandardError());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

void TestBridges::program() {
    QString out;
    QString err;
    const QString path = write("room.txt", "Filter 1: ON PK Fc 1000 Hz Gain -6 dB Q 1.2\nDelay: 3 ms\n");
    QCOMPARE(run({"--import", path}, &out, &err), 0);
    QVERIFY2(out.contains("equaliser.live.1k: 0 dB → -6 dB\n"), qPrintable(out));
    QVERIFY2(err.startsWith("headunit: " + path + ": line 2: \"delay\" is left out\nheadunit: " + path +
                            ": what the thirteen bands cannot do of it: 0."),
             qPrintable(err));
    QCOMPARE(run({"--export", m_unit->root.filePath("back.peq")}, &out, &err), 0);
    QCOMPARE(run({"--import", m_unit->root.filePath("back.peq")}, &out, &err), 0);
    QCOMPARE(out, QString("0 values changed\n"));
    QCOMPARE(run({"--export", m_unit->root.filePath("car.frd")}, &out, &err), 0);
    QVERIFY(QFile::exists(m_unit->root.filePath("car-sum.frd")));
    const QString bad = write("bad.txt", "Filter 1: ON PK Fc 1000 Hz Gain -6 dB Q 1.2\nFilter 2: ON PK Fc 1 kHz\n");
    QCOMPARE(run({"--import", bad}, &out, &err), 2);
    QCOMPARE(err, QString("headunit: --import %1: line 2: Gain is missing\n").arg(bad));
    QCOMPARE(out, QString());
}

DESK_TEST_MAIN(TestBridges)
#include "tst_bridges.moc"
