// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

namespace headunit {

/// The disk's answer: no error, or its text.
struct DiskResult {
    bool missing = false;  ///< there is no such file
    QString error;         ///< empty: done
    bool ok() const { return error.isEmpty(); }
};

/// Reads a regular file of at most \a limit bytes. Never waits for a pipe or a device.
DiskResult readFile(const QString &path, qint64 limit, QByteArray *bytes);
/// Writes a file and returns once its bytes are on the medium. A failure leaves no file of that name.
DiskResult writeFileDurably(const QString &path, const QByteArray &bytes);
/// The same by way of NAME.new: at any moment, also after a power cut, the file is the one before or the new one.
DiskResult replaceFileDurably(const QString &path, const QByteArray &bytes);
/// Writes over a file in place, without waiting for the medium. A failure or an interruption leaves a mixture.
DiskResult overwriteFile(const QString &path, const QByteArray &bytes);
void removeFile(const QString &path);
/// Renames over an existing file.
DiskResult renameFile(const QString &from, const QString &to);
/// Returns once the folder's entries are on the medium.
DiskResult syncFolder(const QString &folder);
bool pathExists(const QString &path);

/// Keeps a second process away from the same files for as long as it lives.
class FolderLock {
public:
    FolderLock() = default;
    ~FolderLock() { release(); }
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    /// False if another holder has the lock file. A folder that takes no lock counts as locked.
    bool acquire(const QString &lockFile);
    void release();

private:
    int m_fd = -1;
};

}  // namespace headunit
