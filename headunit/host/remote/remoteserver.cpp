// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/remote/remoteserver.h"

#include "headunit/host/remote/remotecontrol.h"
#include "headunit/host/remote/remotesession.h"
#include "headunit/host/remote/remotesocket.h"

#include <QLocalSocket>

#include <memory>

#include <unistd.h>

namespace headunit {

namespace {

constexpr int timeToAnswer = 1000;  // ms

/// Whether a unit answers there; a file may be left of one that was killed.
bool isInUse(const QString &path) {
    QLocalSocket probe;
    probe.connectToServer(path);
    return probe.waitForConnected(timeToAnswer);
}

}  // namespace

QString RemoteServer::listen(const QString &path) {
    if (isInUse(path)) {
        return QStringLiteral("a unit with the same settings is under remote control already");
    }
    QLocalServer::removeServer(path);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &RemoteServer::takeConnection);
    return m_server.listen(path) ? QString() : m_server.errorString();
}

void RemoteServer::takeConnection() {
    while (QLocalSocket *const socket = m_server.nextPendingConnection()) {
        if (m_session) {
            m_session->noticeDeparture();  // a controller may follow the one before at once
        }
        if (!peerIs(socket->socketDescriptor(), geteuid())) {
            qWarning("remote control: somebody else than the unit's owner was turned away");
            dismiss(socket, QStringLiteral("only the unit's owner controls it"));
        } else if (m_session) {
            dismiss(socket, QStringLiteral("another controller is at work"));
        } else {
            m_session = new RemoteSession(m_target, socket, this);
            connect(m_session, &RemoteSession::ended, this, [this] {
                m_session->deleteLater();
                m_session = nullptr;
            });
        }
    }
}

}  // namespace headunit

extern "C" Q_DECL_EXPORT QObject *headunitStartRemote(headunit::ScriptTarget *target, QString *problem) {
    const QString path = headunit::remoteSocket(problem);
    if (path.isEmpty()) {
        return nullptr;
    }
    auto server = std::make_unique<headunit::RemoteServer>(*target);
    *problem = server->listen(path);
    return problem->isEmpty() ? server.release() : nullptr;
}
