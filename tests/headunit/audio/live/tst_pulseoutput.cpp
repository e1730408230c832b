// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/pulseoutput.h"

#include "headunit/audio/live/player.h"
#include "soundserver.h"
#include "standarderror.h"
#include "tests/headunit/audio/engine/rendering.h"

#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTest>

using namespace headunit;

namespace {

constexpr int patience = 60000;                       // ms
constexpr auto retry = std::chrono::milliseconds(5);  // between two looks for what is missing

const QByteArray noServer = "headunit: no sound server answers, so the unit is silent until one does\n";
const QByteArray noDevice = "headunit: the sound server has no device, so the unit is silent until it has one\n";
const QByteArray folded =
    "headunit: the sound device has fewer than six channels; all six loudspeakers play on two of them\n";

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
    void playsInTheFormatOfTheDevice_data();
    void playsInTheFormatOfTheDevice();
    void cannotBeTakenElsewhere();
    void devicesGoDuringTheFall();
    void playsOnTheNamedDeviceOnly();
    void saysWhatTheMapMisses();
    void pausesAndResumes();
    void devicesAndServersComeAndGo();

private:
    static PulseOutput::Settings settings(const QString &device = QString(), const QString &map = QString());
    QString file(const char *name) const { return m_folder->filePath(QString::fromLatin1(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
    Player m_player;
};

#define WAIT_FOR(what) QTRY_VERIFY_WITH_TIMEOUT(what, patience)
#define WAIT_FOR_STREAM(expected) QTRY_COMPARE_WITH_TIMEOUT(server.streams(), QString(expected), patience)

PulseOutput::Settings TestPulseOutput::settings(const QString &device, const QString &map) {
    PulseOutput::Settings wanted;
    wanted.retryAfter = retry;
    wanted.device = device.toStdString();
    std::string error;
    if (!map.isEmpty() && !parseOutputMap(map.toStdString(), &wanted.map, &error)) {
        qFatal("%s", error.c_str());
    }
    return wanted;
}

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
    const PulseOutput output(m_player, settings());
    WAIT_FOR(calls >= 5);
    QCOMPARE(said.text(), noServer);
}

void TestPulseOutput::saysOnceThatThereIsNoDevice() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    StandardError said(file("log"));
    const PulseOutput output(m_player, settings());
    WAIT_FOR(said.text() == noDevice);
    server.plugIn("car", SoundServer::sixChannels);
    WAIT_FOR_STREAM("6ch on car");
    QCOMPARE(said.text(), noDevice);
    server.unplug("car");
    WAIT_FOR(said.text() == noDevice + noDevice);
}

void TestPulseOutput::endsAtOnce() {
    for (int i = 0; i < 20; ++i) {
        const PulseOutput output(m_player, settings());
    }
}

void TestPulseOutput::playsWithTheChannelsOfTheDevice_data() {
    QTest::addColumn<QString>("channels");
    QTest::addColumn<QString>("stream");
    QTest::addColumn<QByteArray>("said");
    QTest::newRow("six") << SoundServer::sixChannels << "6ch on car" << QByteArray();
    QTest::newRow("7.1") << SoundServer::surround71 << "8ch on car" << QByteArray();
    QTest::newRow("5.1") << SoundServer::surround51 << "6ch on car" << QByteArray();
    QTest::newRow("stereo") << SoundServer::stereo << "2ch on car" << folded;
    QTest::newRow("mono") << "mono"
                          << "1ch on car" << folded;
    QTest::newRow("numbered") << "aux0,aux1,aux2,aux3,aux4,aux5"
                              << "6ch on car" << QByteArray();
    // The sink of a server without a device
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
    const PulseOutput output(m_player, settings());
    WAIT_FOR_STREAM(stream);
    WAIT_FOR(log.text() == said);
}

void TestPulseOutput::followsTheDefaultDevice() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", SoundServer::sixChannels);
    StandardError said(file("log"));
    const PulseOutput output(m_player, settings());
    WAIT_FOR_STREAM("6ch on car");
    server.plugIn("headphones", SoundServer::stereo);
    server.makeDefault("headphones");
    WAIT_FOR_STREAM("2ch on headphones");
    WAIT_FOR(said.text() == folded);
    server.makeDefault("car");
    WAIT_FOR_STREAM("6ch on car");
    WAIT_FOR(said.text() == folded);
}

void TestPulseOutput::playsInTheFormatOfTheDevice_data() {
    QTest::addColumn<int>("rate");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("stream");
    for (const int rate : {44100, 88200, 96000, 192000}) {
        QTest::addRow("%d", rate) << rate << "float32le" << QStringLiteral("float32le 6ch %1Hz on car").arg(rate);
    }
    for (const char *format : {"s16le", "s24le", "s24-32le", "s32le"}) {
        QTest::newRow(format) << 48000 << format << QString::fromLatin1(format) + " 6ch 48000Hz on car";
    }
    QTest::newRow("other byte order") << 44100 << "s16be"
                                      << "s16le 6ch 44100Hz on car";
    QTest::newRow("eight bits") << 48000 << "u8"
                                << "6ch on car";
}

void TestPulseOutput::playsInTheFormatOfTheDevice() {
    QFETCH(int, rate);
    QFETCH(QString, format);
    QFETCH(QString, stream);
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", SoundServer::sixChannels, rate, format);
    const PulseOutput output(m_player, settings());
    WAIT_FOR_STREAM(stream);
}

/// A server takes streams elsewhere by a cut.
void TestPulseOutput::cannotBeTakenElsewhere() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", SoundServer::sixChannels);
    server.plugIn("headphones", SoundServer::stereo, 48000, "s16le");
    const PulseOutput output(m_player, settings());
    WAIT_FOR_STREAM("6ch on car");
    server.move("headphones");
    QCOMPARE(server.streams(), QString("6ch on car"));
    server.makeDefault("headphones");
    WAIT_FOR_STREAM("s16le 2ch 48000Hz on headphones");
    server.unplug("headphones");
    WAIT_FOR_STREAM("6ch on car");
}

/// While the sound falls on one device for the sake of another, either may go, and the choice may change again.
void TestPulseOutput::devicesGoDuringTheFall() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", SoundServer::sixChannels);
    server.plugIn("headphones", SoundServer::stereo);
    const PulseOutput output(m_player, settings());
    for (int time = 0; time < 3; ++time) {
        server.makeDefault("car");
        WAIT_FOR_STREAM("6ch on car");
        server.makeDefault("headphones");
        server.unplug("car");
        WAIT_FOR_STREAM("2ch on headphones");
        server.plugIn("car", SoundServer::sixChannels);
        server.makeDefault("car");
        server.makeDefault("headphones");
        server.makeDefault("car");
        WAIT_FOR_STREAM("6ch on car");
        server.makeDefault("headphones");
        server.unplug("headphones");
        server.plugIn("headphones", SoundServer::stereo);
        server.makeDefault("headphones");
        WAIT_FOR_STREAM("2ch on headphones");
    }
}

void TestPulseOutput::playsOnTheNamedDeviceOnly() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", SoundServer::sixChannels);
    StandardError said(file("log"));
    const QByteArray missing =
        "headunit: there is no sound device \"headphones\", so the unit is silent until there is\n";
    const PulseOutput output(m_player, settings("headphones"));
    WAIT_FOR(said.text() == missing);
    QCOMPARE(server.streams(), QString());
    server.plugIn("headphones", SoundServer::stereo);
    WAIT_FOR_STREAM("2ch on headphones");
    server.makeDefault("headphones");
    server.makeDefault("car");
    server.unplug("headphones");
    WAIT_FOR(said.text() == missing + folded + missing);
    QCOMPARE(server.streams(), QString());
    server.plugIn("headphones", SoundServer::sixChannels);
    WAIT_FOR_STREAM("6ch on headphones");
}

void TestPulseOutput::saysWhatTheMapMisses() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", "aux0,aux1,aux2,aux3");
    StandardError said(file("log"));
    const PulseOutput output(m_player, settings(QString(), "FL=aux0,FR=aux1,SL=aux4,SR=aux9"));
    WAIT_FOR_STREAM("4ch on car");
    WAIT_FOR(said.text() == "headunit: the sound device lacks the channels that --map names for SL, SR\n");
}

void TestPulseOutput::pausesAndResumes() {
    SoundServer server(*m_folder);
    WAIT_FOR(server.answers());
    server.plugIn("car", SoundServer::sixChannels);
    PulseOutput output(m_player, settings());
    std::atomic<int> silences{0};
    const auto count = [&silences] { ++silences; };
    for (int time = 0; time < 3; ++time) {
        WAIT_FOR_STREAM("6ch on car");
        silences = 0;
        output.pause(count);
        WAIT_FOR(silences == 1);
        WAIT_FOR_STREAM("");
        output.pause(count);
        QCOMPARE(silences, 2);
        output.resume();
    }
    output.pause(count);
    output.resume();  // before the sound has ended
    WAIT_FOR_STREAM("6ch on car");
}

void TestPulseOutput::devicesAndServersComeAndGo() {
    const PulseOutput output(m_player, settings());
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
