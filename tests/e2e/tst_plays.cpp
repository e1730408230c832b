// SPDX-License-Identifier: Apache-2.0
// The built unit plays on a sound server, and says how loud.

#include "tests/headunit/audio/files/soundfiletest.h"
#include "tests/headunit/audio/live/soundserver.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestPlays : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void playsLive();
    void playsUnderAScript();
    void saysThatItDoesNotPlayOffscreen();
    void findsTheServerOfASessionWithoutAFolder();
    void saysHowLoudAFileBecame();

private:
    void start(QProcess *unit, const QStringList &arguments, const char *platform = "offscreen");

    QTemporaryDir m_folder;
};

namespace {

constexpr int patience = 60000;  // ms

/// Main level 16 of 40 is 36 dB below the file; the subwoofer is off.
const QRegularExpression meters(
    "^peaks  FL  -42\\.0  FR  -42\\.0  RL  -42\\.0  RR  -42\\.0  SL   -inf  SR   -inf dBFS, "
    "limiter  front    0\\.0  rear    0\\.0  sub    0\\.0 dB$");

}  // namespace

void TestPlays::initTestCase() {
    soundfiletest::write(m_folder.filePath("in.wav").toStdString(), soundfiletest::tone(48000, 2, 1000, 0.1, 0.5012));
}

void TestPlays::start(QProcess *unit, const QStringList &arguments, const char *platform) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", platform);
    environment.insert("HOME", m_folder.path());  // a client keeps its cookie there
    environment.insert("PULSE_SERVER", QString::fromLocal8Bit(SoundServer::address(m_folder)));
    unit->setProcessEnvironment(environment);
    unit->setWorkingDirectory(m_folder.path());
    unit->start(HEADUNIT, QStringList{"--root", m_folder.filePath("root")} + arguments);
}

void TestPlays::playsLive() {
    SoundServer server(m_folder);
    QTRY_VERIFY_WITH_TIMEOUT(server.answers(), patience);
    server.plugIn("car", SoundServer::sixChannels);
    QProcess unit;
    start(&unit, {"--play", "in.wav", "--meters"});
    QStringList lines;
    const auto steady = [&lines] { return !lines.isEmpty() && meters.match(lines.last()).hasMatch(); };
    while (!steady() && (unit.canReadLine() || unit.waitForReadyRead(patience))) {
        while (unit.canReadLine()) {
            lines << QString::fromLatin1(unit.readLine()).trimmed();
        }
    }
    QVERIFY2(steady(), qPrintable(lines.join('\n') + unit.readAllStandardError()));
    unit.terminate();
    QVERIFY(unit.waitForFinished(patience));
    QCOMPARE(unit.readAllStandardError(), QByteArray());
}

void TestPlays::playsUnderAScript() {
    SoundServer server(m_folder);
    QTRY_VERIFY_WITH_TIMEOUT(server.answers(), patience);
    server.plugIn("car", SoundServer::sixChannels);
    QFile script(m_folder.filePath("patient.js"));
    QVERIFY(script.open(QFile::WriteOnly));
    script.write("for (;;) { wait(20); }\n");
    script.close();
    QProcess unit;
    // A display that is no screen, but where time is the clock's.
    start(&unit, {"--script", "patient.js", "--play", "in.wav", "--meters"}, "minimal");
    QStringList lines;
    const auto steady = [&lines] { return !lines.isEmpty() && meters.match(lines.last()).hasMatch(); };
    while (!steady() && (unit.canReadLine() || unit.waitForReadyRead(patience))) {
        while (unit.canReadLine()) {
            lines << QString::fromLatin1(unit.readLine()).trimmed();
        }
    }
    QVERIFY2(steady(), qPrintable(lines.join('\n') + QString::fromLocal8Bit(unit.readAllStandardError())));
    unit.terminate();
    QVERIFY(unit.waitForFinished(patience));
}

void TestPlays::saysThatItDoesNotPlayOffscreen() {
    QProcess unit;
    start(&unit, {"--script", "in.wav", "--play", "silence"});
    QVERIFY(unit.waitForFinished(patience));
    QCOMPARE(unit.exitCode(), 2);
    QVERIFY(unit.readAllStandardError().contains("--script plays on a display only"));
}

void TestPlays::findsTheServerOfASessionWithoutAFolder() {
    SoundServer server(m_folder, SoundServer::Socket::Usual);
    QTRY_VERIFY_WITH_TIMEOUT(server.answers(), patience);
    server.plugIn("car", SoundServer::sixChannels);
    QProcess unit;
    QProcessEnvironment environment = server.environment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    unit.setProcessEnvironment(environment);
    unit.start(HEADUNIT, {"--root", m_folder.filePath("root")});
    QTRY_COMPARE_WITH_TIMEOUT(server.streams(), QString("6ch on car"), patience);
    unit.terminate();
    QVERIFY(unit.waitForFinished(patience));
    QCOMPARE(unit.readAllStandardError(), QByteArray());
}

void TestPlays::saysHowLoudAFileBecame() {
    QProcess unit;
    start(&unit, {"--render", "in.wav", "out.wav"});
    QVERIFY(unit.waitForFinished(patience));
    QCOMPARE(unit.readAllStandardError(), QByteArray());
    QCOMPARE(unit.exitCode(), 0);
    const QString line = QString::fromLatin1(unit.readAllStandardOutput()).trimmed();
    QVERIFY2(line.startsWith("out.wav: "), qPrintable(line));
    QVERIFY2(meters.match(line.mid(9)).hasMatch(), qPrintable(line));
}

QTEST_GUILESS_MAIN(TestPlays)
#include "tst_plays.moc"
