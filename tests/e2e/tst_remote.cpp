// SPDX-License-Identifier: Apache-2.0
// Remote control of the built unit, by the built program and by controllers that behave badly.

#include "tests/headunit/audio/live/soundserver.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>
#include <unistd.h>

class TestRemote : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void isOffByDefault();
    void belongsToTheOwnerAlone();
    void doesCommands();
    void failsCommands();
    void touchesTheUnit();
    void printsAndTakesPictures();
    void takesCommandsFromStandardInput();
    void fingerOfAControllerThatLeftIsLifted();
    void waitOfAControllerThatLeftEnds();
    void refusesASecondController();
    void refusesAFlood();
    void refusesAMegabyte();
    void refusesWhatIsNoCommand();
    void endsACommandThatComputesForever();
    void refusesASecondUnitOnTheSameSettings();
    void startsAfterAUnitThatWasKilled();
    void endsWithAnUnfinishedCommand();
    void thousandCommandsWithoutADropout();

private:
    void start(const QStringList &arguments = {"--remote", "--play", "silence"});
    void startUnit(const QStringList &arguments);
    int control(const QStringList &commands, const QByteArray &input = QByteArray());
    QString socket() const;
    std::unique_ptr<QLocalSocket> connected() const;
    static QByteArray line(const QString &command);
    static QJsonObject answer(QLocalSocket &controller);
    bool alive() { return control({"1 + 1"}) == 0 && m_out == "2\n"; }

    std::unique_ptr<QTemporaryDir> m_folder;
    QProcessEnvironment m_environment;
    std::unique_ptr<QProcess> m_unit;
    QByteArray m_out;
    QByteArray m_err;
};

namespace {

constexpr int patience = 240000;  // ms
const QString unreachable = QStringLiteral("headunit: --control: no unit with these settings runs with --remote\n");

}  // namespace

void TestRemote::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert("QT_QPA_PLATFORM", "offscreen");
    m_environment.insert("XDG_RUNTIME_DIR", m_folder->path());
    m_environment.insert("PULSE_SERVER", "unix:" + m_folder->filePath("nothing"));
}

void TestRemote::cleanup() {
    if (m_unit && m_unit->state() != QProcess::NotRunning) {
        m_unit->terminate();
        QVERIFY(m_unit->waitForFinished(patience));
        QCOMPARE(m_unit->exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_unit->exitCode(), 0);
    }
    m_unit.reset();
}

void TestRemote::startUnit(const QStringList &arguments) {
    m_unit = std::make_unique<QProcess>();
    m_unit->setProcessEnvironment(m_environment);
    m_unit->start(HEADUNIT, QStringList{"--root", m_folder->filePath("root"), "--open", "audiosetting"} + arguments);
}

void TestRemote::start(const QStringList &arguments) {
    startUnit(arguments);
    const auto reached = [this] { return control({"null"}) == 0; };
    QTRY_VERIFY2_WITH_TIMEOUT(reached(), m_err.constData(), patience);
}

int TestRemote::control(const QStringList &commands, const QByteArray &input) {
    int result = -1;
    for (const QString &command : commands) {
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(HEADUNIT, {"--root", m_folder->filePath("root"), "--control", command});
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(patience)) {
            return -1;
        }
        m_out = process.readAllStandardOutput();
        m_err = process.readAllStandardError();
        result = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    return result;
}

QString TestRemote::socket() const {
    const QDir folder(m_folder->filePath("headunit"));
    const QStringList found = folder.entryList({"*.socket"}, QDir::System);
    return found.size() == 1 ? folder.filePath(found.first()) : QString();
}

std::unique_ptr<QLocalSocket> TestRemote::connected() const {
    auto controller = std::make_unique<QLocalSocket>();
    controller->connectToServer(socket());
    return controller->waitForConnected(patience) ? std::move(controller) : nullptr;
}

QByteArray TestRemote::line(const QString &command) {
    return QJsonDocument(QJsonObject{{"command", command}}).toJson(QJsonDocument::Compact) + '\n';
}

QJsonObject TestRemote::answer(QLocalSocket &controller) {
    while (!controller.canReadLine()) {
        if (!controller.waitForReadyRead(patience)) {
            return {};
        }
    }
    return QJsonDocument::fromJson(controller.readLine()).object();
}

void TestRemote::isOffByDefault() {
    startUnit({"--play", "silence", "--trace"});
    QTRY_VERIFY_WITH_TIMEOUT((m_out += m_unit->readAllStandardOutput()).contains("onEnter"), patience);
    QCOMPARE(socket(), QString());
    QCOMPARE(control({"home()"}), 2);
    QCOMPARE(QString::fromUtf8(m_err), unreachable);
}

void TestRemote::belongsToTheOwnerAlone() {
    start();
    struct stat status {};
    QCOMPARE(stat(socket().toLocal8Bit(), &status), 0);
    QVERIFY(S_ISSOCK(status.st_mode));
    QCOMPARE(status.st_uid, geteuid());
    QCOMPARE(int(status.st_mode & (S_IRWXG | S_IRWXO)), 0);
    QCOMPARE(stat(m_folder->filePath("headunit").toLocal8Bit(), &status), 0);
    QCOMPARE(int(status.st_mode & (S_IRWXG | S_IRWXO)), 0);
    // A folder that others may look into is not used: they could put a socket of theirs there.
    cleanup();
    QCOMPARE(chmod(m_folder->filePath("headunit").toLocal8Bit(), 0755), 0);
    startUnit({"--remote", "--play", "silence"});
    QVERIFY(m_unit->waitForFinished(patience));
    QCOMPARE(m_unit->exitCode(), 2);
    QCOMPARE(QString::fromUtf8(m_unit->readAllStandardError()),
             QString("headunit: --remote: %1: there is no such folder of yours alone\n")
                 .arg(m_folder->filePath("headunit")));
    QCOMPARE(control({"home()"}), 2);
    QVERIFY(m_err.contains("there is no such folder of yours alone"));
}

void TestRemote::doesCommands() {
    const struct {
        const char *command;
        const char *printed;
    } rows[] = {
        {"6 * 7", "42\n"},
        {"'a' + \"b\"", "ab\n"},
        {"undefined", ""},
        {"null", "null\n"},
        {"1 < 2", "true\n"},
        {"({a: [1, 2]})", "{\"a\":[1,2]}\n"},
        {"var a = 1;\na + 1", "2\n"},
        {"setStore('subwooferLevel', 7); store('subwooferLevel')", "7\n"},
        {"volume(0, 12); sound().channelLevel[0]", "12\n"},
        {"'\u00e4\u65e5'", "\u00e4\u65e5\n"},
        {"wait(30); 'then'", "then\n"},
    };
    start();
    for (const auto &row : rows) {
        QVERIFY2(control({row.command}) == 0, m_err.constData());
        QCOMPARE(QString::fromUtf8(m_out), QString(row.printed));
        QCOMPARE(m_err, QByteArray());
    }
}

void TestRemote::failsCommands() {
    const struct {
        const char *command;
        const char *reason;
    } rows[] = {
        {"tap('key_nowhere')", "Error: nothing named \"key_nowhere\" is visible"},
        {"expect(1 === 2, 'one is not two')", "Error: one is not two"},
        {"tap(", "SyntaxError: Expected token `)'"},
        {"throw 5", "5"},
        {"throw undefined", "undefined"},
        {"throw new Error('a\\nb')", "Error: a b"},
        {"reboot()", "ReferenceError: reboot is not defined"},
        {"var o = {}; o.o = o; o", "TypeError: Type error"},
        {"'x'.repeat(2000000)", "the result is longer than 1024 KiB"},
    };
    start();
    for (const auto &row : rows) {
        QCOMPARE(control({row.command}), 1);
        QCOMPARE(QString::fromUtf8(m_err), QString("headunit: --control: %1\n").arg(row.reason));
        QCOMPARE(m_out, QByteArray());
        QVERIFY(alive());
    }
}

void TestRemote::touchesTheUnit() {
    start();
    QCOMPARE(control({"sound().subwooferLevel"}), 0);
    QCOMPARE(m_out, QByteArray("0\n"));
    QCOMPARE(control({"tap('key_Subwoofer')", "tap('key_subvol_next')",
                      "[sound().subwooferLevel, get('txt_vol_level', 'text')]"}),
             0);
    QCOMPARE(m_out, QByteArray("[4,\"4\"]\n"));
    QCOMPARE(control({"language('de'); home(); open('audiosetting')"}), 0);
}

void TestRemote::printsAndTakesPictures() {
    start();
    QCOMPARE(control({"log('seen'); shot('seen.png', 'the page'); 5"}), 0);
    QCOMPARE(m_out, QByteArray("seen\nseen.png  the page\n5\n"));
    QVERIFY(QFile::exists(m_folder->filePath("seen.png")));  // beside the controller, not the unit
}

void TestRemote::takesCommandsFromStandardInput() {
    start();
    QCOMPARE(control({"-"}, "var n = 1\nn += 1\npress('key_Subwoofer')\nrelease()\nsound().subwooferLevel\n"), 0);
    QCOMPARE(m_out, QByteArray("2\n3\n"));
    QCOMPARE(control({"-"}, "1\ntap('nowhere')\n2\n"), 1);  // ends with the first one that fails
    QCOMPARE(m_out, QByteArray("1\n"));
    QCOMPARE(control({"-"}, ""), 0);
}

void TestRemote::fingerOfAControllerThatLeftIsLifted() {
    start();
    QCOMPARE(control({"press('key_Subwoofer'); get('key_Subwoofer', 'down')"}), 0);
    QCOMPARE(m_out, QByteArray("true\n"));
    QCOMPARE(control({"get('key_Subwoofer', 'down')"}), 0);
    QCOMPARE(m_out, QByteArray("false\n"));
    QCOMPARE(control({"tap('key_Subwoofer')"}), 0);
}

void TestRemote::waitOfAControllerThatLeftEnds() {
    start();
    const auto controller = connected();
    QVERIFY(controller);
    controller->write(line("log('waits'); wait(100000000); setStore('subwooferLevel', 9)"));
    QCOMPARE(answer(*controller).value("printed").toString(), QString("waits"));
    controller->abort();
    const auto free = [this] { return control({"store('subwooferLevel') === 9"}) == 0; };
    QTRY_VERIFY2_WITH_TIMEOUT(free(), m_err.constData(), patience);
    QCOMPARE(m_out, QByteArray("false\n"));
}

void TestRemote::refusesASecondController() {
    start();
    const auto controller = connected();
    QVERIFY(controller);
    controller->write(line("1"));
    QCOMPARE(answer(*controller).value("result").toString(), QString("1"));
    QCOMPARE(control({"2"}), 2);
    QCOMPARE(m_err, QByteArray("headunit: --control: another controller is at work\n"));
    QCOMPARE(m_out, QByteArray());
    controller->write(line("3"));  // the first one is still heard
    QCOMPARE(answer(*controller).value("result").toString(), QString("3"));
    controller->abort();
    const auto free = [this] { return control({"4"}) == 0; };
    QTRY_VERIFY2_WITH_TIMEOUT(free(), m_err.constData(), patience);
}

void TestRemote::refusesAFlood() {
    start();
    const auto controller = connected();
    QVERIFY(controller);
    QByteArray flood;
    for (int i = 0; i < 100000; ++i) {
        flood += line("wait(1)");
    }
    controller->write(flood);
    QJsonObject last;
    int answers = 0;
    do {
        last = answer(*controller);
        ++answers;
    } while (last.contains("result"));
    QCOMPARE(last.value("refused").toString(), QString("more than 64 commands at once"));
    QVERIFY(answers < 1000);
    QVERIFY(alive());
}

void TestRemote::refusesAMegabyte() {
    start();
    QCOMPARE(control({"-"}, "'" + QByteArray(1 << 20, 'x') + "'.length\n"), 2);
    QCOMPARE(m_err, QByteArray("headunit: --control: a command is longer than 64 KiB\n"));
    QVERIFY(alive());
    // Nor does it help not to end the line.
    const auto controller = connected();
    QVERIFY(controller);
    controller->write(QByteArray(1 << 20, 'x'));
    QCOMPARE(answer(*controller).value("refused").toString(), QString("a command is longer than 64 KiB"));
    QVERIFY(alive());
    QCOMPARE(control({"-"}, "'" + QByteArray(60000, 'x') + "'.length\n"), 0);
    QCOMPARE(m_out, QByteArray("60000\n"));
}

void TestRemote::refusesWhatIsNoCommand() {
    start();
    for (const QByteArray &bytes : {QByteArray("home()\n"), QByteArray("{}\n"), QByteArray("{\"command\": 5}\n"),
                                    QByteArray(1, '\0') + "\xff\n"}) {
        const auto controller = connected();
        QVERIFY(controller);
        controller->write(bytes);
        QCOMPARE(answer(*controller).value("refused").toString(),
                 QString("a command is a line like {\"command\": \"home()\"}"));
    }
    QVERIFY(alive());
}

void TestRemote::endsACommandThatComputesForever() {
    start();
    for (const char *command : {"while (true);", "try { while (true); } catch (e) { while (true); }"}) {
        QCOMPARE(control({command}), 1);
        QCOMPARE(m_err,
                 QByteArray("headunit: --control: the command computed for 2 s without a wait(), and was ended\n"));
        QVERIFY(alive());
    }
}

void TestRemote::refusesASecondUnitOnTheSameSettings() {
    start();
    QProcess second;
    second.setProcessEnvironment(m_environment);
    second.start(HEADUNIT, {"--root", m_folder->filePath("root"), "--remote", "--play", "silence"});
    QVERIFY(second.waitForFinished(patience));
    QCOMPARE(second.exitCode(), 2);
    QVERIFY(second.readAllStandardError().endsWith(
        "headunit: --remote: a unit with the same settings is under remote control already\n"));
    QVERIFY(alive());
}

void TestRemote::startsAfterAUnitThatWasKilled() {
    start();
    const QString left = socket();
    m_unit->kill();
    QVERIFY(m_unit->waitForFinished(patience));
    QCOMPARE(socket(), left);
    QCOMPARE(control({"1"}), 2);
    QCOMPARE(QString::fromUtf8(m_err), unreachable);
    start();
    QVERIFY(alive());
}

void TestRemote::endsWithAnUnfinishedCommand() {
    start();
    const auto controller = connected();
    QVERIFY(controller);
    controller->write(line("log('waits'); while (true) wait(50)"));
    QCOMPARE(answer(*controller).value("printed").toString(), QString("waits"));
    cleanup();  // which holds that the exit code is 0
    QCOMPARE(socket(), QString());
}

/// Judged by the unit's own counter. A machine that is too busy to play leaves holes by itself, so one of a few goes
/// must be without any.
void TestRemote::thousandCommandsWithoutADropout() {
    SoundServer server(*m_folder);
    QTRY_VERIFY_WITH_TIMEOUT(server.answers(), patience);
    server.plugIn("car", SoundServer::sixChannels);
    m_environment.insert("PULSE_SERVER", QString::fromLocal8Bit(SoundServer::address(*m_folder)));
    start({"--remote", "--play", "music", "--meters"});
    QByteArray commands;
    for (int i = 0; i < 250; ++i) {
        commands += "tap('key_Subwoofer')\nvolume(0, " + QByteArray::number(10 + i % 20) +
                    ")\nsound().channelLevel[0]\nheard(1000).db[0] > -1000\n";
    }
    constexpr int goes = 20;
    bool without = false;
    for (int go = 0; go < goes && !without; ++go) {
        QByteArray said;
        const auto lines = [&] { return (said += m_unit->readAllStandardOutput()).count("peaks"); };
        QTRY_VERIFY_WITH_TIMEOUT(lines() > 0, patience);
        said.clear();  // up to here, what was before
        QCOMPARE(control({"-"}, commands), 0);
        QCOMPARE(m_out.count('\n'), 500);
        const int before = lines();
        QTRY_VERIFY_WITH_TIMEOUT(lines() > before + 1, patience);  // one that began after the last command
        QVERIFY(!said.contains("FL   -inf"));
        without = !said.contains("dropouts");
    }
    QVERIFY(without);
    // Live values: what the loudspeakers did, and the same counter.
    QCOMPARE(control({"meters(); wait(500); var m = meters(); [m.peak.length, m.limiter.length, m.peak[0] < 0, "
                      "m.peak[0] > -90]"}),
             0);
    QCOMPARE(m_out, QByteArray("[6,3,true,true]\n"));
    QCOMPARE(control({"typeof meters().dropouts"}), 0);
    QCOMPARE(m_out, QByteArray("number\n"));
}

QTEST_GUILESS_MAIN(TestRemote)
#include "tst_remote.moc"
