// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/remote/remotesocket.h"

#include "headunit/settings/unitroot.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace headunit {

namespace {

constexpr int nameLength = 16;

/// Each unit has a socket of its own: the path of its root may be longer than a socket's name.
QString socketName() {
    const QString canonical = QFileInfo(unitRoot()).canonicalFilePath();
    const QByteArray root = QFile::encodeName(canonical.isEmpty() ? unitRoot() : canonical);
    const QByteArray hash = QCryptographicHash::hash(root, QCryptographicHash::Sha256).toHex().left(nameLength);
    return QLatin1String(hash) + QStringLiteral(".socket");
}

}  // namespace

bool belongsToAlone(const QString &folder, uid_t user) {
    struct stat status {};
    return lstat(QFile::encodeName(folder).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == user && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

QString remoteSocket(QString *problem) {
    const QByteArray session = qgetenv("XDG_RUNTIME_DIR");
    const QString user = QStringLiteral("-%1").arg(geteuid());
    const QString folder = session.isEmpty() ? QDir::tempPath() + QStringLiteral("/headunit-remote") + user
                                             : QFile::decodeName(session) + QStringLiteral("/headunit");
    mkdir(QFile::encodeName(folder).constData(), S_IRWXU);
    if (!belongsToAlone(folder, geteuid())) {
        *problem = QStringLiteral("%1: there is no such folder of yours alone").arg(folder);
        return QString();
    }
    return folder + QLatin1Char('/') + socketName();
}

bool peerIs(qintptr socket, uid_t user) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(static_cast<int>(socket), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == user;
}

}  // namespace headunit
