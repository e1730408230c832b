#pragma once

#include "settingsmap.h"

#include <QByteArray>
#include <QStringList>

namespace headunit {

/// The text of a settings file: JSON with the values by key, in key order, and a checksum over them. A file without
/// a checksum is accepted, so that a person who edits one by hand deletes that line.
QByteArray settingsToText(const SettingsMap &values);
/// The values of such a text. False with the reason in \a problem if it is none.
bool settingsFromText(const QByteArray &text, SettingsMap *values, QString *problem);

/// One settings file on the disk with its last good copy beside it. At any moment, also after a power cut, the
/// disk holds the state before or after a save. Not thread-safe; used by one thread at a time.
///
/// Files: NAME, NAME.bak (the state before the last save), NAME.new (a save under way), NAME.damaged-1 and so on
/// (what could not be read, kept for inspection).
class SettingsFile {
public:
    explicit SettingsFile(const QString &path);

    /// Reads the file, or its last good copy. False where there is neither: the values are left alone.
    /// A file that cannot be read is set aside; \a problem then says so in one line that names it.
    bool load(SettingsMap *values, QString *problem);
    /// The same without touching anything on the disk.
    bool peek(SettingsMap *values) const;
    /// Replaces the file. On failure what was on the disk is still there and \a problem names the file and the reason.
    bool save(const SettingsMap &values, QString *problem);

    QString path() const { return m_path; }
    QString backupPath() const { return m_path + QStringLiteral(".bak"); }

private:
    enum class Presence { Good, Missing, Bad };
    static Presence read(const QString &path, SettingsMap *values, QString *reason);
    static Presence readOrSetAside(const QString &path, SettingsMap *values, QString *problem);
    static bool setAside(const QString &path, QString *newName, QString *reason);

    QString m_path;
    Presence m_present = Presence::Missing;      ///< what stands under path()
    Presence m_copyPresent = Presence::Missing;  ///< what stands under backupPath(), as far as it was read
};

}  // namespace headunit
