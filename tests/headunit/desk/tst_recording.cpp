// SPDX-License-Identifier: Apache-2.0
#include "desktest.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/recording/touchrecorder.h"
#include "headunit/host/app/deskscripttarget.h"
#include "headunit/host/script/finger.h"
#include "headunit/settings/trace.h"

#include <QAction>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <iterator>

extern "C" int headunitRunScript(headunit::ScriptTarget *target, const QString *file, const QString *folder);

using headunit::Finger;
using headunit::TouchRecorder;

namespace {

void moveTime(int ms) {
    headunit::VirtualTime::instance()->advance(ms);
}

/// The calls across the contract while it lives.
class Calls {
public:
    Calls() : m_listener([this](const headunit::TraceEntry &entry) { list << entry.call; }) {}
    QStringList list;

private:
    headunit::TraceListener m_listener;
};

}  // namespace

class TestRecording : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() { m_unit.reset(new UnitOnTheDesk); }
    void cleanup() { m_unit.reset(); }
    void replayGivesTheSameCalls_data();
    void replayGivesTheSameCalls();
    void beginsAsAfterPowerUp();
    void namesWhatIsTouched();
    void keysOfTheKeyboard();
    void undoMeanwhileIsPartOfIt();
    void objectThatIsGone();

private:
    struct Recorded {
        QString script;
        QStringList calls;
        QStringList header;  ///< what the script's beginning alone calls
        headunit::SettingsMap keys;
        headunit::SoundState sound;
    };
    headunit::DeskScriptTarget target() { return {*m_unit->car, *m_unit->unit, moveTime}; }
    void touchAtRandom(Finger &finger, QRandomGenerator &random);
    int replay(const QString &script, QStringList *calls);
    static QString beginning(const QString &script);

    QScopedPointer<UnitOnTheDesk> m_unit;
    QTemporaryDir m_folder;
};

/// The lines before the first touch.
QString TestRecording::beginning(const QString &script) {
    return script.left(script.indexOf("\n\n") + 1);
}

int TestRecording::replay(const QString &script, QStringList *calls) {
    QFile file(m_folder.filePath("recording.js"));
    if (!file.open(QIODevice::WriteOnly) || file.write(script.toUtf8()) < 0) {
        return -1;
    }
    file.close();
    m_unit.reset();
    m_unit.reset(new UnitOnTheDesk(UnitOnTheDesk::AtHome));
    headunit::DeskScriptTarget unit = target();
    Calls made;
    const QString name = file.fileName();
    const QString folder = m_folder.path();
    const int result = headunitRunScript(&unit, &name, &folder);
    *calls = made.list;
    return result;
}

void TestRecording::touchAtRandom(Finger &finger, QRandomGenerator &random) {
    // The strip of hard keys is part of it, the key that opens the desk is not.
    const auto anywhere = [&random] { return QPoint(random.bounded(1090), random.bounded(560)); };
    const auto key = [this, &random] {
        QList<QWidget *> keys;
        for (QWidget *widget : m_unit->car->findChildren<QWidget *>()) {
            if (widget->isVisible() && widget->objectName().startsWith("key_", Qt::CaseInsensitive) &&
                widget->objectName() != "key_desk" &&
                m_unit->car->rect().contains(widget->mapTo(m_unit->car.get(), widget->rect().center()))) {
                keys << widget;
            }
        }
        QWidget *const chosen = keys.isEmpty() ? m_unit->screen() : keys[random.bounded(keys.size())];
        return chosen->mapTo(m_unit->car.get(), chosen->rect().center());
    };
    const int kind = random.bounded(20);
    if (kind == 0) {
        static const int all[] = {Qt::Key_Plus, Qt::Key_Minus, Qt::Key_M, Qt::Key_Escape, Qt::Key_Home, Qt::Key_A};
        const int pressed = all[random.bounded(int(std::size(all)))];
        finger.key(pressed, true);
        finger.wait(random.bounded(100));
        finger.key(pressed, false);
    } else {
        finger.press(kind < 14 ? key() : anywhere());
        finger.wait(kind == 1 ? 1600 : random.bounded(120));
        if (kind > 15) {
            for (int i = random.bounded(1, 6); i > 0; --i) {
                finger.slideTo(anywhere());
                finger.wait(random.bounded(40));
            }
        }
        if (kind == 19) {
            finger.releaseAt(anywhere());
        } else {
            finger.release();
        }
    }
    finger.wait(random.bounded(1, 400));
}

void TestRecording::replayGivesTheSameCalls_data() {
    QTest::addColumn<int>("seed");
    for (const int seed : {1, 2}) {
        QTest::addRow("session %d", seed) << seed;
    }
}

/// 500 random touches, on a unit that was used before.
void TestRecording::replayGivesTheSameCalls() {
    QFETCH(int, seed);
    constexpr int before = 60;
    constexpr int touches = 500;
    QRandomGenerator random(static_cast<quint32>(seed));
    headunit::DeskScriptTarget unit = target();
    Finger finger(unit);
    for (int i = 0; i < before; ++i) {
        touchAtRandom(finger, random);
    }
    m_unit->openDesk("console");
    TouchRecorder recorder(m_unit->desk->context());
    recorder.start();
    m_unit->pass();
    QStringList calls;
    QString script;
    headunit::SettingsMap keys;
    headunit::SoundState sound;
    {
        Calls made;
        QVERIFY(m_unit->tap("tile_audiosetting"));
        for (int i = 1; i < touches; ++i) {
            if (m_unit->unit->place() == headunit::Unit::Home && random.bounded(3) > 0) {
                m_unit->tap("tile_audiosetting");
            } else {
                touchAtRandom(finger, random);
            }
        }
        recorder.stop();
        script = recorder.script();
        calls = made.list;
    }
    keys = headunit::audioStore().values();
    sound = headunit::SoundModel::instance().state();
    QCOMPARE(recorder.touches(), touches);
    QVERIFY2(calls.size() > touches, qPrintable(QString::number(calls.size())));
    QStringList header;
    QCOMPARE(replay(beginning(script), &header), 0);
    QStringList replayed;
    QCOMPARE(replay(script, &replayed), 0);
    const QStringList expected = header + calls;
    for (int i = 0; i < qMin(expected.size(), replayed.size()); ++i) {
        QVERIFY2(replayed[i] == expected[i],
                 qPrintable(QString("call %1: %2 instead of %3").arg(i).arg(replayed[i], expected[i])));
    }
    QCOMPARE(replayed.size(), expected.size());
    QCOMPARE(headunit::audioStore().values(), keys);
    QVERIFY(headunit::SoundModel::instance().state() == sound);
}

void TestRecording::beginsAsAfterPowerUp() {
    m_unit->unit->startCall();
    m_unit->openDesk("console");
    TouchRecorder recorder(m_unit->desk->context());
    QVERIFY(!recorder.isRecording());
    recorder.start();
    QVERIFY(recorder.isRecording());
    m_unit->pass(200);
    QCOMPARE(m_unit->unit->place(), headunit::Unit::Home);
    QVERIFY(m_unit->tap("tile_audiosetting"));
    QVERIFY(m_unit->place("key_Subwoofer").x() > 0);
    recorder.stop();
    const QString script = recorder.script();
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QCOMPARE(recorder.script(), script);
    QCOMPARE(recorder.touches(), 1);
}

void TestRecording::namesWhatIsTouched() {
    m_unit->openDesk("console");
    TouchRecorder recorder(m_unit->desk->context());
    recorder.start();
    m_unit->pass(1000);
    QVERIFY(m_unit->tap("tile_audiosetting"));
    m_unit->press(m_unit->place("key_Subwoofer"));
    recorder.stop();
    m_unit->release(m_unit->place("key_Subwoofer"));
    const QStringList lines = recorder.script().split('\n', Qt::SkipEmptyParts);
    const auto has = [&lines](const char *pattern) {
        return lines.indexOf(QRegularExpression(QRegularExpression::anchoredPattern(pattern))) >= 0;
    };
    QVERIFY2(has("wait\\(1000\\); press\\(\"(.*/)?tile_audiosetting\", \\d+, \\d+\\);"), qPrintable(recorder.script()));
    QVERIFY(has("wait\\(200\\); press\\(\"(.*/)?key_Subwoofer\", \\d+, \\d+\\);"));
    QCOMPARE(lines.last(), QString("release();"));  // the finger was down at the end
}

void TestRecording::keysOfTheKeyboard() {
    m_unit->openDesk("console");
    TouchRecorder recorder(m_unit->desk->context());
    recorder.start();
    m_unit->pass();
    const int level = headunit::SoundModel::instance().state().channelLevel[0];
    for (const int key : {Qt::Key_Plus, Qt::Key_VolumeUp, Qt::Key_F12}) {
        QTest::keyClick(m_unit->car->windowHandle(), Qt::Key(key));
    }
    recorder.stop();
    QCOMPARE(headunit::SoundModel::instance().state().channelLevel[0], level + 2);
    QCOMPARE(recorder.touches(), 2);
    QVERIFY(!recorder.script().contains("F12"));
    QStringList calls;
    QCOMPARE(replay(recorder.script(), &calls), 0);
    QCOMPARE(headunit::SoundModel::instance().state().channelLevel[0], level + 2);
}

void TestRecording::undoMeanwhileIsPartOfIt() {
    m_unit->openDesk("console");
    TouchRecorder recorder(m_unit->desk->context());
    recorder.start();
    m_unit->pass();
    QVERIFY(m_unit->tap("tile_audiosetting"));
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QVERIFY(m_unit->tap("key_subvol_next"));
    QCOMPARE(headunit::SoundModel::instance().state().subwooferLevel, 4);
    m_unit->desk->findChild<QAction *>("action_undo")->trigger();
    QVERIFY(m_unit->tap("key_Phase_180"));
    recorder.stop();
    const headunit::SettingsMap keys = headunit::audioStore().values();
    QStringList calls;
    QCOMPARE(replay(recorder.script(), &calls), 0);
    QCOMPARE(headunit::SoundModel::instance().state().subwooferLevel, 3);
    QCOMPARE(headunit::SoundModel::instance().state().subwooferPhase, 1);
    QCOMPARE(headunit::audioStore().values(), keys);
}

void TestRecording::objectThatIsGone() {
    m_unit->openDesk("console");
    TouchRecorder recorder(m_unit->desk->context());
    recorder.start();
    m_unit->pass();
    QVERIFY(m_unit->tap("tile_audiosetting"));
    QVERIFY(m_unit->tap("key_Subwoofer"));
    recorder.stop();
    QString script = recorder.script();
    const int line = script.left(script.indexOf("key_Subwoofer")).count('\n') + 1;
    script.replace("key_Subwoofer", "key_Woofer");
    QFile file(m_folder.filePath("gone.js"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(script.toUtf8());
    file.close();
    QProcess process;
    process.start(HEADUNIT, {"--root", m_folder.filePath("other"), "--script", file.fileName()});
    QVERIFY(process.waitForFinished(600000));
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QString("%1:%2: Error: nothing named \"key_Woofer\" is visible\n").arg(file.fileName()).arg(line));
}

DESK_TEST_MAIN(TestRecording)
#include "tst_recording.moc"
