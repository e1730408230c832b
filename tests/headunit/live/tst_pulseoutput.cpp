#include "headunit/audio/live/pulseoutput.h"

#include "headunit/audio/live/player.h"
#include "tests/headunit/engine/rendering.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

#include <unistd.h>

using namespace headunit;

namespace {

constexpr int patience = 30000;  // ms; two tries of the output are two seconds apart

/// A sound server of its own, without a device at first; nothing is heard.
class SoundServer {
public:
    explicit SoundServer(const QTemporaryDir &folder) : m_environment(QProcessEnvironment::systemEnvironment()) {
        const QString socket = folder.filePath("server");
        for (const char *name : {"HOME", "XDG_RUNTIME_DIR"}) {
            m_environment.insert(name, folder.path());
        }
        m_environment.remove("PULSE_SERVER");  // with one, the program would not be a server itself
        m_process.setProcessEnvironment(m_environment);
        m_process.start("pulseaudio",
                        {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm", "-L",
                         "module-native-protocol-unix auth-anonymous=1 socket=" + socket});
        m_environment.insert("PULSE_SERVER", "unix:" + socket);
    }

    ~SoundServer() {
        m_process.terminate();
        m_process.waitForFinished(patience);
    }

    bool answers() { return control({"info"}).contains("Server Name"); }
    void plugIn(int channels) { control({"load-module", "module-null-sink", QString("channels=%1").arg(channels)}); }
    void unplug() { control({"unload-module", "module-null-sink"}); }
    /// What plays, a line each, with the number of its channels.
    QByteArray streams() { return control({"list", "short", "sink-inputs"}); }

private:
    QByteArray control(const QStringList &arguments) {
        QProcess pactl;
        pactl.setProcessEnvironment(m_environment);
        pactl.start("pactl", arguments);
        pactl.waitForFinished(patience);
        return pactl.readAllStandardOutput();
    }

    QProcessEnvironment m_environment;
    QProcess m_process;
};

}  // namespace

class TestPulseOutput : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void saysOnceThatItIsSilent();
    void endsAtOnce();
    void playsOnWhatIsThere();

private:
    QTemporaryDir m_folder;
    Player m_player;
};

void TestPulseOutput::saysOnceThatItIsSilent() {
    qputenv("PULSE_SERVER", "unix:" + m_folder.filePath("nobody").toLocal8Bit());
    const QString log = m_folder.filePath("log");
    std::fflush(stderr);
    const int usual = dup(STDERR_FILENO);
    QVERIFY(std::freopen(qPrintable(log), "w", stderr));
    std::setvbuf(stderr, nullptr, _IONBF, 0);
    {
        const PulseOutput output(m_player);
        QTRY_VERIFY(QFile(log).size() > 0);
        QTest::qWait(5000);  // two more tries
    }
    std::fflush(stderr);
    dup2(usual, STDERR_FILENO);
    close(usual);
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("headunit: no sound server answers, so the unit is silent until one does\n"));
}

void TestPulseOutput::endsAtOnce() {
    qputenv("PULSE_SERVER", "unix:" + m_folder.filePath("nobody").toLocal8Bit());
    for (int i = 0; i < 20; ++i) {
        const PulseOutput output(m_player);
    }
}

/// Devices and servers come and go.
void TestPulseOutput::playsOnWhatIsThere() {
    qputenv("PULSE_SERVER", "unix:" + m_folder.filePath("server").toLocal8Bit());
    const PulseOutput output(m_player);
    {
        SoundServer server(m_folder);
        QTRY_VERIFY_WITH_TIMEOUT(server.answers(), patience);
        server.plugIn(6);
        QTRY_VERIFY_WITH_TIMEOUT(server.streams().contains(" 6ch 48000Hz"), patience);
        server.unplug();
        QCOMPARE(server.streams(), QByteArray());
        server.plugIn(2);
        QTRY_VERIFY_WITH_TIMEOUT(server.streams().contains(" 2ch 48000Hz"), patience);
    }
    SoundServer server(m_folder);
    QTRY_VERIFY_WITH_TIMEOUT(server.answers(), patience);
    server.plugIn(6);
    QTRY_VERIFY_WITH_TIMEOUT(server.streams().contains(" 6ch 48000Hz"), patience);
}

QTEST_GUILESS_MAIN(TestPulseOutput)
#include "tst_pulseoutput.moc"
