// SPDX-License-Identifier: Apache-2.0
#include "settingswriter.h"

#include "lines.h"

#include <QtGlobal>

#include <system_error>
#include <utility>

namespace headunit {

using std::chrono::milliseconds;

struct SettingsWriter::Shared {
    Shared(const QString &pathInLog, const Snapshot &state, milliseconds gather, Save function,
           std::shared_ptr<SaveClock> time, FailingWriters among)
        : path(pathInLog),
          gatherTime(gather),
          save(std::move(function)),
          clock(std::move(time)),
          failingWriters(std::move(among)),
          base(state.number),
          onDisk(state) {}

    const QString path;
    const milliseconds gatherTime;
    const Save save;
    const std::shared_ptr<SaveClock> clock;
    const FailingWriters failingWriters;
    const qint64 base;  ///< the number of the state that this began with

    // Under the mutex, which is never held during work on the disk.
    std::mutex mutex;
    std::condition_variable wake;  ///< to the thread: changes, flush, quit
    std::condition_variable done;  ///< from the thread: a save ended
    SettingsMap pending;           ///< changed since the last save began; invalid values remove
    SettingsMap replacement;
    bool replace = false;
    quint64 changes = 0;  ///< counts calls that changed something
    quint64 saved = 0;    ///< the changes that are on the disk
    quint64 tried = 0;    ///< the changes that the last save took along, also if it failed
    SaveClock::TimePoint due;
    quint64 savesBegun = 0;
    quint64 savesEnded = 0;
    bool flushNow = false;
    bool quit = false;
    bool finished = false;
    bool threadless = false;  ///< no thread was to be had: flush() and the end save

    // The thread's own.
    Snapshot onDisk;
    bool failing = false;

    void changed();
    void takeChanges();
    void saveChanges(std::unique_lock<std::mutex> &lock);
    /// Waits for \a condition, which a save or the end of the thread may bring about. False if that takes longer.
    template <typename Condition>
    bool waitUntilDone(std::unique_lock<std::mutex> &lock, int timeoutMs, const Condition &condition);
};

void SettingsWriter::Shared::changed() {
    if (changes == tried) {  // the first of a gathering; a retry that waits is brought forward
        due = clock->now() + gatherTime;
        wake.notify_one();
    }
    ++changes;
}

void SettingsWriter::Shared::takeChanges() {
    if (replace) {
        onDisk.values = replacement;
        replacement.clear();
        replace = false;
    }
    for (auto it = pending.cbegin(); it != pending.cend(); ++it) {
        if (it.value().isValid()) {
            onDisk.values.insert(it.key(), it.value());
        } else {
            onDisk.values.remove(it.key());
        }
    }
    pending.clear();
    onDisk.number = base + static_cast<qint64>(changes);
}

void SettingsWriter::Shared::saveChanges(std::unique_lock<std::mutex> &lock) {
    flushNow = false;
    const quint64 taken = changes;
    takeChanges();
    tried = taken;
    ++savesBegun;
    lock.unlock();
    QString problem;
    const bool ok = save(onDisk, &problem);
    // What keeps one file from being written mostly keeps all of them; one line says it.
    if (!ok && !failing && (*failingWriters)++ == 0) {
        qWarning("%s; going on from memory and trying again", qUtf8Printable(problem));
    } else if (ok && failing && --*failingWriters == 0) {
        qWarning("settings file %s is written again", qUtf8Printable(path));
    }
    failing = !ok;
    lock.lock();
    if (ok) {
        saved = taken;
    } else if (changes == taken) {
        due = clock->now() + milliseconds(retryTimeMs);
    }
    ++savesEnded;
    done.notify_all();
}

template <typename Condition> bool SettingsWriter::Shared::waitUntilDone(std::unique_lock<std::mutex> &lock,
                                                                         int timeoutMs, const Condition &condition) {
    // In steps: where the whole process is stopped for a while, that is not the disk's fault, and takes one of them.
    constexpr milliseconds step(50);
    for (milliseconds left(timeoutMs); left > milliseconds::zero() && !condition(); left -= step) {
        const SaveClock::TimePoint end = clock->now() + qMin(left, step);
        while (!condition() && clock->now() < end) {
            clock->wait(done, lock, end);
        }
    }
    return condition();
}

SettingsWriter::SettingsWriter(const QString &path, const Snapshot &onDisk, int gatherTimeMs, Save save,
                               std::shared_ptr<SaveClock> clock, FailingWriters failing)
    : m_shared(std::make_shared<Shared>(path, onDisk, milliseconds(gatherTimeMs), std::move(save), std::move(clock),
                                        std::move(failing))) {
    try {
        m_thread = std::thread(&SettingsWriter::run, m_shared);
    } catch (const std::system_error &) {
        m_shared->threadless = true;
        sayNoThread();
    }
}

SettingsWriter::~SettingsWriter() {
    finish();
}

bool SettingsWriter::finish() {
    std::unique_lock<std::mutex> lock(m_shared->mutex);
    if (m_shared->threadless && m_shared->saved != m_shared->changes) {
        m_shared->saveChanges(lock);
    }
    if (!m_thread.joinable()) {
        return m_shared->saved == m_shared->changes;
    }
    m_shared->quit = true;
    m_shared->wake.notify_one();
    const bool ended = m_shared->waitUntilDone(lock, finishTimeMs, [this] { return m_shared->finished; });
    const bool saved = m_shared->saved == m_shared->changes;
    lock.unlock();
    if (ended) {
        m_thread.join();
    } else {
        // A thread that waits for a dead disk is left behind: it works on what it shares only.
        qWarning("settings file %s: the disk does not answer", qUtf8Printable(m_shared->path));
        m_thread.detach();
    }
    return ended && saved;
}

void SettingsWriter::put(const QString &key, const QVariant &value) {
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    m_shared->pending.insert(key, value);
    m_shared->changed();
}

void SettingsWriter::replaceAll(const SettingsMap &values) {
    const std::lock_guard<std::mutex> lock(m_shared->mutex);
    m_shared->pending.clear();
    m_shared->replacement = values;
    m_shared->replace = true;
    m_shared->changed();
}

bool SettingsWriter::flush(int timeoutMs) {
    std::unique_lock<std::mutex> lock(m_shared->mutex);
    Shared &shared = *m_shared;
    const quint64 wanted = shared.changes;
    if (shared.saved >= wanted) {
        return true;
    }
    if (shared.threadless) {
        shared.saveChanges(lock);
        return shared.saved >= wanted;
    }
    shared.flushNow = true;
    shared.wake.notify_one();
    const quint64 nextSave = shared.savesBegun + 1;
    const auto ended = [&shared, wanted, nextSave] { return shared.saved >= wanted || shared.savesEnded >= nextSave; };
    return shared.waitUntilDone(lock, timeoutMs, ended) && shared.saved >= wanted;
}

void SettingsWriter::run(const std::shared_ptr<Shared> &pointer) {
    Shared &shared = *pointer;
    std::unique_lock<std::mutex> lock(shared.mutex);
    for (bool ending = false; !ending;) {
        ending = shared.quit;
        const bool changed = shared.saved != shared.changes;
        if (changed && (ending || shared.flushNow || shared.clock->now() >= shared.due)) {
            shared.saveChanges(lock);
        } else if (changed) {
            shared.clock->wait(shared.wake, lock, shared.due);
        } else if (!ending) {
            shared.flushNow = false;
            shared.clock->wait(shared.wake, lock, SaveClock::never);
        }
    }
    shared.finished = true;
    shared.done.notify_all();
}

}  // namespace headunit
