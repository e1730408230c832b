// SPDX-License-Identifier: Apache-2.0
#include "headunit/settings/settingswriter.h"

#include "logwatch.h"
#include "manualclock.h"

#include <QtTest>

#include <atomic>

using namespace headunit;

namespace {

constexpr int gatherMs = 20;

/// A disk that keeps what it was given, in order, and fails on demand.
struct Disk {
    std::mutex mutex;
    QVector<Snapshot> saves;
    bool fails = false;
    std::atomic<int> begun{0};

    bool save(const Snapshot &snapshot, QString *problem) {
        ++begun;
        const std::lock_guard<std::mutex> lock(mutex);
        saves.append(snapshot);
        *problem = fails ? "disk on strike" : "";
        return !fails;
    }
    QVector<Snapshot> take() {
        const std::lock_guard<std::mutex> lock(mutex);
        QVector<Snapshot> taken;
        taken.swap(saves);
        return taken;
    }
    void setFails(bool on) {
        const std::lock_guard<std::mutex> lock(mutex);
        fails = on;
    }
};

}  // namespace

class tst_SettingsWriter : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void waitsForChanges();
    void gathersFromTheFirstChange();
    void gathersAnew();
    void replacesAll();
    void flushDoesNotWaitForTheTime();
    void flushWithoutChangesIsNoSave();
    void flushGivesUp();
    void aStopOfTheProcessIsNotTheDisks();
    void triesAgain();
    void aChangeBringsTheRetryForward();
    void aChangeDuringAFailingSaveWaitsForNoRetry();
    void finishSavesTheRest();
    void finishGivesUp();

private:
    /// Moves time, and returns what was saved by then.
    QVector<Snapshot> advance(int ms) {
        m_clock->advance(ms);
        m_clock->settle();
        return m_disk.take();
    }

    Disk m_disk;
    std::shared_ptr<ManualClock> m_clock;
    std::unique_ptr<SettingsWriter> m_writer;
    std::unique_ptr<LogWatch> m_log;
};

void tst_SettingsWriter::init() {
    m_log = std::make_unique<LogWatch>();
    m_clock = std::make_shared<ManualClock>();
    m_disk.setFails(false);
    m_disk.take();
    m_writer = std::make_unique<SettingsWriter>(
        "the file", Snapshot{{{"old", 1}}, 7}, gatherMs,
        [this](const Snapshot &snapshot, QString *problem) { return m_disk.save(snapshot, problem); }, m_clock);
    m_clock->settle();
}

void tst_SettingsWriter::cleanup() {
    m_writer.reset();
    QCOMPARE(m_log->takeWarnings(), QStringList());
    m_log.reset();
}

void tst_SettingsWriter::waitsForChanges() {
    QVERIFY(advance(3600 * 1000).isEmpty());
}

void tst_SettingsWriter::gathersFromTheFirstChange() {
    m_writer->put("a", 1);
    QVERIFY(advance(gatherMs - 1).isEmpty());
    m_writer->put("b", 2);  // does not put it off
    m_writer->put("a", 3);
    const auto saves = advance(1);
    QCOMPARE(saves.size(), 1);
    QCOMPARE(saves.first().values, (SettingsMap{{"old", 1}, {"a", 3}, {"b", 2}}));
    QCOMPARE(saves.first().number, 10);  // three changes after state 7
    QVERIFY(advance(3600 * 1000).isEmpty());
}

void tst_SettingsWriter::gathersAnew() {
    m_writer->put("a", 1);
    QCOMPARE(advance(gatherMs).size(), 1);
    m_writer->put("old", QVariant());
    QVERIFY(advance(gatherMs - 1).isEmpty());
    const auto saves = advance(1);
    QCOMPARE(saves.size(), 1);
    QCOMPARE(saves.first().values, (SettingsMap{{"a", 1}}));
    QCOMPARE(saves.first().number, 9);
}

void tst_SettingsWriter::replacesAll() {
    m_writer->put("a", 1);
    m_writer->replaceAll({{"b", 2}});
    m_writer->put("c", 3);
    const auto saves = advance(gatherMs);
    QCOMPARE(saves.size(), 1);
    QCOMPARE(saves.first().values, (SettingsMap{{"b", 2}, {"c", 3}}));
}

void tst_SettingsWriter::flushDoesNotWaitForTheTime() {
    m_writer->put("a", 1);
    QVERIFY(m_writer->flush(1));
    QCOMPARE(m_disk.take().size(), 1);
    QVERIFY(advance(gatherMs).isEmpty());
}

void tst_SettingsWriter::flushWithoutChangesIsNoSave() {
    QVERIFY(m_writer->flush(1));
    QCOMPARE(m_disk.take().size(), 0);
}

void tst_SettingsWriter::flushGivesUp() {
    const std::unique_lock<std::mutex> disk(m_disk.mutex);  // does not answer
    m_writer->put("a", 1);
    QVERIFY(!m_writer->flush(0));
    const auto before = m_clock->now();
    bool saved = true;
    m_clock->runDuring([&] { saved = m_writer->flush(50); });
    QVERIFY(!saved);
    QVERIFY(m_clock->now() - before >= std::chrono::milliseconds(50));
}

void tst_SettingsWriter::aStopOfTheProcessIsNotTheDisks() {
    std::atomic<bool> blocked{false};
    std::atomic<bool> returned{false};
    const int before = m_disk.begun;
    std::thread machine([&] {
        const std::lock_guard<std::mutex> disk(m_disk.mutex);  // does not answer yet
        blocked = true;
        while (m_disk.begun == before) {
            std::this_thread::yield();
        }
        m_clock->advance(SettingsWriter::finishTimeMs);
        while (!returned && !m_clock->hasSettled()) {
            std::this_thread::yield();
        }
    });
    while (!blocked) {
        std::this_thread::yield();
    }
    m_writer->put("a", 1);
    const bool saved = m_writer->finish();
    returned = true;
    machine.join();
    QVERIFY(saved);
}

void tst_SettingsWriter::triesAgain() {
    m_disk.setFails(true);
    m_writer->put("a", 1);
    QCOMPARE(advance(gatherMs).size(), 1);
    QCOMPARE(m_log->takeWarnings(), QStringList{"disk on strike; going on from memory and trying again"});
    QVERIFY(advance(SettingsWriter::retryTimeMs - 1).isEmpty());
    QCOMPARE(advance(1).size(), 1);
    QVERIFY(!m_writer->flush(1));
    m_disk.take();
    QCOMPARE(m_log->takeWarnings(), QStringList());
    m_disk.setFails(false);
    const auto saves = advance(SettingsWriter::retryTimeMs);
    QCOMPARE(saves.size(), 1);
    QCOMPARE(saves.first().values, (SettingsMap{{"old", 1}, {"a", 1}}));
    QCOMPARE(m_log->takeWarnings(), QStringList{"settings file the file is written again"});
    QVERIFY(advance(3600 * 1000).isEmpty());
}

void tst_SettingsWriter::aChangeBringsTheRetryForward() {
    m_disk.setFails(true);
    m_writer->put("a", 1);
    QCOMPARE(advance(gatherMs).size(), 1);
    m_log->takeWarnings();
    m_disk.setFails(false);
    m_writer->put("b", 2);
    QVERIFY(advance(gatherMs - 1).isEmpty());
    const auto saves = advance(1);
    QCOMPARE(saves.size(), 1);
    QCOMPARE(saves.first().values, (SettingsMap{{"old", 1}, {"a", 1}, {"b", 2}}));
    m_log->takeWarnings();
}

void tst_SettingsWriter::aChangeDuringAFailingSaveWaitsForNoRetry() {
    m_disk.fails = true;
    m_writer->put("a", 1);
    {
        const std::unique_lock<std::mutex> disk(m_disk.mutex);
        const int before = m_disk.begun;
        m_clock->advance(gatherMs);
        while (m_disk.begun == before) {
            std::this_thread::yield();
        }
        m_writer->put("b", 2);
    }
    m_clock->settle();
    m_disk.setFails(false);
    QCOMPARE(m_disk.take().size(), 1);
    QVERIFY(advance(gatherMs - 1).isEmpty());
    QCOMPARE(advance(1).size(), 1);
    m_log->takeWarnings();
}

void tst_SettingsWriter::finishSavesTheRest() {
    m_writer->put("a", 1);
    QVERIFY(m_writer->finish());
    QCOMPARE(m_disk.take().size(), 1);
    QVERIFY(m_writer->finish());
}

void tst_SettingsWriter::finishGivesUp() {
    {
        const std::unique_lock<std::mutex> disk(m_disk.mutex);  // does not answer
        m_writer->put("a", 1);
        const auto before = m_clock->now();
        bool saved = true;
        m_clock->runDuring([&] { saved = m_writer->finish(); });
        QVERIFY(!saved);
        QVERIFY(m_clock->now() - before >= std::chrono::milliseconds(SettingsWriter::finishTimeMs));
    }
    QCOMPARE(m_log->takeWarnings(), QStringList{"settings file the file: the disk does not answer"});
    while (m_disk.take().isEmpty()) {  // the thread that was left behind
        std::this_thread::yield();
    }
}

QTEST_GUILESS_MAIN(tst_SettingsWriter)
#include "tst_settingswriter.moc"
