// SPDX-License-Identifier: Apache-2.0
#include "desktest.h"
#include "playermonitor.h"

#include "headunit/desk/meters/meterbar.h"
#include "headunit/desk/meters/meterspanel.h"

#include <QLabel>

#include <cmath>

using headunit::MeterBar;
using headunit::SoundModel;

class TestMetersPanel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void saysThatNothingPlays();
    void showsWhatPlays();
    void beginsWithTheMomentItIsOpened();
    void tooLoud();
    void resetKey();
    void restsAndSaysSo();
    void nothingIsDrawnAnewAtRest();
    void headroom_data();
    void headroom();
    void headroomFollows();
    void followsTheLanguage();

private:
    QString text(const QString &name) const { return m_unit->desk->findChild<QLabel *>("meters_" + name)->text(); }
    /// Plays in steps of a picture each.
    void play(int ms) {
        for (int done = 0; done < ms; done += 30) {
            m_sound->play(30);
            m_unit->pass(33);
        }
    }

    QScopedPointer<UnitOnTheDesk> m_unit;
    QScopedPointer<PlayerMonitor> m_sound;
};

void TestMetersPanel::init() {
    m_unit.reset(new UnitOnTheDesk);
    m_sound.reset(new PlayerMonitor("noise"));
    m_unit->monitor = m_sound.data();
    SoundModel::instance().setFault(headunit::SoundFault::None);
    SoundModel::instance().setChannelLevel(0, 36);
    m_unit->openDesk("meters");
    m_unit->pass(100);
}

void TestMetersPanel::cleanup() {
    m_unit.reset();
    m_sound.reset();
}

void TestMetersPanel::saysThatNothingPlays() {
    QCOMPARE(text("state"), QString("Nothing plays"));
    SoundModel::instance().setFault(headunit::SoundFault::NoServer);
    QVERIFY(text("state").contains("no sound server"));
    SoundModel::instance().setFault(headunit::SoundFault::None);
    m_unit->closeDesk();
    m_unit->monitor = nullptr;
    m_unit->openDesk("meters");
    m_unit->pass(1000);
    QVERIFY(text("state").contains("makes no sound here"));
}

void TestMetersPanel::showsWhatPlays() {
    play(3000);
    QCOMPARE(text("state"), QString("Playing"));
    for (int output = 0; output < 4; ++output) {
        const double highest = text(QString("highest_%1").arg(output)).toDouble();
        const double rms = text(QString("rms_%1").arg(output)).toDouble();
        QVERIFY2(highest < -10 && highest > -30, qPrintable(QString::number(highest)));
        QVERIFY2(rms < highest && rms > highest - 25, qPrintable(QString::number(rms)));
        QCOMPARE(text(QString("overs_%1").arg(output)), QString("0"));
    }
    QCOMPARE(text("highest_4"), QString("–"));  // the subwoofers are off
    QCOMPARE(text("highest_6"), QString("0.0"));
}

/// What was played while nobody looked is not shown.
void TestMetersPanel::beginsWithTheMomentItIsOpened() {
    m_unit->desk->findChild<QDockWidget *>("meters")->hide();
    SoundModel::instance().setChannelLevel(0, 40);
    m_sound->play(2000);
    SoundModel::instance().setChannelLevel(0, 0);
    m_sound->play(1000);
    m_unit->openDesk("meters");
    play(300);
    QVERIFY2(text("highest_0") == "–" || text("highest_0").toDouble() < -60, qPrintable(text("highest_0")));
}

void TestMetersPanel::tooLoud() {
    SoundModel &sound = SoundModel::instance();
    sound.setChannelLevel(0, 40);
    sound.setSourceGain(0, 20);
    sound.setEqType(16);
    for (int band = 0; band < 13; ++band) {
        sound.setCustomEq(band, 24);
    }
    play(3000);
    QVERIFY(text("overs_0").toInt() > 10);
    QCOMPARE(text("overs_4").toInt(), 0);
    QVERIFY2(text("highest_6").toDouble() < -3, qPrintable(text("highest_6")));
    QCOMPARE(text("highest_8").toDouble(), 0.0);
    QVERIFY(text("highest_0").toDouble() <= 0);
}

void TestMetersPanel::resetKey() {
    tooLoud();
    SoundModel::instance().setChannelLevel(0, 0);
    play(3000);
    QVERIFY(text("overs_0").toInt() > 10);
    QTest::mouseClick(m_unit->desk->findChild<QWidget *>("key_meters_reset"), Qt::LeftButton);
    QCOMPARE(text("overs_0"), QString("0"));
    QCOMPARE(text("highest_0"), QString("–"));
    QCOMPARE(text("highest_6"), QString("0.0"));
}

void TestMetersPanel::restsAndSaysSo() {
    play(1000);
    QVERIFY(text("rms_0") != "–");
    m_unit->pass(600);
    QCOMPARE(text("state"), QString("Nothing plays"));
    QCOMPARE(text("rms_0"), QString("–"));
    QVERIFY(text("highest_0") != "–");
    play(100);
    QCOMPARE(text("state"), QString("Playing"));
}

void TestMetersPanel::nothingIsDrawnAnewAtRest() {
    play(300);
    m_unit->pass(2000);
    auto *const bar = m_unit->desk->findChild<MeterBar *>("meters_bar_0");
    const int paints = bar->paints();
    m_unit->pass(5000);
    QCOMPARE(bar->paints(), paints);
    play(300);
    QVERIFY(bar->paints() > paints);
}

void TestMetersPanel::headroom_data() {
    QTest::addColumn<int>("level");
    QTest::addColumn<int>("band");  // of 1 kHz; 12 is flat
    QTest::addColumn<QString>("begin");
    QTest::newRow("quiet") << 30 << 12 << "Headroom of 15.0 dB";
    QTest::newRow("just full scale") << 40 << 12 << "Headroom of 0.0 dB";
    QTest::newRow("too loud") << 40 << 18 << "+6.0 dB at";
    QTest::newRow("as much room as the band takes") << 36 << 18 << "Headroom of 0.0 dB";
    QTest::newRow("off") << 0 << 18 << "The main volume is 0";
}

void TestMetersPanel::headroom() {
    QFETCH(int, level);
    QFETCH(int, band);
    QFETCH(QString, begin);
    SoundModel &sound = SoundModel::instance();
    sound.setChannelLevel(0, level);
    sound.setEqType(16);
    for (int i = 0; i < 13; ++i) {
        sound.setCustomEq(i, i == 6 ? band : 12);
    }
    m_unit->pass(200);
    QVERIFY2(text("headroom").startsWith(begin), qPrintable(text("headroom")));
    if (begin.startsWith('+')) {
        QVERIFY2(text("headroom").endsWith("Hz, FL: turn down by 6.0 dB or expect the limiter"),
                 qPrintable(text("headroom")));
    }
}

void TestMetersPanel::headroomFollows() {
    SoundModel &sound = SoundModel::instance();
    sound.setChannelLevel(0, 30);
    m_unit->pass(99);
    QVERIFY(text("headroom").startsWith("Headroom of 15.0 dB"));
    sound.setMuted(true);  // only for now
    m_unit->pass(99);
    QVERIFY(text("headroom").startsWith("Headroom of 15.0 dB"));
}

void TestMetersPanel::followsTheLanguage() {
    m_unit->unit->setLanguage("de");
    m_unit->pass(100);
    QCOMPARE(text("state"), QString("Nichts spielt"));
    QVERIFY(text("headroom").startsWith("Reserve"));
}

DESK_TEST_MAIN(TestMetersPanel)
#include "tst_meterspanel.moc"
