// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

/// The built program, as a person starts it, in a folder of its own.
class BuiltHost {
public:
    static constexpr int patience = 240000;  ///< ms; the longest that a test waits

    struct Result {
        int code;  ///< -1 if it did not end by itself
        QString out;
        QString err;
        QStringList errLines() const { return err.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
    };

    BuiltHost() {
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.remove("XDG_RUNTIME_DIR");
        environment.insert("XDG_DATA_HOME", file("data"));
        environment.insert("PULSE_SERVER", "unix:" + file("nothing"));
        environment.insert("TMPDIR", folder.path());
    }

    QString file(const QString &name) const { return folder.filePath(name); }

    /// Writes a file into the folder.
    QString write(const QString &name, const QByteArray &content) const {
        QDir().mkpath(QFileInfo(file(name)).path());
        QFile out(file(name));
        if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size()) {
            qFatal("cannot write %s", qPrintable(file(name)));
        }
        return file(name);
    }

    /// Starts it.
    void start(QProcess &process, const QStringList &arguments) const {
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        process.start(HEADUNIT, arguments);
    }

    static Result end(QProcess &process) {
        const bool ended = process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit;
        if (!ended) {
            process.kill();
            process.waitForFinished();
        }
        return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    Result run(const QStringList &arguments) const {
        QProcess process;
        start(process, arguments);
        return end(process);
    }

    /// Runs it by a line of a shell, in which "$HEADUNIT" is the program.
    Result runShell(const QString &line) const {
        QProcess process;
        QProcessEnvironment with = environment;
        with.insert("HEADUNIT", HEADUNIT);
        process.setProcessEnvironment(with);
        process.setWorkingDirectory(folder.path());
        process.start("/bin/bash", {"-c", line});
        return end(process);
    }

    QTemporaryDir folder;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};
