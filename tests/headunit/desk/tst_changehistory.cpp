// SPDX-License-Identifier: Apache-2.0
#include "desktest.h"

#include "audioservice.h"
#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/setups/unitstate.h"
#include "mcuservice.h"

#include <QAction>
#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QToolButton>

using headunit::ChangeHistory;
using headunit::SettingsMap;
using headunit::SoundState;

class TestChangeHistory : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_unit.reset(); }
    void aTouchIsAStep();
    void aDragIsOneStep();
    void showingAPageIsNoStep();
    void thereAndBackIsNoStep();
    void resetRestoresEverything();
    void redoOfAReset();
    void flatIsAStep_data();
    void flatIsAStep();
    void visiblePageShowsIt_data();
    void visiblePageShowsIt();
    void tabBarFollowsDefeat();
    void undoWithTheKeyboard();
    void noticeWithAKey();
    void keptOverARestart();
    void changedWhileClosed();
    void lastFifty();
    void damagedFile_data();
    void damagedFile();
    void whatPlaysStays();

private:
    ChangeHistory &history() { return m_unit->desk->context().history; }
    static SettingsMap keys() { return headunit::audioStore().values(); }
    static SoundState sound() { return headunit::SoundModel::instance().state(); }
    void undo() {
        m_unit->desk->findChild<QAction *>("action_undo")->trigger();
        m_unit->pass();
    }
    void redo() {
        m_unit->desk->findChild<QAction *>("action_redo")->trigger();
        m_unit->pass();
    }
    /// Several pages are used, so that a reset has something to take away.
    void useEverything();
    bool reset();

    QScopedPointer<UnitOnTheDesk> m_unit;
};

void TestChangeHistory::init() {
    m_unit.reset(new UnitOnTheDesk);
    m_unit->openDesk();
}

void TestChangeHistory::useEverything() {
    for (const char *name :
         {"key_Subwoofer", "key_subvol_next", "key_Phase_180", "Key_balance_left", "key_crossover", "key_freq_plus",
          "key_freq_plus", "key_slope_plus", "key_level_minus", "key_rear", "key_freq_plus", "key_timing"}) {
        QVERIFY2(m_unit->tap(name), name);
    }
    headunit::audioStore().set("timing/DATA_TYPE0", 12);
    mcu::McuService::instance()->setAudioVolumeValue(3, 22);
    QVERIFY(m_unit->tap("key_factoryeq"));
    QVERIFY(m_unit->tap("key_general"));
    m_unit->pass();
}

bool TestChangeHistory::reset() {
    return m_unit->tap("key_advanced") && m_unit->tap("Key_005_res_audio") && m_unit->tap("Key_accept");
}

void TestChangeHistory::aTouchIsAStep() {
    QCOMPARE(history().stack().count(), 0);
    const SettingsMap before = keys();
    const SoundState soundBefore = sound();
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QCOMPARE(history().stack().undoText(), QString("subwoofer.on: off → on"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    QCOMPARE(history().stack().count(), 2);
    QCOMPARE(history().stack().undoText(), QString("subwoofer.level: 3 steps → 4 steps"));
    const SettingsMap after = keys();
    const SoundState soundAfter = sound();
    undo();
    QCOMPARE(sound().subwooferLevel, 3);
    undo();
    QCOMPARE(keys(), before);
    QVERIFY(sound() == soundBefore);
    redo();
    redo();
    QCOMPARE(keys(), after);
    QVERIFY(sound() == soundAfter);
}

void TestChangeHistory::aDragIsOneStep() {
    QVERIFY(m_unit->tap("key_eq"));
    const int before = history().stack().count();
    QPoint from;
    for (QWidget *widget : m_unit->car->findChildren<QWidget *>()) {
        if (widget->isVisible() && QByteArray(widget->metaObject()->className()).contains("SliderBarWidget")) {
            from = widget->mapTo(m_unit->car.get(), widget->rect().center());
            break;
        }
    }
    QVERIFY(!from.isNull());
    const SettingsMap keysBefore = keys();
    m_unit->press(from);
    for (int y = 5; y <= 80; y += 5) {
        m_unit->move(from - QPoint(0, y));
        m_unit->pass(100);  // the page sends while the finger moves
    }
    m_unit->release(from - QPoint(0, 80));
    m_unit->pass(1000);
    QVERIFY(keys() != keysBefore);
    QCOMPARE(history().stack().count(), before + 1);
    undo();
    QCOMPARE(keys(), keysBefore);
}

/// A page that is shown for the first time writes what it reads by default: nobody changed anything.
void TestChangeHistory::showingAPageIsNoStep() {
    const SettingsMap before = keys();
    for (const char *name : {"key_eq", "key_crossover", "key_timing", "key_factoryeq", "key_general"}) {
        QVERIFY(m_unit->tap(name));
    }
    QVERIFY(keys() != before);
    QCOMPARE(history().stack().count(), 0);
}

void TestChangeHistory::thereAndBackIsNoStep() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    const int before = history().stack().count();
    // A finger that is down all the time, and ends where it began.
    const QPoint place = m_unit->place("key_advanced");
    m_unit->press(place);
    for (const int level : {5, 6, 4}) {
        headunit::audioStore().set("subwooferLevel", level);
        qvaudio::AudioService::instance()->doBeep(0);
        m_unit->pass(100);
    }
    QCOMPARE(history().stack().count(), before + 1);
    headunit::audioStore().set("subwooferLevel", QVariant());
    qvaudio::AudioService::instance()->doBeep(0);
    m_unit->pass(100);
    QCOMPARE(history().stack().count(), before);
}

void TestChangeHistory::resetRestoresEverything() {
    useEverything();
    const SettingsMap before = keys();
    const SoundState soundBefore = sound();
    QVERIFY(reset());
    QVERIFY(keys() != before);
    const QString step = history().stack().undoText();
    QVERIFY2(step.startsWith("Reset: "), qPrintable(step));
    m_unit->pass(3000);
    undo();
    QCOMPARE(keys(), before);
    QVERIFY(sound() == soundBefore);
}

void TestChangeHistory::redoOfAReset() {
    useEverything();
    QVERIFY(reset());
    m_unit->pass(3000);
    const SettingsMap after = keys();
    const SoundState soundAfter = sound();  // not what the keys say: a reset sends other source gains than it stores
    undo();
    redo();
    QCOMPARE(keys(), after);
    QVERIFY(sound() == soundAfter);
}

void TestChangeHistory::flatIsAStep_data() {
    QTest::addColumn<QByteArray>("tab");
    QTest::addColumn<QByteArray>("key");
    QTest::addColumn<QString>("text");
    QTest::newRow("crossover") << QByteArray("key_crossover") << QByteArray("key_freq_plus") << "Crossover flat: ";
    QTest::newRow("timing") << QByteArray("key_timing") << QByteArray() << "Delays flat: ";
}

void TestChangeHistory::flatIsAStep() {
    QFETCH(QByteArray, tab);
    QFETCH(QByteArray, key);
    QFETCH(QString, text);
    headunit::audioStore().set("timing/DATA_TYPE1", 7);
    QVERIFY(m_unit->tap(tab));
    QVERIFY(key.isEmpty() || m_unit->tap(key));
    m_unit->pass();
    const SettingsMap before = keys();
    QVERIFY(m_unit->tap("AudiosettingsTop/Key_update") || m_unit->tap("Key_update"));
    const QString step = history().stack().undoText();
    QVERIFY2(step.startsWith(text), qPrintable(step));
    undo();
    QCOMPARE(keys(), before);
}

void TestChangeHistory::visiblePageShowsIt_data() {
    QTest::addColumn<QByteArrayList>("way");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("general") << QByteArrayList() << QByteArray("key_Subwoofer");
    QTest::newRow("crossover") << QByteArrayList{"key_crossover"} << QByteArray("key_freq_plus");
    QTest::newRow("crossover slope") << QByteArrayList{"key_crossover"} << QByteArray("key_slope_plus");
    QTest::newRow("settings root") << QByteArrayList{"key_advanced"} << QByteArray("Key_001_loudness");
    QTest::newRow("equaliser") << QByteArrayList{"key_eq"} << QByteArray();
    QTest::newRow("volumes") << QByteArrayList{"key_advanced", "Key_004_vol_settings"} << QByteArray();
}

/// Undo shows the page as it was, redo as it became, without a touch of the unit.
void TestChangeHistory::visiblePageShowsIt() {
    QFETCH(QByteArrayList, way);
    QFETCH(QByteArray, key);
    for (const QByteArray &name : way) {
        QVERIFY(m_unit->tap(name));
    }
    m_unit->pass(2000);
    const auto picture = [this] { return m_unit->car->screen()->grab().toImage(); };
    const QImage before = picture();
    if (!key.isEmpty()) {
        QVERIFY(m_unit->tap(key));
    } else if (way.last() == "key_eq") {
        history().change("Set-up", -1, {{"audioservice/eqtype", 16}, {"eq0", 24}, {"eq3", 2}}, nullptr);
    } else {
        history().change("Set-up", -1, {{"inputgain0", 30}, {"inputgain2", 5}}, nullptr);
    }
    m_unit->pass(2000);
    const QImage after = picture();
    QVERIFY(before != after);
    undo();
    QCOMPARE(picture(), before);
    redo();
    QCOMPARE(picture(), after);
}

void TestChangeHistory::tabBarFollowsDefeat() {
    const auto enabled = [this] { return m_unit->car->findChild<QWidget *>("key_crossover")->isEnabled(); };
    QVERIFY(enabled());
    QVERIFY(m_unit->tap("key_defeat"));
    QVERIFY(!enabled());
    QVERIFY(sound().defeat);
    undo();
    QVERIFY(enabled());
    QVERIFY(!sound().defeat);
}

void TestChangeHistory::undoWithTheKeyboard() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    const SettingsMap after = keys();
    // In the desk's window as well as in the unit's.
    for (QWidget *window : {static_cast<QWidget *>(m_unit->desk), static_cast<QWidget *>(m_unit->car.get())}) {
        window->activateWindow();
        QTest::keyClick(window, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(keys() != after);
        QTest::keyClick(window, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(keys(), after);
    }
}

void TestChangeHistory::noticeWithAKey() {
    useEverything();
    auto *const key = m_unit->desk->findChild<QToolButton *>("key_undo");
    const SettingsMap before = keys();
    QVERIFY(reset());
    const QString text = m_unit->desk->findChild<QLabel *>("last_step")->text();
    QVERIFY2(QRegularExpression("^Reset: \\d+ settings$").match(text).hasMatch(), qPrintable(text));
    QVERIFY(key->isVisible());
    QTest::mouseClick(key, Qt::LeftButton);
    QCOMPARE(keys(), before);
}

void TestChangeHistory::keptOverARestart() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    undo();
    m_unit->closeDesk();
    m_unit->openDesk();
    QCOMPARE(history().stack().count(), 3);
    QCOMPARE(history().stack().undoText(), QString("subwoofer.level: 3 steps → 4 steps"));
    redo();
    QCOMPARE(keys().value("subwooferLevel"), QVariant(5));
    QCOMPARE(sound().subwooferLevel, 5);
    undo();
    undo();
    undo();
    QVERIFY(!keys().contains("subwooferLevel"));
    QVERIFY(!history().stack().canUndo());
    // The first touch of the new run is a step of its own.
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QCOMPARE(history().stack().count(), 1);
}

void TestChangeHistory::changedWhileClosed() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    m_unit->closeDesk();
    const SettingsMap before = keys();
    QVERIFY(m_unit->tap("key_subvol_next"));
    QVERIFY(reset());
    m_unit->pass(3000);
    m_unit->openDesk();
    QVERIFY(history().stack().undoText().startsWith("Changed while the desk was closed: "));
    undo();
    QCOMPARE(keys(), before);
}

void TestChangeHistory::lastFifty() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    for (int i = 0; i < 60; ++i) {
        QVERIFY(m_unit->tap(i % 2 ? "key_subvol_prev" : "key_subvol_next"));
    }
    QCOMPARE(history().stack().count(), 50);
    m_unit->closeDesk();
    m_unit->openDesk();
    QCOMPARE(history().stack().count(), 50);
}

void TestChangeHistory::damagedFile_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not text") << QByteArray("\0\1\2", 3);
    QTest::newRow("cut off") << QByteArray("{\"version\":1,\"steps\":[{\"cause\"");
    QTest::newRow("another version") << QByteArray("{\"version\":2}");
}

void TestChangeHistory::damagedFile() {
    QFETCH(QByteArray, text);
    m_unit->closeDesk();
    QFile file(m_unit->root.filePath("desk/history.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    const SettingsMap before = keys();
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression("history.json: not a history of changes; begun anew"));
    m_unit->openDesk();
    QCOMPARE(history().stack().count(), 0);
    QCOMPARE(keys(), before);
}

void TestChangeHistory::whatPlaysStays() {
    QVERIFY(m_unit->tap("key_Subwoofer"));
    m_unit->unit->setSource(3);
    headunit::SoundModel::instance().setMuted(true);
    undo();
    QCOMPARE(sound().activeSource, 3);
    QVERIFY(sound().muted);
    headunit::SoundModel::instance().setMuted(false);
    m_unit->unit->setSource(0);
}

DESK_TEST_MAIN(TestChangeHistory)
#include "tst_changehistory.moc"
