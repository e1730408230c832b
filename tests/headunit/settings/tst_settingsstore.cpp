// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/settingsstore.h"

#include "headunit/settings/settingsfile.h"
#include "logwatch.h"
#include "manualclock.h"

#include <QtTest>

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace headunit;

namespace {

constexpr int longestLossMs = 100;
constexpr int patienceMs = 60000;

}  // namespace

namespace {

QVector<int> g_flockErrors;  ///< what the next calls end in, before the real one is made

}  // namespace

/// Stands before the C library's flock(), for file systems that are not at hand. Under another name here, as a
/// structure has that one, too.
extern "C" int flockOfOtherFileSystems(int fd, int operation) __asm__("flock");
extern "C" int flockOfOtherFileSystems(int fd, int operation) {
    if (!g_flockErrors.isEmpty()) {
        errno = g_flockErrors.takeFirst();
        return -1;
    }
    return static_cast<int>(syscall(SYS_flock, fd, operation));
}

class tst_SettingsStore : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void longTextIsRefused();
    void locks_data();
    void locks();
    void linkAsLock();
    void init();
    void memoryOnly();
    void factoryFirst();
    void restartKeepsTypes();
    void closeSaves();
    void replaceAllRemoves();
    void removesWithAnInvalidValue();
    void refusesWhatCannotBeKept();
    void anUnchangedValueIsNoSave();
    void whatOnlyAQuickCopyHoldsSurvivesAnIdleRun();
    void onTheDiskWithoutBeingAsked();
    void killedWhileTheMediumIsSlow();
    void damageIsOneWarning();
    void neverWaitsForTheDisk();
    void aDeadDiskEndsWithTheStore();
    void failingDiskIsOneWarningAndRetried();
    void secondProcessOnlyReads();

private:
    QString path() const { return m_folder->filePath("settings.json"); }
    SettingsMap onDisk() const {
        Snapshot state;
        SettingsFile(path()).peek(&state);
        return state.values;
    }
    /// Makes the writer wait, as a disk that does not answer does, until readBlockedSave().
    void blockSaves() { QCOMPARE(mkfifo(newPath().constData(), 0600), 0); }
    /// Waits for the save that waits, and lets it go on. It then fails: a pipe keeps nothing.
    void readBlockedSave();
    QByteArray newPath() const { return QFile::encodeName(path() + ".new"); }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<ManualClock> m_clock;  // so that no disk is too slow
};

void tst_SettingsStore::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_clock = std::make_shared<ManualClock>();
}

void tst_SettingsStore::readBlockedSave() {
    const int pipe = open(newPath().constData(), O_RDONLY);  // returns once the writer has it open as well
    QVERIFY(pipe >= 0);
    char buffer[4096];
    while (read(pipe, buffer, sizeof buffer) > 0) {
    }
    close(pipe);
}

void tst_SettingsStore::memoryOnly() {
    SettingsStore store(m_clock);
    QCOMPARE(store.intValue("a", 7), 7);
    QCOMPARE(store.boolValue("a", true), true);
    store.set("a", 3);
    QCOMPARE(store.intValue("a", 7), 3);
    QVERIFY(!store.flush());
}

void tst_SettingsStore::factoryFirst() {
    SettingsStore store(m_clock);
    QCOMPARE(store.open(path(), {{"a", 1}, {"b", 2}}), QString());
    QCOMPARE(store.intValue("a", 0), 1);
    QCOMPARE(onDisk().size(), 0);  // opening writes nothing
    store.set("a", 5);
    QVERIFY(store.flush());
    store.close();
    QCOMPARE(store.intValue("a", -1), -1);
    QCOMPARE(store.open(path(), {{"a", 8}, {"c", 9}}), QString());
    QCOMPARE(store.intValue("a", 0), 5);
    QCOMPARE(store.intValue("b", 0), 2);
    QCOMPARE(store.intValue("c", 0), 0);  // the factory state is only for a store that has none
}

void tst_SettingsStore::restartKeepsTypes() {
    SettingsStore store(m_clock);
    store.open(path(), {});
    store.set("int", 1);
    store.set("bool", true);
    store.set("text", "1");
    store.close();
    store.open(path(), {});
    QVERIFY(sameValue(store.values().value("int"), 1));
    QVERIFY(sameValue(store.values().value("bool"), true));
    QVERIFY(sameValue(store.values().value("text"), "1"));
}

void tst_SettingsStore::closeSaves() {
    {
        SettingsStore store(m_clock);
        store.open(path(), {});
        store.set("a", 4);
    }
    QCOMPARE(onDisk().value("a"), QVariant(4));
}

void tst_SettingsStore::replaceAllRemoves() {
    SettingsStore store(m_clock);
    store.open(path(), {});
    store.set("a", 4);
    store.replaceAll({{"b", 5}});
    store.set("c", 6);
    QCOMPARE(store.intValue("a", -1), -1);
    QCOMPARE(store.intValue("b", -1), 5);
    QVERIFY(store.flush());
    QCOMPARE(onDisk(), (SettingsMap{{"b", 5}, {"c", 6}}));
}

void tst_SettingsStore::removesWithAnInvalidValue() {
    SettingsStore store(m_clock);
    store.open(path(), {{"a", 1}, {"b", 2}});
    store.set("a", QVariant());
    store.set("never", QVariant());
    QCOMPARE(store.intValue("a", -1), -1);
    QVERIFY(store.flush());
    QCOMPARE(onDisk(), (SettingsMap{{"b", 2}}));
}

void tst_SettingsStore::refusesWhatCannotBeKept() {
    LogWatch log;
    SettingsStore store(m_clock);
    store.set("a", 4);
    store.set("a", QStringList{"x"});
    QCOMPARE(store.intValue("a", -1), 4);
    QCOMPARE(log.takeWarnings(), QStringList{"settings: a cannot hold a QStringList"});
}

void tst_SettingsStore::anUnchangedValueIsNoSave() {
    SettingsStore store(m_clock);
    store.open(path(), {});
    store.set("a", 4);
    QVERIFY(store.flush());
    QVERIFY(QFile::remove(path()));
    store.set("a", 4);
    QVERIFY(store.flush());
    QVERIFY(!QFile::exists(path()));
    store.set("a", true);  // another type is another value
    QVERIFY(store.flush());
    QVERIFY(sameValue(onDisk().value("a"), true));
}

void tst_SettingsStore::whatOnlyAQuickCopyHoldsSurvivesAnIdleRun() {
    // A process was killed before its last change was in the file.
    SettingsFile file(path());
    QString problem;
    QVERIFY2(file.save({{{"a", 1}}, 1}, &problem), qPrintable(problem));
    QVERIFY(file.saveQuickly({{{"a", 2}}, 2}));
    for (int run = 0; run < 2; ++run) {
        SettingsStore store(m_clock);
        QCOMPARE(store.open(path(), SettingsMap()), QString());
        QCOMPARE(store.intValue("a", 0), 2);
    }
    QCOMPARE(onDisk().value("a"), QVariant(2));
}

void tst_SettingsStore::onTheDiskWithoutBeingAsked() {
    SettingsStore store(m_clock);
    store.open(path(), {});
    store.set("a", 1);
    store.set("b", 2);
    m_clock->advance(longestLossMs);
    QTRY_COMPARE_WITH_TIMEOUT(onDisk(), (SettingsMap{{"a", 1}, {"b", 2}}), patienceMs);
}

void tst_SettingsStore::killedWhileTheMediumIsSlow() {
    LogWatch log;
    SettingsStore store(m_clock);
    store.open(path(), {});
    blockSaves();
    const auto unblock = qScopeGuard([this] { readBlockedSave(); });
    const auto foundByANewProcess = [this] {
        Snapshot state;
        QString problem;
        SettingsFile(path()).load(&state, &problem);
        return state.values;
    };
    for (int number = 1; number <= 5; ++number) {
        store.set("a", number);
        store.set("b", number);
        m_clock->advance(longestLossMs);
        QTRY_COMPARE_WITH_TIMEOUT(foundByANewProcess(), (SettingsMap{{"a", number}, {"b", number}}), patienceMs);
    }
    QVERIFY(!QFile::exists(path()));
}

void tst_SettingsStore::damageIsOneWarning() {
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("\x01\x02") == 2);
    file.close();
    LogWatch log;
    SettingsStore store(m_clock);
    const QString problem = store.open(path(), {{"a", 1}});
    QVERIFY2(problem.contains(path()), qPrintable(problem));
    QCOMPARE(log.takeWarnings(), QStringList{problem});
    QCOMPARE(store.intValue("a", 0), 1);
}

void tst_SettingsStore::neverWaitsForTheDisk() {
    LogWatch log;
    SettingsStore store(m_clock);
    store.open(path(), {});
    blockSaves();
    constexpr int count = 20000;
    for (int number = 0; number < count; ++number) {
        const QString key = QString::number(number % 100);
        store.set(key, number);
        QCOMPARE(store.intValue(key, -1), number);
    }
    QVERIFY(!store.flush(0));  // the disk really does not answer
    store.set("last", 1);
    readBlockedSave();
    QVERIFY(store.flush() || store.flush());  // the first may still meet the blocked save
    QCOMPARE(onDisk(), store.values());
    QCOMPARE(onDisk().size(), 101);
}

void tst_SettingsStore::aDeadDiskEndsWithTheStore() {
    LogWatch log;
    blockSaves();
    m_clock->runDuring([this] {
        SettingsStore store(m_clock);
        store.open(path(), {});
        store.set("a", 1);
    });
    const QStringList warnings = log.takeWarnings();
    QVERIFY(!warnings.isEmpty());
    for (const QString &warning : warnings) {  // time runs so fast that the other writer may be given up on as well
        QCOMPARE(warning, "settings file " + path() + ": the disk does not answer");
    }
    readBlockedSave();
    QStringList last;
    const auto hasEnded = [&] {  // the thread that was left behind has said its last word
        last += log.takeWarnings();
        return last.join('\n').contains("cannot be written");
    };
    QTRY_VERIFY_WITH_TIMEOUT(hasEnded(), patienceMs);
}

void tst_SettingsStore::failingDiskIsOneWarningAndRetried() {
    LogWatch log;
    SettingsStore store(m_clock);
    store.open(path(), {});
    store.set("a", 1);
    QVERIFY(store.flush());
    rlimit before{};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit full = {10, before.rlim_max};  // bytes a file
    const auto handler = signal(SIGXFSZ, SIG_IGN);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &full), 0);
    store.set("a", 2);
    QVERIFY(!store.flush());
    store.set("a", 3);
    QVERIFY(!store.flush());
    QCOMPARE(store.intValue("a", 0), 3);
    QCOMPARE(onDisk().value("a"), QVariant(1));
    const QStringList warnings = log.takeWarnings();
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().contains(path()) && warnings.first().contains("trying again"),
             qPrintable(warnings.first()));
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, handler);
    QVERIFY(store.flush());  // without a further change
    QCOMPARE(onDisk().value("a"), QVariant(3));
    QCOMPARE(log.takeWarnings(), QStringList{"settings file " + path() + " is written again"});
}

void tst_SettingsStore::secondProcessOnlyReads() {
    LogWatch log;
    SettingsStore first(m_clock);
    first.open(path(), {});
    first.set("a", 1);
    QVERIFY(first.flush());
    SettingsStore second(m_clock);
    const QString problem = second.open(path(), {});
    QVERIFY2(problem.contains(path()) && problem.contains("in use"), qPrintable(problem));
    QCOMPARE(second.intValue("a", 0), 1);
    second.set("a", 2);
    QCOMPARE(second.intValue("a", 0), 2);
    QVERIFY(!second.flush());
    QCOMPARE(onDisk().value("a"), QVariant(1));
    first.close();
    QCOMPARE(second.open(path(), {}), QString());
    second.set("a", 2);
    QVERIFY(second.flush());
    QCOMPARE(onDisk().value("a"), QVariant(2));
}

void tst_SettingsStore::longTextIsRefused() {
    SettingsStore store;
    LogWatch log;
    const QString longest(64 * 1024, 'x');
    store.set("a", longest);
    QCOMPARE(store.values().value("a").toString(), longest);
    store.set("a", longest + 'x');
    store.set("b", QString(64 * 1024 / 3 + 1, QChar(0x3042)));  // three bytes each
    QCOMPARE(store.values().value("a").toString(), longest);
    QVERIFY(!store.values().contains("b"));
    QCOMPARE(log.takeWarnings(), QStringList("settings: a cannot hold a text of more than 65536 bytes"));
}

void tst_SettingsStore::locks_data() {
    QTest::addColumn<QVector<int>>("errors");
    QTest::addColumn<bool>("free");
    QTest::newRow("in use") << QVector<int>{EWOULDBLOCK} << false;
    QTest::newRow("interrupted") << QVector<int>{EINTR, EINTR} << true;
    QTest::newRow("interrupted, in use") << QVector<int>{EINTR, EWOULDBLOCK} << false;
    QTest::newRow("no locks here") << QVector<int>{ENOLCK} << true;
    QTest::newRow("no such call") << QVector<int>{ENOSYS} << true;
}

/// Only another holder is called one.
void tst_SettingsStore::locks() {
    QFETCH(QVector<int>, errors);
    QTemporaryDir folder;
    g_flockErrors = errors;
    FolderLock lock;
    const bool acquired = lock.acquire(folder.filePath("lock"));
    g_flockErrors.clear();
    QTEST(acquired, "free");
}

void tst_SettingsStore::linkAsLock() {
    QTemporaryDir folder;
    QVERIFY(QFile::link(folder.filePath("elsewhere"), folder.filePath("lock")));
    FolderLock first;
    FolderLock second;
    QVERIFY(first.acquire(folder.filePath("lock")));
    QVERIFY(!second.acquire(folder.filePath("lock")));
    QVERIFY(!QFile::exists(folder.filePath("elsewhere")));
}

QTEST_GUILESS_MAIN(tst_SettingsStore)
#include "tst_settingsstore.moc"
