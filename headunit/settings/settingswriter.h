// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "saveclock.h"
#include "settingstext.h"

#include <atomic>
#include <functional>
#include <memory>
#include <thread>

namespace headunit {

/// Brings changed settings to the disk from a thread of its own, so that whoever changes them never waits.
///
/// Changes are gathered for a while and saved together. A save that fails is reported once in the log and tried
/// again until it succeeds.
class SettingsWriter {
public:
    static constexpr int retryTimeMs = 1000;
    static constexpr int finishTimeMs = 2000;

    /// Saves a state; false with a line that names the file if that fails. Called on the writer's thread.
    using Save = std::function<bool(const Snapshot &snapshot, QString *problem)>;

    /// How many of a unit's writers fail: the first one says so, and the last one that it is over.
    using FailingWriters = std::shared_ptr<std::atomic<int>>;

    /// \a path names the file in the log, \a onDisk is what is on the disk now.
    SettingsWriter(const QString &path, const Snapshot &onDisk, int gatherTimeMs, Save save,
                   std::shared_ptr<SaveClock> clock, FailingWriters failing = std::make_shared<std::atomic<int>>(0));
    ~SettingsWriter();  ///< finishes
    SettingsWriter(const SettingsWriter &) = delete;
    SettingsWriter &operator=(const SettingsWriter &) = delete;

    /// Saves \a value soon; an invalid one removes the key.
    void put(const QString &key, const QVariant &value);
    /// Saves \a values soon in place of everything before.
    void replaceAll(const SettingsMap &values);
    /// Saves now and waits for it. False if that fails or takes longer.
    bool flush(int timeoutMs);
    /// Saves what is left and ends the thread; the last call. False if that fails or takes more than finishTimeMs.
    bool finish();

private:
    // Shared with the thread, which outlives this object where the disk never answers.
    struct Shared;
    static void run(const std::shared_ptr<Shared> &shared);
    std::shared_ptr<Shared> m_shared;
    std::thread m_thread;
};

}  // namespace headunit
