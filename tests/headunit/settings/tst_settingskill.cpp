// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/settingsfile.h"
#include "headunit/settings/settingsstore.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <chrono>
#include <csignal>
#include <random>

using namespace headunit;

namespace {

constexpr qint64 changesPerFlush = 4096;
constexpr int patienceMs = 60000;

/// The child's line after each pair of changes.
struct Report {
    qint64 number;
    qint64 flushed;  ///< the newest number that the child has waited for
    qint64 timeNs;
};

qint64 nowNs() {
    return std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// The process that is killed: counts up in two keys, one after the other, until it dies. With \a flushing it waits
/// for the disk now and then.
int countUntilKilled(const QString &path, bool flushing) {
    SettingsStore store;
    if (!store.open(path, {}).isEmpty()) {
        return 1;
    }
    qint64 flushed = 0;
    for (qint64 number = store.intValue("first", 0) + 1;; ++number) {
        store.set("first", static_cast<int>(number));
        store.set("second", static_cast<int>(number));
        if (flushing && number % changesPerFlush == 0 && store.flush(patienceMs)) {
            flushed = number;
        }
        const Report report{number, flushed, nowNs()};
        if (write(STDOUT_FILENO, &report, sizeof report) != sizeof report) {
            return 1;
        }
    }
}

/// A child process and its reports.
class Child {
public:
    Child(const QString &path, bool flushing) {
        int ends[2];
        if (pipe2(ends, O_CLOEXEC) != 0) {
            qFatal("no pipe");
        }
        const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
        const QByteArray file = QFile::encodeName(path);
        m_id = fork();
        if (m_id == 0) {
            dup2(ends[1], STDOUT_FILENO);
            execl(program.constData(), program.constData(), flushing ? "--flush" : "--count", file.constData(),
                  nullptr);
            _exit(1);
        }
        close(ends[1]);
        m_pipe = ends[0];
    }
    ~Child() { close(m_pipe); }
    Child(const Child &) = delete;
    Child &operator=(const Child &) = delete;

    bool read(Report *report) { return ::read(m_pipe, report, sizeof *report) == sizeof *report; }
    /// Returns when it was alive for the last time.
    qint64 killNow() {
        const qint64 time = nowNs();
        kill(m_id, SIGKILL);
        int status = 0;
        waitpid(m_id, &status, 0);
        m_killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
        return time;
    }
    bool killed() const { return m_killed; }

private:
    pid_t m_id = -1;
    int m_pipe = -1;
    bool m_killed = false;
};

}  // namespace

class tst_SettingsKill : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void killedAtAnyMoment();
};

void tst_SettingsKill::killedAtAnyMoment() {
    constexpr int rounds = 250;
    constexpr unsigned longestLifeNs = 120'000'000;
    const quint32 seed = std::random_device{}();
    qDebug("seed %u", seed);
    std::mt19937 random(seed);
    QTemporaryDir folder;
    const QString path = folder.filePath("settings.json");
    qint64 before = 0;
    qint64 worstLossNs = 0;
    for (int round = 0; round < rounds; ++round) {
        const qint64 life = random() % longestLifeNs;
        const bool untilFlushed = round % 2 == 0;
        Child child(path, untilFlushed);
        QVector<Report> reports;
        Report report{};
        while (child.read(&report)) {
            reports.append(report);
            if (untilFlushed ? report.flushed > 0 : report.timeNs - reports.first().timeNs >= life) {
                break;
            }
        }
        const qint64 killTime = child.killNow();
        while (child.read(&report)) {
            reports.append(report);
        }
        QVERIFY(child.killed());
        QVERIFY(!reports.isEmpty());
        QCOMPARE(reports.first().number, before + 1);

        Snapshot state;
        QString problem;
        SettingsFile(path).load(&state, &problem);
        QVERIFY2(problem.isEmpty(), qPrintable(problem));
        const qint64 first = toInt(state.values.value("first"), 0);
        const qint64 second = toInt(state.values.value("second"), 0);
        QVERIFY2(second == first || second == first - 1, qPrintable(QString("%1 and %2").arg(first).arg(second)));
        QVERIFY(second >= before - 1);
        QVERIFY(second >= reports.last().flushed);
        QVERIFY(!untilFlushed || reports.last().flushed > 0);
        QVERIFY(first <= reports.last().number + 1);
        for (auto it = reports.crbegin(); it != reports.crend() && it->number > second; ++it) {
            worstLossNs = qMax(worstLossNs, killTime - it->timeNs);
        }
        before = first;
    }
    qDebug("%d kills, oldest lost change %.1f ms", rounds, worstLossNs / 1e6);  // depends on what else the machine does
}

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() == 3 && (arguments.at(1) == "--count" || arguments.at(1) == "--flush")) {
        return countUntilKilled(arguments.at(2), arguments.at(1) == "--flush");
    }
    tst_SettingsKill test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_settingskill.moc"
