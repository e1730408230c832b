// SPDX-License-Identifier: Apache-2.0
#include "soundserver.h"

#include <QHash>

namespace {

constexpr int patience = 60000;  // ms

/// Programs come by one socket, the test by another.
constexpr char programs[] = "server";
constexpr char test[] = "control";

constexpr char protocol[] = "module-native-protocol-unix auth-anonymous=1";

QString protocolAt(const QTemporaryDir &folder, const char *socket) {
    return protocol + (" socket=" + folder.filePath(socket));
}

/// Of "12\tname\t…" the entry at a place.
QString column(const QString &line, int place) {
    return line.section('\t', place, place);
}

int channelCount(const QString &channels) {
    return channels.count(',') + 1;
}

}  // namespace

SoundServer::SoundServer(const QTemporaryDir &folder, Socket socket)
    : m_environment(QProcessEnvironment::systemEnvironment()) {
    for (const char *name : {"HOME", "TMPDIR", "XDG_RUNTIME_DIR"}) {
        m_environment.insert(name, folder.path());
    }
    m_environment.insert("LC_ALL", "C");
    const QStringList names = m_environment.keys();
    for (const QString &name : names) {
        if (name.startsWith("PULSE_")) {  // with PULSE_SERVER, the program would not be a server itself
            m_environment.remove(name);
        }
    }
    m_programs = socket == Socket::Named ? protocolAt(folder, programs) : QString(protocol);
    if (socket != Socket::Named) {
        m_environment.remove("XDG_RUNTIME_DIR");
    }
    m_process.setProcessEnvironment(m_environment);
    m_process.start("pulseaudio", {"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no", "--disable-shm",
                                   "-L", protocolAt(folder, test), "-L", m_programs});
    m_environment.insert("PULSE_SERVER", "unix:" + folder.filePath(test));
}

QByteArray SoundServer::address(const QTemporaryDir &folder) {
    return "unix:" + folder.filePath(programs).toLocal8Bit();
}

bool SoundServer::answers() const {
    return control({"info"}).contains("Server Name");
}

void SoundServer::plugIn(const QString &device, const QString &channels, int rate, const QString &format,
                         const QString &properties) {
    QStringList module = {"load-module",
                          "module-null-sink",
                          "sink_name=" + device,
                          QStringLiteral("rate=%1").arg(rate),
                          "format=" + format,
                          QStringLiteral("channels=%1").arg(channelCount(channels)),
                          "channel_map=" + channels};
    if (!properties.isEmpty()) {
        module << "sink_properties=\"" + properties + '"';
    }
    control(module);
}

void SoundServer::unplug(const QString &device) {
    unload("module-null-sink sink_name=" + device + ' ');
}

void SoundServer::unload(const QString &moduleAndArguments) {
    const QStringList modules = control({"list", "short", "modules"}).split('\n');
    for (const QString &module : modules) {
        if ((column(module, 1) + ' ' + column(module, 2)).startsWith(moduleAndArguments)) {
            control({"unload-module", column(module, 0)});
        }
    }
}

void SoundServer::makeDefault(const QString &device) {
    control({"set-default-sink", device});
}

void SoundServer::move(const QString &device) {
    const QStringList playing = control({"list", "short", "sink-inputs"}).split('\n', Qt::SkipEmptyParts);
    for (const QString &stream : playing) {
        control({"move-sink-input", column(stream, 0), device});
    }
}

void SoundServer::hangUp() {
    unload(m_programs);
    control(QStringList("load-module") + m_programs.split(' '));
}

QStringList SoundServer::devices() const {
    QStringList names;
    const QStringList devices = control({"list", "short", "sinks"}).split('\n', Qt::SkipEmptyParts);
    for (const QString &device : devices) {
        names << column(device, 1);
    }
    return names;
}

QString SoundServer::streams() const {
    QHash<QString, QString> names;
    const QStringList devices = control({"list", "short", "sinks"}).split('\n');
    for (const QString &device : devices) {
        names.insert(column(device, 0), column(device, 1));
    }
    QStringList found;
    const QStringList streams = control({"list", "short", "sink-inputs"}).split('\n', Qt::SkipEmptyParts);
    for (const QString &stream : streams) {
        QString format = column(stream, 4);  // "float32le 6ch 48000Hz"
        if (format.startsWith("float32le ") && format.endsWith(" 48000Hz")) {
            format = format.section(' ', 1, 1);
        }
        found << format + " on " + names.value(column(stream, 1));
    }
    return found.join(", ");
}

std::unique_ptr<QProcess> SoundServer::record(const QString &device, const QString &channels) const {
    auto recorder = std::make_unique<ChildProcess>();
    recorder->setProcessEnvironment(m_environment);
    // The server keeps 4 MB for a recorder that does not run: seven seconds of six channels of 16 bits.
    recorder->start("parec", {"--raw", "--format=s16le", "--rate=48000", "--no-remix", "--latency-msec=20",
                              QStringLiteral("--channels=%1").arg(channelCount(channels)), "--channel-map=" + channels,
                              "--device=" + device + ".monitor"});
    return recorder;
}

std::unique_ptr<QProcess> SoundServer::play(const QString &device, const std::vector<float> &samples, int rate) const {
    auto player = std::make_unique<ChildProcess>();
    player->setProcessEnvironment(m_environment);
    player->start("pacat", {"--playback", "--raw", "--format=float32le", "--channels=1", "--latency-msec=50",
                            QStringLiteral("--rate=%1").arg(rate), "--device=" + device});
    const QByteArray bytes(reinterpret_cast<const char *>(samples.data()),
                           static_cast<int>(samples.size() * sizeof(float)));
    // It takes more whenever it has played some.
    QObject::connect(player.get(), &QProcess::bytesWritten, player.get(), [process = player.get(), bytes] {
        if (process->bytesToWrite() < bytes.size()) {
            process->write(bytes);
        }
    });
    player->write(bytes);
    return player;
}

QString SoundServer::control(const QStringList &arguments) const {
    ChildProcess pactl;
    pactl.setProcessEnvironment(m_environment);
    pactl.start("pactl", arguments);
    pactl.waitForFinished(patience);
    return QString::fromLocal8Bit(pactl.readAllStandardOutput());
}
