// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "childprocess.h"

#include <QProcessEnvironment>
#include <QTemporaryDir>

#include <memory>
#include <vector>

/// A sound server of the test's own, without a device at first; nothing is heard.
class SoundServer {
public:
    enum class Socket { Named, Usual };

    /// Its socket and whatever it keeps are in \a folder. The usual socket is where programs look by themselves if
    /// the session has no folder of its own.
    explicit SoundServer(const QTemporaryDir &folder, Socket socket = Socket::Named);

    /// The value of PULSE_SERVER for a program to play on the named socket.
    static QByteArray address(const QTemporaryDir &folder);
    /// The surroundings of a program that plays here.
    const QProcessEnvironment &environment() const { return m_environment; }

    bool answers() const;
    /// Plugs a device in, with channels like "front-left,front-right". The first one is the default.
    void plugIn(const QString &device, const QString &channels, int rate = 48000,
                const QString &format = QStringLiteral("float32le"), const QString &properties = QString());
    void unplug(const QString &device);
    void makeDefault(const QString &device);
    /// Takes all streams to another device, as a mixer's user does.
    void move(const QString &device);
    /// Ends the connections of programs that came by address(), and takes new ones. For a named socket.
    void hangUp();
    /// All devices, in the order in which they came.
    QStringList devices() const;

    /// The playing streams, as "6ch on NAME" or, if its samples are other than floats at 48 kHz, as "s16le 2ch 44100Hz
    /// on NAME", where NAME is the device; joined by commas.
    QString streams() const;
    /// Starts to record what a device plays on \a channels, as raw numbers of 16 bits; stops when the process is
    /// deleted.
    std::unique_ptr<QProcess> record(const QString &device, const QString &channels) const;
    /// Starts a program that plays on a device, over and over again, floats of a single channel.
    std::unique_ptr<QProcess> play(const QString &device, const std::vector<float> &samples, int rate = 48000) const;

    static constexpr char sixChannels[] = "front-left,front-right,rear-left,rear-right,side-left,side-right";
    static constexpr char surround51[] = "front-left,front-right,rear-left,rear-right,front-center,lfe";
    static constexpr char surround71[] =
        "front-left,front-right,rear-left,rear-right,front-center,lfe,side-left,side-right";
    static constexpr char stereo[] = "front-left,front-right";

private:
    QString control(const QStringList &arguments) const;
    void unload(const QString &moduleAndArguments);

    QProcessEnvironment m_environment;
    QString m_programs;  ///< the module, with its arguments, that programs connect to
    ChildProcess m_process;
};
