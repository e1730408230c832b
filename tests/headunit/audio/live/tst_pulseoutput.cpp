#include "headunit/audio/live/pulseoutput.h"

#include "headunit/audio/live/player.h"
#include "soundserver.h"
#include "tests/headunit/audio/engine/rendering.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>

#include <fcntl.h>
#include <unistd.h>

using namespace headunit;

namespace {

constexpr int patience = 60000;                       // ms
constexpr auto retry = std::chrono::milliseconds(5);  // between two looks for what is missing

/// Standard error goes into a file as long as this lives.
class StandardError {
public:
    explicit StandardError(const QString &file) : m_file(file) {
        const int descriptor =
            open(qPrintable(file), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
        dup2(descriptor, STDERR_FILENO);
        close(descriptor);
    }
    ~StandardError() {
        dup2(m_usual, STDERR_FILENO);
        close(m_usual);
    }

    QByteArray text() {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    const QString m_file;
    const int m_usual = dup(STDERR_FILENO);
};

const QByteArray noServer = "headunit: no sound server answers, so the unit is silent until one does\n";
const QByteArray noDevice = "headunit: the sound server has no device, so the unit is silent until it has one\n";
const QByteArray folded =
    "headunit: the sound device lacks front, rear or side channels; all six loudspeakers play on two channels\n";

}  // namespace

class TestPulseOutput : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void saysOnceThatNoServerAnswers();
    void saysOnceThatThereIsNoDevice();
    void endsAtOnce();
    void playsWithTheChannelsOfTheDevice_data();
    void playsWithTheChannelsOfTheDevice();
    void followsTheDefaultDevice();
    void devicesAndServersComeAndGo();

private:
    QString file(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    Player m_player;
};

#define WAIT_FOR(what) QTRY_VERIFY_WITH_TIMEOUT(what, patience)
#define WAIT_FOR_STREAM(expected) QTRY_COMPARE_WITH_TIMEOUT(server.streams(), QString(expected), patience)

void TestPulseOutput::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("PULSE_SERVER", SoundServer::address(*m_folder));
    qputenv("HOME", QFile::encodeName(m_folder->path()));  // a client keeps its cookie there
}

void TestPulseOutput::saysOnceThatNoServerAnswers() {
    // One that hangs up whenever it is called, so that the tries can be counted
    QLocalServer server;
    QVERIFY(server.listen(file("server")));
    int calls = 0;
    connect(&server, &QLocalServer::newConnection, this, [&] {
        ++calls;
        delete server.nextPendingConnection();
    });
    StandardError said(file("log"));
    const PulseOutput output(m_player, retry);
    WAIT_FOR(calls >= 5);
    QCOMPARE(said.text(), noServer);
}

void TestPulseOutput::saysOnceThatThereIsNoDevice() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    StandardError said(file("log"));
    const PulseOutput output(m_player, retry);
    WAIT_FOR(said.text() == noDevice);
    server.plugIn("car", SoundServer::sixChannels);
    WAIT_FOR_STREAM("6ch on car");
    QCOMPARE(said.text(), noDevice);
    server.unplug("car");
    WAIT_FOR(said.text() == noDevice + noDevice);
}

void TestPulseOutput::endsAtOnce() {
    for (int i = 0; i < 20; ++i) {
        const PulseOutput output(m_player, retry);
    }
}

void TestPulseOutput::playsWithTheChannelsOfTheDevice_data() {
    QTest::addColumn<QString>("channels");
    QTest::addColumn<QString>("stream");
    QTest::addColumn<QByteArray>("said");
    QTest::newRow("six") << SoundServer::sixChannels << "6ch on car" << QByteArray();
    QTest::newRow("7.1") << SoundServer::surround71 << "6ch on car" << QByteArray();
    QTest::newRow("5.1") << SoundServer::surround51 << "2ch on car" << folded;
    QTest::newRow("stereo") << SoundServer::stereo << "2ch on car" << folded;
    QTest::newRow("mono") << "mono"
                          << "2ch on car" << folded;
    // What a server without a device plays to
    QTest::newRow("none") << ""
                          << "2ch on auto_null" << noDevice;
}

void TestPulseOutput::playsWithTheChannelsOfTheDevice() {
    QFETCH(QString, channels);
    QFETCH(QString, stream);
    QFETCH(QByteArray, said);
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    if (channels.isEmpty()) {
        server.plugIn("auto_null", SoundServer::stereo);
    } else {
        server.plugIn("car", channels);
    }
    StandardError log(file("log"));
    const PulseOutput output(m_player, retry);
    WAIT_FOR_STREAM(stream);
    QCOMPARE(log.text(), said);
}

void TestPulseOutput::followsTheDefaultDevice() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", SoundServer::sixChannels);
    StandardError said(file("log"));
    const PulseOutput output(m_player, retry);
    WAIT_FOR_STREAM("6ch on car");
    server.plugIn("headphones", SoundServer::stereo);
    server.makeDefault("headphones");
    WAIT_FOR_STREAM("2ch on headphones");
    QCOMPARE(said.text(), folded);
    server.makeDefault("car");
    WAIT_FOR_STREAM("6ch on car");
    QCOMPARE(said.text(), folded);
}

void TestPulseOutput::devicesAndServersComeAndGo() {
    const PulseOutput output(m_player, retry);
    {
        SoundServer server(*m_folder);
        WAIT_FOR(server.answers());
        server.plugIn("car", SoundServer::sixChannels);
        WAIT_FOR_STREAM("6ch on car");
        server.unplug("car");
        QCOMPARE(server.streams(), QString());
        server.plugIn("headphones", SoundServer::stereo);
        WAIT_FOR_STREAM("2ch on headphones");
    }
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", SoundServer::sixChannels);
    WAIT_FOR_STREAM("6ch on car");
}

QTEST_GUILESS_MAIN(TestPulseOutput)
#include "tst_pulseoutput.moc"
