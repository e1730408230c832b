// SPDX-License-Identifier: Apache-2.0
#include "builthost.h"
#include "tests/headunit/audio/files/soundfiletest.h"

#include <QDirIterator>
#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const char stateScript[] = "setStore('kept', 5); wait(200); log('yes');";

}  // namespace

// What the built program says, and that saying it never stops it: one line for a cause, to whoever reads.
class TestLines : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void namesOfTwoLines_data();
    void namesOfTwoLines();
    void unusableRoot();
    void manyPlugins();
    void outputOnAFullDevice_data();
    void outputOnAFullDevice();
    void fileNamedLikeStandardInput();
    void readerThatStandsStill();
    void closedDescriptors();
    void noThread();
    void diskThatDoesNotAnswerAtTheFirstStart();
};

void TestLines::namesOfTwoLines_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("option") << QStringList{"--non\nsense"};
    for (const char *option :
         {"--open", "--language", "--scale", "--script", "--measure", "--import", "--map", "--watchdog"}) {
        QTest::newRow(option) << QStringList{option, "a\nb"};
    }
    QTest::newRow("--export") << QStringList{"--export", "/dev/null/a\nb"};
    QTest::newRow("--root") << QStringList{"--root", "/dev/null/a\nb"};
    QTest::newRow("--tour") << QStringList{"--tour", "/dev/null/a\nb"};
    QTest::newRow("--render") << QStringList{"--render", "a\nb", "c.wav"};
    QTest::newRow("--control") << QStringList{"--root", "a\nb", "--control", "home()"};
}

void TestLines::namesOfTwoLines() {
    QFETCH(QStringList, arguments);
    const BuiltHost host;
    const BuiltHost::Result result = host.run(arguments);
    QCOMPARE(result.code, 2);
    QCOMPARE(result.errLines().size(), 1);
    QVERIFY2(result.err.startsWith("headunit: ") && result.err.endsWith('\n'), qPrintable(result.err));
    QCOMPARE(result.out, QString());
}

void TestLines::unusableRoot() {
    const BuiltHost host;
    // All of the unit's files lie below this one.
    host.write("roo\nt/media", QByteArray());
    const QString script = host.write("s.js", stateScript);
    for (int start = 0; start < 2; ++start) {
        const BuiltHost::Result result = host.run({"--root", "roo\nt", "--script", script});
        QCOMPARE(result.code, 0);
        QCOMPARE(result.errLines().size(), 1);
        QVERIFY2(result.err.contains("roo t/media") && result.err.contains(": Not a directory"),
                 qPrintable(result.err));
    }
}

void TestLines::manyPlugins() {
    const BuiltHost host;
    QStringList arguments = {"--script", host.write("s.js", "expect('home', 'visible', true);")};
    for (int i = 0; i < 10000; ++i) {
        arguments << QString::number(i) + "\n.so";
    }
    const BuiltHost::Result result = host.run(arguments);
    QCOMPARE(result.code, 0);
    QCOMPARE(result.errLines().size(), 11);
    QVERIFY2(result.errLines().first().startsWith("headunit: 0 .so: there is no such file"), qPrintable(result.err));
    QCOMPARE(result.errLines().last(), QStringLiteral("headunit: 9990 more plug-ins cannot be used"));
}

void TestLines::outputOnAFullDevice_data() {
    QTest::addColumn<QString>("arguments");
    QTest::newRow("--help") << "--help";
    QTest::newRow("--version") << "--version";
    QTest::newRow("--script") << "--script s.js";
    QTest::newRow("--trace") << "--trace --script quiet.js";
    QTest::newRow("--tour") << "--tour pictures";
    QTest::newRow("--render") << "--render in.wav out.wav";
    QTest::newRow("--import") << "--import setup.ini";
}

void TestLines::outputOnAFullDevice() {
    QFETCH(QString, arguments);
    const BuiltHost host;
    host.write("s.js", stateScript);
    host.write("quiet.js", "volume(0, 21);");
    soundfiletest::write(host.file("in.wav").toStdString(), soundfiletest::tone(48000, 2, 1000, 0.1));
    QCOMPARE(host.run({"--export", "setup.ini"}).code, 0);
    BuiltHost::Result result = host.runShell("\"$HEADUNIT\" " + arguments + " > /dev/full");
    QCOMPARE(result.err, QStringLiteral("headunit: standard output: No space left on device\n"));
    QCOMPARE(result.code, 2);
    result = host.runShell("\"$HEADUNIT\" " + arguments);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.code, 0);
    QVERIFY(!result.out.isEmpty());
}

void TestLines::fileNamedLikeStandardInput() {
    const BuiltHost host;
    // Standard input stays open and says nothing.
    QCOMPARE(host.run({"--render", "-", "out.wav"}).err,
             QStringLiteral("headunit: -: System error : No such file or directory.\n"));
    soundfiletest::write(host.file("-").toStdString(), soundfiletest::tone(48000, 2, 1000, 0.1));
    const BuiltHost::Result result = host.run({"--render", "-", "out.wav"});
    QCOMPARE(result.err, QString());
    QCOMPARE(result.code, 0);
    QVERIFY(QFile::exists(host.file("out.wav")));
}

void TestLines::readerThatStandsStill() {
    const BuiltHost host;
    const QByteArray pipe = QFile::encodeName(host.file("pipe"));
    QCOMPARE(mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    const int reader = ::open(pipe.constData(), O_RDWR | O_NONBLOCK);
    QVERIFY(reader >= 0);
    QProcess unit;
    unit.setStandardOutputFile(host.file("pipe"));
    unit.setReadChannel(QProcess::StandardError);
    host.start(unit, {"--root", "root", "--remote", "--trace", "--play", "silence"});
    QByteArray said;
    while (!said.contains("no sound server") && unit.waitForReadyRead(BuiltHost::patience)) {
        said += unit.readAllStandardError();
    }
    // Far more than a pipe holds; it comes to its end, though nobody reads.
    const QString much = "for (var i = 0; i < 5000; ++i) volume(0, i % 30)";
    BuiltHost::Result control = host.run({"--root", "root", "--control", much});
    QCOMPARE(control.err, QString());
    QCOMPARE(control.code, 0);
    QByteArray read(1 << 20, '\0');
    qint64 got = ::read(reader, read.data(), size_t(read.size()));
    QVERIFY(got >= 4096);
    // Whoever reads again learns what was missed, and misses no more.
    QCOMPARE(host.run({"--root", "root", "--control", "volume(1, 7)"}).code, 0);
    got = ::read(reader, read.data(), size_t(read.size()));
    const QByteArray after = read.left(int(got));
    QVERIFY2(after.contains(" lines are missing here: they were not read\n"), after.left(500).constData());
    QVERIFY2(after.contains("\nsetVolumeLevel(7, 1) -> "), after.left(500).constData());
    ::close(reader);
    unit.terminate();
    QCOMPARE(BuiltHost::end(unit).code, 0);
}

void TestLines::closedDescriptors() {
    const BuiltHost host;
    host.write("s.js", "for (var i = 0; i < 300; ++i) { volume(0, i % 30); log('a line'); }");
    const BuiltHost::Result result =
        host.runShell("\"$HEADUNIT\" --verbose --trace --root root --open audiosetting --script s.js <&- >&- 2>&-");
    QCOMPARE(result.code, 0);
    QDirIterator files(host.file("root"), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    int count = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QVERIFY2(!bytes.contains("a line") && !bytes.contains("setVolumeLevel"), qPrintable(file.fileName()));
        ++count;
    }
    QVERIFY(count >= 3);
}

namespace {

/// Starts what the fixture of that name makes fail.
void preload(BuiltHost *host, const QString &fault, const QString &value) {
    host->environment.insert("LD_PRELOAD", FIXTURES "/faults.so");
    // The sanitizer wants to be the first library, and need not be.
    host->environment.insert("ASAN_OPTIONS", qEnvironmentVariable("ASAN_OPTIONS") + ":verify_asan_link_order=0");
    host->environment.insert(fault, value);
}

}  // namespace

void TestLines::noThread() {
    BuiltHost host;
    const QString script = host.write("s.js", stateScript);
    preload(&host, "FAULT_THREADS", "1");
    BuiltHost::Result result = host.run({"--root", "root", "--watchdog", "5", "--script", script});
    QCOMPARE(result.errLines().size(), 1);
    QVERIFY2(result.err.startsWith("headunit: no thread is to be had"), qPrintable(result.err));
    QCOMPARE(result.code, 0);
    host.environment.remove("FAULT_THREADS");
    result = host.run({"--root", "root", "--script", host.write("t.js", "log(store('kept'));")});
    QCOMPARE(result.out, QStringLiteral("5\n"));
}

void TestLines::diskThatDoesNotAnswerAtTheFirstStart() {
    BuiltHost host;
    const QString script = host.write("s.js", "log(store('flat/eq0')); log('shown');");
    preload(&host, "FAULT_DISK_WAITS", host.file("released"));
    QProcess unit;
    host.start(unit, {"--root", "root", "--script", script});
    QByteArray said;
    while (!said.contains("shown") && unit.waitForReadyRead(BuiltHost::patience)) {
        said += unit.readAllStandardOutput();
    }
    QVERIFY(said.contains("shown"));
    host.write("released", QByteArray());
    QCOMPARE(BuiltHost::end(unit).code, 0);
    QVERIFY(QFile::exists(host.file("root/media/flash/nvm/factory/audiosettings.ini")));
}

QTEST_GUILESS_MAIN(TestLines)
#include "tst_lines.moc"
