// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "settingstext.h"

#include <QString>

namespace headunit {

/// One settings file on the disk with its copies beside it. At any moment, also after a power cut, the disk holds the
/// state before or after a save.
///
/// Files: NAME, NAME.bak (the state before the last save), NAME.new (a save under way), NAME.damaged-1 and so on
/// (what could not be read, kept for inspection), and NAME.quick-0 and -1: the newest states, written without
/// waiting for the medium, so that a process that is killed while the medium is slow loses no more than it would on a
/// fast one. Used by one thread at a time, but for saveQuickly().
class SettingsFile {
public:
    explicit SettingsFile(const QString &path);

    /// Reads the newest good state of the file and its copies. False where there is none: \a snapshot is left alone.
    /// A file that cannot be read is set aside; \a problem then says so in one line that names it.
    bool load(Snapshot *snapshot, QString *problem);
    /// The same without touching anything on the disk.
    bool peek(Snapshot *snapshot) const;
    /// Replaces the file. On failure what was on the disk is still there and \a problem names the file and the reason.
    bool save(const Snapshot &snapshot, QString *problem);

    /// Writes the state where a killed process leaves it safe, but a power cut may not. May run
    /// beside save(), but not beside itself.
    bool saveQuickly(const Snapshot &snapshot);
    /// Removes those copies, which a save has made needless.
    void dropQuickCopies() const;
    /// Whether load() found a state that is newer than the file's own.
    bool isBehind() const { return m_behind; }

    QString path() const { return m_path; }
    QString backupPath() const { return m_path + QStringLiteral(".bak"); }
    QString quickPath(int slot) const { return QStringLiteral("%1.quick-%2").arg(m_path).arg(slot); }

private:
    static constexpr int quickSlots = 2;
    enum class Presence { Good, Missing, Bad };
    static Presence read(const QString &path, Snapshot *snapshot, QString *reason);
    static Presence readOrSetAside(const QString &path, Snapshot *snapshot, QString *problem);

    QString m_path;
    Presence m_present = Presence::Missing;      ///< what stands under path()
    Presence m_copyPresent = Presence::Missing;  ///< what stands under backupPath(), as far as it was read
    bool m_behind = false;
    int m_quickSlot = 0;  ///< saveQuickly()'s own
};

}  // namespace headunit
