// SPDX-License-Identifier: Apache-2.0
#include "desktest.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/desk/recording/archive.h"
#include "headunit/desk/recording/namescrubber.h"
#include "headunit/desk/recording/touchrecorder.h"
#include "headunit/host/app/deskscripttarget.h"
#include "headunit/host/script/finger.h"
#include "headunit/settings/trace.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
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
    void panelRecordsAndSaves();
    void namesAreReplaced_data();
    void namesAreReplaced();
    void reportNamesNoUser();
    void reportThatCannotBeWritten();

private:
    void answerDialog(const QString &path);
    QString message() const { return m_panel->findChild<QLabel *>("recording_message")->text(); }
    QByteArray unpacked(const QString &archive, const QString &name) const;
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
    headunit::Panel *m_panel = nullptr;
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
    // By the same finger: with other time stamps, what is a double click here would be none when it is replayed.
    const auto openSettings = [&] {
        finger.press(m_unit->place("tile_audiosetting"));
        finger.release();
        finger.wait(200);
    };
    {
        Calls made;
        openSettings();
        for (int i = 1; i < touches; ++i) {
            if (m_unit->unit->place() == headunit::Unit::Home && random.bounded(3) > 0) {
                openSettings();
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

void TestRecording::answerDialog(const QString &path) {
    auto *const dialog = m_panel->findChild<QFileDialog *>("file_dialog");
    QVERIFY(dialog);
    auto *const edit = dialog->findChild<QLineEdit *>("fileNameEdit");
    edit->clear();
    QTest::keyClicks(edit, path);
    QTest::keyClick(edit, Qt::Key_Return);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_unit->pass();
}

void TestRecording::panelRecordsAndSaves() {
    m_panel = m_unit->openDesk("recording")->panel("recording");
    auto *const state = m_panel->findChild<QLabel *>("recording_state");
    auto *const save = m_panel->findChild<QWidget *>("recording_key_save");
    auto *const script = m_panel->findChild<QPlainTextEdit *>("recording_script");
    QCOMPARE(state->text(), QString("Nothing is recorded yet"));
    QVERIFY(!save->isEnabled());
    QTest::mouseClick(m_panel->findChild<QWidget *>("recording_key_record"), Qt::LeftButton);
    m_unit->pass(500);
    QCOMPARE(m_unit->unit->place(), headunit::Unit::Home);
    QVERIFY(m_unit->tap("tile_audiosetting"));
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QVERIFY2(state->text().startsWith("Recording: 2 touches, 0.7 s"), qPrintable(state->text()));
    QVERIFY(script->toPlainText().contains("key_Subwoofer"));
    m_unit->car->activateWindow();
    QTest::keyClick(m_unit->car.get(), Qt::Key_F9);  // with the unit in front
    QCOMPARE(state->text(), QString("2 touches, 0.7 s"));
    QVERIFY(!m_panel->findChild<QAction *>("recording_record")->isChecked());
    QTest::mouseClick(save, Qt::LeftButton);
    answerDialog(m_folder.filePath("kept"));
    QVERIFY(message().startsWith("Saved in "));
    QFile file(m_folder.filePath("kept.js"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString kept = QString::fromUtf8(file.readAll());
    QVERIFY(kept.startsWith("// A recording of the unit"));
    QVERIFY(kept.contains(script->toPlainText().section('\n', -1)));
    // A second one begins anew.
    m_unit->desk->activateWindow();
    m_unit->pass();
    QTest::keyClick(m_unit->desk, Qt::Key_F9);
    QVERIFY2(!script->toPlainText().contains("press("), qPrintable(script->toPlainText()));
    QVERIFY(m_panel->findChild<QAction *>("recording_record")->isChecked());
}

void TestRecording::namesAreReplaced_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *text, const char *expected) { QTest::newRow(text) << text << expected; };
    row("/home/eve/music.wav", "~/music.wav");
    row("/home/evelyn", "/home/evelyn");
    row("/media/eve/stick", "/media/user/stick");
    row("eve_music, EVE", "user_music, user");
    row("level, never, Eve1", "level, never, Eve1");
    row("Eve Adams on nutshell.example.org", "somebody on host");
    row("nutshell: a nutshells", "host: a nutshells");
}

void TestRecording::namesAreReplaced() {
    QFETCH(QString, text);
    QTEST(headunit::withoutNames(text, {"/home/eve", "eve", "Eve Adams", "nutshell.example.org"}), "expected");
}

QByteArray TestRecording::unpacked(const QString &archive, const QString &name) const {
    QProcess process;
    process.start("tar", {"-xzOf", archive, name});
    process.waitForFinished(600000);
    return process.readAllStandardOutput();
}

/// With this machine's own names in what is packed.
void TestRecording::reportNamesNoUser() {
    const headunit::PersonalNames names = headunit::personalNames();
    QVERIFY(!names.home.isEmpty() && !names.user.isEmpty() && !names.host.isEmpty());
    m_panel = m_unit->openDesk("recording")->panel("recording");
    QTest::keyClick(m_unit->desk, Qt::Key_F9);
    QVERIFY(m_unit->tap("tile_audiosetting"));
    QVERIFY(m_unit->tap("key_Subwoofer"));
    QTest::keyClick(m_unit->desk, Qt::Key_F9);
    qWarning("%s/secret of %s at %s", qPrintable(names.home), qPrintable(names.user), qPrintable(names.host));
    m_unit->pass(100);
    auto *const words = m_panel->findChild<QPlainTextEdit *>("recording_words");
    QTest::keyClicks(words, "No bass in " + names.home + "/x, says " + names.user);
    QTest::mouseClick(m_panel->findChild<QWidget *>("recording_key_report"), Qt::LeftButton);
    answerDialog(m_folder.filePath("report"));
    QVERIFY2(message().startsWith("Saved in "), qPrintable(message()));
    const QString archive = m_folder.filePath("report.tar.gz");
    QProcess tar;
    tar.start("tar", {"-tvzf", archive});
    QVERIFY(tar.waitForFinished(600000));
    const QString list = QString::fromUtf8(tar.readAllStandardOutput());
    QCOMPARE(list.count('\n'), 5);
    for (const QString &line : list.split('\n', Qt::SkipEmptyParts)) {
        QVERIFY2(line.section(' ', 1, 1, QString::SectionSkipEmpty) == "0/0", qPrintable(line));  // no owner
    }
    const auto named = [](const QString &text, const QString &name) {
        const QRegularExpression word("\\b" + QRegularExpression::escape(name) + "\\b");
        return text.contains(word);
    };
    for (const char *file : {"problem.txt", "setup.txt", "recording.js", "trace.jsonl", "versions.txt"}) {
        const QString text = QString::fromUtf8(unpacked(archive, QString("report/") + file));
        QVERIFY2(!text.isEmpty(), file);
        QVERIFY2(!text.contains(names.home + '/'), file);
        QVERIFY2(!named(text, names.user), file);
        QVERIFY2(!named(text, names.host), file);
    }
    QCOMPARE(unpacked(archive, "report/problem.txt"), QByteArray("No bass in ~/x, says user\n"));
    const QByteArray trace = unpacked(archive, "report/trace.jsonl");
    QVERIFY(trace.contains("~/secret of user at host"));
    QVERIFY(trace.contains("setSubwoofer"));
    QVERIFY(unpacked(archive, "report/recording.js").contains("key_Subwoofer"));
    QVERIFY(unpacked(archive, "report/setup.txt").contains("subwoofer.on = on\n"));
    QVERIFY(unpacked(archive, "report/versions.txt").contains("headunit: "));
}

void TestRecording::reportThatCannotBeWritten() {
    const QString path = m_folder.filePath("nowhere/report.tar.gz");
    const QString problem = headunit::writeArchive(path, {{"a", "b"}});
    QVERIFY2(problem.startsWith(path + ": "), qPrintable(problem));
    QVERIFY(!QFile::exists(path));
}

DESK_TEST_MAIN(TestRecording)
#include "tst_recording.moc"
