// SPDX-License-Identifier: Apache-2.0
#include "settingsfile.h"

#include "damagedfile.h"
#include "diskio.h"

#include <QFileInfo>

namespace headunit {

namespace {

constexpr qint64 sizeLimit = qint64(4) * 1024 * 1024;

}  // namespace

SettingsFile::SettingsFile(const QString &path) : m_path(path) {}

SettingsFile::Presence SettingsFile::read(const QString &path, Snapshot *snapshot, QString *reason) {
    QByteArray text;
    const DiskResult result = readFile(path, sizeLimit, &text);
    if (!result.ok()) {
        *reason = result.error;
        return result.missing ? Presence::Missing : Presence::Bad;
    }
    return settingsFromText(text, snapshot, reason) ? Presence::Good : Presence::Bad;
}

bool SettingsFile::load(Snapshot *snapshot, QString *problem) {
    Snapshot found;
    m_present = readOrSetAside(m_path, &found, problem);
    if (m_present != Presence::Good) {
        // No file but a copy is no damage: the last save was cut between its two renames.
        m_copyPresent = readOrSetAside(backupPath(), &found, problem);
    }
    bool any = m_present == Presence::Good || m_copyPresent == Presence::Good;
    for (int slot = 0; slot < quickSlots; ++slot) {
        Snapshot quick;
        QString reason;  // a quick copy may be anything after a power cut, and is then no loss
        if (read(quickPath(slot), &quick, &reason) == Presence::Good && (!any || quick.number > found.number)) {
            found = quick;
            any = true;
            m_behind = true;
        }
    }
    if (!problem->isEmpty()) {
        *problem +=
            any ? QStringLiteral("; the last good copy is used") : QStringLiteral("; the factory state is used");
    }
    if (any) {
        *snapshot = found;
    }
    return any;
}

bool SettingsFile::peek(Snapshot *snapshot) const {
    QString reason;
    return read(m_path, snapshot, &reason) == Presence::Good || read(backupPath(), snapshot, &reason) == Presence::Good;
}

SettingsFile::Presence SettingsFile::readOrSetAside(const QString &path, Snapshot *snapshot, QString *problem) {
    QString reason;
    const Presence presence = read(path, snapshot, &reason);
    if (presence != Presence::Bad) {
        return presence;
    }
    *problem +=
        (problem->isEmpty() ? QStringLiteral("settings file %1: %2") : QStringLiteral("; %1: %2")).arg(path, reason);
    QString newName;
    if (!setDamagedFileAside(path, &newName, &reason)) {
        *problem += QStringLiteral("; cannot be set aside: %1").arg(reason);
        return Presence::Bad;
    }
    *problem += QStringLiteral("; set aside as %1").arg(newName);
    return Presence::Missing;
}

bool SettingsFile::saveQuickly(const Snapshot &snapshot) {
    // In turn, so that one is whole while the other is written.
    m_quickSlot = (m_quickSlot + 1) % quickSlots;
    return overwriteFile(quickPath(m_quickSlot), settingsToText(snapshot)).ok();
}

void SettingsFile::dropQuickCopies() const {
    for (int slot = 0; slot < quickSlots; ++slot) {
        removeFile(quickPath(slot));
    }
}

bool SettingsFile::save(const Snapshot &snapshot, QString *problem) {
    const auto failed = [this, problem](const QString &reason) {
        *problem = QStringLiteral("settings file %1 cannot be written: %2").arg(m_path, reason);
        return false;
    };
    for (Presence *presence : {&m_present, &m_copyPresent}) {  // what could not be set aside when it was read
        QString newName;
        QString reason;
        if (*presence == Presence::Bad) {
            if (!setDamagedFileAside(presence == &m_present ? m_path : backupPath(), &newName, &reason)) {
                return failed(reason);
            }
            *presence = Presence::Missing;
        }
    }
    const QByteArray text = settingsToText(snapshot);
    if (text.size() > sizeLimit) {
        return failed(
            QStringLiteral("the settings take more than %1 bytes").arg(sizeLimit));  // none could read it again
    }
    const QString newPath = m_path + QStringLiteral(".new");
    for (const QString &path : {newPath, backupPath()}) {
        const QFileInfo info(path);
        QString newName;
        QString reason;
        if ((info.isSymLink() || info.isDir()) && !setDamagedFileAside(path, &newName, &reason)) {
            return failed(reason);
        }
    }
    DiskResult result = writeFileDurably(newPath, text);
    if (!result.ok()) {
        return failed(result.error);
    }
    if (m_present == Presence::Good) {
        result = renameFile(m_path, backupPath());
        if (!result.ok() && !result.missing) {
            return failed(result.error);
        }
        m_present = Presence::Missing;
    }
    result = renameFile(newPath, m_path);
    if (!result.ok()) {
        return failed(result.error);
    }
    m_present = Presence::Good;
    result = syncFolder(QFileInfo(m_path).path());
    return result.ok() || failed(result.error);
}

}  // namespace headunit
