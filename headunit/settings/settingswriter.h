#pragma once

#include "settingsfile.h"

#include <memory>
#include <thread>

namespace headunit {

/// Brings changed settings to the disk from a thread of its own, so that whoever changes them never waits.
///
/// Changes are gathered for gatherTime and saved together. A save that fails is reported once in the log and tried
/// again until it succeeds.
class SettingsWriter {
public:
    /// Leaves the rest of the 100 ms in which a change must be on the disk to the disk itself.
    static constexpr int gatherTimeMs = 40;
    static constexpr int retryTimeMs = 1000;

    /// \a values is what is on the disk now.
    SettingsWriter(const SettingsFile &file, const SettingsMap &values);
    /// Saves what is left, waiting as long as flush() does.
    ~SettingsWriter();
    SettingsWriter(const SettingsWriter &) = delete;
    SettingsWriter &operator=(const SettingsWriter &) = delete;

    /// Saves \a value soon; an invalid one removes the key.
    void put(const QString &key, const QVariant &value);
    /// Saves \a values soon in place of everything before.
    void replaceAll(const SettingsMap &values);
    /// Saves now and waits for it. False if that fails or takes longer.
    bool flush(int timeoutMs = flushTimeMs);

private:
    static constexpr int flushTimeMs = 2000;

    // Shared with the thread, which outlives this object where the disk never answers.
    struct Shared;
    static void run(const std::shared_ptr<Shared> &shared);
    std::shared_ptr<Shared> m_shared;
    std::thread m_thread;
};

}  // namespace headunit
