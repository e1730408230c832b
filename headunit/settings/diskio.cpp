// SPDX-License-Identifier: Apache-2.0
#include "diskio.h"

#include <QFile>
#include <QFileInfo>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>

namespace headunit {

namespace {

constexpr mode_t filePermissions = 0644;

/// A file descriptor that closes itself.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor() {
        if (m_fd >= 0) {
            close(m_fd);
        }
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int get() const { return m_fd; }
    bool valid() const { return m_fd >= 0; }

private:
    int m_fd;
};

DiskResult lastError() {
    const int code = errno;
    DiskResult result;
    result.missing = code == ENOENT || code == ENOTDIR;  // where a folder should be, there is a file
    result.error = qt_error_string(code);
    return result;
}

DiskResult failure(const QString &text) {
    DiskResult result;
    result.error = text;
    return result;
}

bool writeAll(int fd, const QByteArray &bytes) {
    for (int done = 0; done < bytes.size();) {
        const ssize_t written = write(fd, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
        if (written < 0 && errno != EINTR) {
            return false;
        }
        done += written > 0 ? static_cast<int>(written) : 0;
    }
    return true;
}

}  // namespace

DiskResult readFile(const QString &path, qint64 limit, QByteArray *bytes) {
    const Descriptor file(open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat info {};
    if (!file.valid() || fstat(file.get(), &info) != 0) {
        return lastError();
    }
    if (!S_ISREG(info.st_mode)) {
        return failure(QStringLiteral("Not a regular file"));
    }
    if (info.st_size > limit) {
        return failure(QStringLiteral("Larger than %1 bytes").arg(limit));
    }
    bytes->resize(static_cast<int>(info.st_size));
    int done = 0;
    while (done < bytes->size()) {
        const ssize_t got = read(file.get(), bytes->data() + done, static_cast<size_t>(bytes->size() - done));
        if (got < 0 && errno != EINTR) {
            return lastError();
        }
        if (got == 0) {
            break;
        }
        done += got > 0 ? static_cast<int>(got) : 0;
    }
    bytes->truncate(done);
    return DiskResult();
}

DiskResult writeFileDurably(const QString &path, const QByteArray &bytes) {
    const QByteArray name = QFile::encodeName(path);
    const Descriptor file(
        open(name.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, filePermissions));
    if (!file.valid()) {
        return lastError();
    }
    if (!writeAll(file.get(), bytes) || fsync(file.get()) != 0) {
        DiskResult result = lastError();
        unlink(name.constData());
        return result;
    }
    return DiskResult();
}

DiskResult replaceFileDurably(const QString &path, const QByteArray &bytes) {
    const QString newPath = path + QStringLiteral(".new");
    DiskResult result = writeFileDurably(newPath, bytes);
    if (result.ok()) {
        result = renameFile(newPath, path);
    }
    return result.ok() ? syncFolder(QFileInfo(path).path()) : result;
}

DiskResult overwriteFile(const QString &path, const QByteArray &bytes) {
    // Neither emptied first nor renamed: for both, file systems start writing to the medium, and then a busy one waits.
    const Descriptor file(
        open(QFile::encodeName(path).constData(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NOFOLLOW, filePermissions));
    if (!file.valid() || !writeAll(file.get(), bytes) || ftruncate(file.get(), bytes.size()) != 0) {
        return lastError();
    }
    return DiskResult();
}

void removeFile(const QString &path) {
    unlink(QFile::encodeName(path).constData());
}

DiskResult renameFile(const QString &from, const QString &to) {
    if (rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0) {
        return lastError();
    }
    return DiskResult();
}

DiskResult syncFolder(const QString &folder) {
    const Descriptor directory(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!directory.valid() || fsync(directory.get()) != 0) {
        return lastError();
    }
    return DiskResult();
}

bool pathExists(const QString &path) {
    struct stat info {};
    return lstat(QFile::encodeName(path).constData(), &info) == 0;
}

bool FolderLock::acquire(const QString &lockFile) {
    release();
    const QByteArray name = QFile::encodeName(lockFile);
    const auto openLock = [&name] {
        return open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, filePermissions);
    };
    m_fd = openLock();
    if (m_fd < 0 && errno == ELOOP) {
        unlink(name.constData());  // a link, which would lead each process to a lock of its own
        m_fd = openLock();
    }
    if (m_fd < 0) {
        return true;
    }
    int result = 0;
    do {
        result = flock(m_fd, LOCK_EX | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    // Some network file systems take no locks at all, which is no sign of another holder.
    if (result != 0 && errno == EWOULDBLOCK) {
        release();
        return false;
    }
    return true;
}

void FolderLock::release() {
    if (m_fd >= 0) {
        close(m_fd);
        m_fd = -1;
    }
}

}  // namespace headunit
