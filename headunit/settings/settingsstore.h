// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "diskio.h"
#include "saveclock.h"
#include "settingsmap.h"

#include <atomic>
#include <memory>

namespace headunit {

class SettingsFile;
class SettingsWriter;

/// Settings in memory, kept on the disk. A read is one look-up; a write is seen at once and is on the disk at the
/// latest 100 ms later, without waiting for it. Used from one thread. Works in memory only until it is opened.
class SettingsStore {
public:
    /// Of stores with the same \a failing, which counts writers that fail, one says that settings cannot be saved.
    explicit SettingsStore(std::shared_ptr<SaveClock> clock = std::make_shared<SaveClock>(),
                           std::shared_ptr<std::atomic<int>> failing = std::make_shared<std::atomic<int>>(0));
    ~SettingsStore();
    SettingsStore(const SettingsStore &) = delete;
    SettingsStore &operator=(const SettingsStore &) = delete;

    /// Takes the settings of the file at \a path, or its last good copy, or else \a factory, in place of the present
    /// ones. Returns what went wrong, a readable line that is also in the log; the store works in any case. A file
    /// that another process has open is only read.
    QString open(const QString &path, const SettingsMap &factory);
    /// Saves what is left and forgets all settings.
    void close();
    /// Saves now and waits for it. False if the disk fails or takes longer.
    bool flush(int timeoutMs = flushTimeMs);

    int intValue(const QString &key, int defaultValue) const;     ///< see toInt()
    bool boolValue(const QString &key, bool defaultValue) const;  ///< see toBool()
    const SettingsMap &values() const { return m_values; }

    /// An invalid value removes the key; what cannot be kept, also a text beyond 64 KiB, is refused
    /// with a warning, one a second each kind.
    void set(const QString &key, const QVariant &value);
    void replaceAll(const SettingsMap &values);

private:
    static constexpr int flushTimeMs = 2000;

    std::shared_ptr<SaveClock> m_clock;
    std::shared_ptr<std::atomic<int>> m_failing;
    SettingsMap m_values;
    std::shared_ptr<SettingsFile> m_file;      // null while in memory only
    std::unique_ptr<SettingsWriter> m_writer;  // waits for the medium
    std::unique_ptr<SettingsWriter> m_quick;   // does not, see SettingsFile
    FolderLock m_lock;
};

}  // namespace headunit
