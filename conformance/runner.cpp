// SPDX-License-Identifier: Apache-2.0
#include "runner.h"

#include "unit.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <exception>

#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace conformance {

namespace {

const int settleTime = 1000;  // ms that a unit has before its process ends

/// The findings on their way through a pipe: a line each, problems behind "P", a reason behind "S", the end behind "E".
QByteArray packed(const Findings &found) {
    QByteArray lines;
    for (QString problem : found.problems) {
        lines += 'P' + problem.replace(QLatin1Char('\n'), QLatin1String(" | ")).toUtf8() + '\n';
    }
    if (!found.skipped.isEmpty()) {
        lines += 'S' + found.skipped.toUtf8() + '\n';
    }
    return lines + "E\n";
}

void runInUnit(const Check &check, const QByteArray &root, bool restarted, int argc, char **argv) {
    const Unit &unit = *conformanceUnit();
    if (unit.setRoot) {
        unit.setRoot(root.constData());
    }
    if (unit.prepare) {
        unit.prepare();
    }
    QApplication application(argc, argv);
    if (unit.setUp) {
        unit.setUp();
    }
    try {
        (restarted ? check.afterRestart : check.run)();
    } catch (const std::exception &exception) {
        fail(QStringLiteral("the unit threw an exception: ") + QString::fromLocal8Bit(exception.what()));
    } catch (...) {
        fail(QStringLiteral("the unit threw an exception"));
    }
    if (check.afterRestart && !restarted) {
        pass(settleTime);
        if (unit.flush) {
            unit.flush();
        }
    }
}

/// The work of a process that runs a check: it never returns, and no destructor of the unit's runs.
void runChild(const Check &check, const QByteArray &root, bool restarted, const Limits &limits, int pipe, int argc,
              char **argv) {
    const rlimit core = {0, 0};
    setrlimit(RLIMIT_CORE, &core);
    const rlimit cpu = {rlim_t(limits.cpuSeconds), rlim_t(limits.cpuSeconds)};
    setrlimit(RLIMIT_CPU, &cpu);
    runInUnit(check, root, restarted, argc, argv);
    const QByteArray lines = packed(findings());
    for (int sent = 0; sent < lines.size();) {
        const ssize_t count = write(pipe, lines.constData() + sent, size_t(lines.size() - sent));
        if (count <= 0 && errno != EINTR) {
            break;
        }
        sent += count > 0 ? int(count) : 0;
    }
    _exit(0);
}

QString endOf(int status) {
    if (WIFSIGNALED(status)) {
        const int number = WTERMSIG(status);
        return number == SIGXCPU || number == SIGKILL ? QStringLiteral("the check did not come to an end")
                                                      : QStringLiteral("the unit crashed (signal %1, %2)")
                                                            .arg(number)
                                                            .arg(QString::fromLocal8Bit(strsignal(number)));
    }
    return QStringLiteral("the unit ended the process (exit code %1)").arg(WEXITSTATUS(status));
}

/// Everything that the child says until it ends, or until its time is up.
QByteArray readAll(int pipe, pid_t child, int wallSeconds) {
    QByteArray lines;
    QElapsedTimer clock;
    clock.start();
    for (;;) {
        const qint64 left = qint64(wallSeconds) * 1000 - clock.elapsed();
        if (left <= 0) {
            kill(child, SIGKILL);
            return lines;
        }
        pollfd waiting = {pipe, POLLIN, 0};
        if (poll(&waiting, 1, int(left)) > 0) {
            char part[4096];
            const ssize_t count = read(pipe, part, sizeof part);
            if (count == 0 || (count < 0 && errno != EINTR)) {
                return lines;
            }
            lines.append(part, int(qMax<ssize_t>(0, count)));
        }
    }
}

Findings runProcess(const Check &check, const QByteArray &root, bool restarted, const Limits &limits, int argc,
                    char **argv) {
    Findings found;
    int ends[2];
    if (pipe(ends) != 0) {
        found.problems << QStringLiteral("no pipe: ") + QString::fromLocal8Bit(strerror(errno));
        return found;
    }
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        runChild(check, root, restarted, limits, ends[1], argc, argv);
    }
    close(ends[1]);
    if (child < 0) {
        found.problems << QStringLiteral("no process: ") + QString::fromLocal8Bit(strerror(errno));
        close(ends[0]);
        return found;
    }
    const QByteArray lines = readAll(ends[0], child, limits.wallSeconds);
    close(ends[0]);
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    bool complete = false;
    for (const QByteArray &line : lines.split('\n')) {
        if (line.startsWith('P')) {
            found.problems << QString::fromUtf8(line.mid(1));
        } else if (line.startsWith('S')) {
            found.skipped = QString::fromUtf8(line.mid(1));
        } else if (line == "E") {
            complete = true;
        }
    }
    if (!complete) {
        found.problems << endOf(status);
    }
    return found;
}

Result resultOf(const Check &check, const Findings &found) {
    const Outcome outcome = !found.problems.isEmpty() ? NotOk : found.skipped.isEmpty() ? Ok : Skipped;
    return {check, outcome, found.problems, found.skipped};
}

}  // namespace

Result runApart(const Check &check, const Limits &limits, int argc, char **argv) {
    QByteArray root = QFile::encodeName(QDir::tempPath()) + "/conformance-XXXXXX";
    if (!mkdtemp(root.data())) {
        return {check, NotOk, {QStringLiteral("no folder for the unit: ") + QDir::tempPath()}, QString()};
    }
    Findings found = runProcess(check, root, false, limits, argc, argv);
    if (check.afterRestart && found.problems.isEmpty() && found.skipped.isEmpty()) {
        found = runProcess(check, root, true, limits, argc, argv);
    }
    QDir(QFile::decodeName(root)).removeRecursively();
    return resultOf(check, found);
}

Result runHere(const Check &check, const QByteArray &root, bool restarted, int argc, char **argv) {
    runInUnit(check, root, restarted && check.afterRestart, argc, argv);
    return resultOf(check, findings());
}

}  // namespace conformance
