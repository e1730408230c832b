// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/remote/remotesession.h"

#include "headunit/host/remote/remotecontrol.h"
#include "headunit/host/script/scriptapi.h"
#include "headunit/host/script/scripttarget.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <poll.h>

namespace headunit {

namespace {

constexpr int readAtOnce = 64 * 1024;
constexpr int timeToGo = 5000;  // ms that a controller has to read why it was refused

// Runs a command as a program of its own. Whatever it throws, be it undefined, is a failure; what it yields becomes
// JSON, so that the answer holds no object of this engine.
constexpr char runner[] =
    "(function(command) {"
    "    try {"
    "        return [JSON.stringify((0, eval)(command)), null];"
    "    } catch (error) {"
    "        return [null, String(error)];"
    "    }"
    "})";

QByteArray asLine(const QJsonObject &object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

}  // namespace

RemoteSession::RemoteSession(ScriptTarget &target, QLocalSocket *socket, QObject *parent)
    : QObject(parent),
      m_target(target),
      m_socket(socket),
      m_api(new ScriptApi(target, &m_engine, QString())),
      m_watch(remote::longestComputing, [this] { m_engine.setInterrupted(true); }) {
    m_engine.globalObject().deleteProperty(QStringLiteral("Promise"));  // as for scripts
    m_api->install();
    m_api->setPrinter([this](const QString &text) { answer({{QLatin1String(remote::printedKey), text}}); });
    m_run = m_engine.evaluate(QLatin1String(runner));
    m_socket->setParent(this);
    m_socket->setReadBufferSize(readAtOnce);  // what comes too fast waits at the other end
    connect(m_socket, &QLocalSocket::readyRead, this, &RemoteSession::read);
    connect(m_socket, &QLocalSocket::disconnected, this, &RemoteSession::leave);
    m_target.setInterrupt([this] { m_engine.setInterrupted(true); });
    QTimer::singleShot(0, this, &RemoteSession::read);  // what came before
}

RemoteSession::~RemoteSession() {
    m_target.setInterrupt({});
}

void RemoteSession::noticeDeparture() {
    pollfd peer{static_cast<int>(m_socket->socketDescriptor()), POLLRDHUP, 0};
    if (!m_running && m_waiting.isEmpty() && poll(&peer, 1, 0) > 0) {
        leave();
    }
}

void RemoteSession::read() {
    while (!m_over && m_socket->bytesAvailable() > 0) {
        m_bytes += m_socket->read(readAtOnce);
        for (int end = m_bytes.indexOf('\n'); end >= 0 && !m_over; end = m_bytes.indexOf('\n')) {
            const QByteArray line = m_bytes.left(end);
            m_bytes.remove(0, end + 1);
            take(line);
        }
        if (!m_over && m_bytes.size() > remote::longestCommand) {
            refuse(QStringLiteral("a command is longer than %1 KiB").arg(remote::longestCommand / 1024));
        }
    }
}

void RemoteSession::take(const QByteArray &line) {
    if (line.size() > remote::longestCommand) {
        refuse(QStringLiteral("a command is longer than %1 KiB").arg(remote::longestCommand / 1024));
    } else if (m_waiting.size() >= remote::mostWaiting) {
        refuse(QStringLiteral("more than %1 commands at once").arg(remote::mostWaiting));
    } else {
        m_waiting.enqueue(line);
        if (m_waiting.size() == 1) {
            QTimer::singleShot(0, this, &RemoteSession::doNext);
        }
    }
}

void RemoteSession::doNext() {
    if (m_running || m_over || m_waiting.isEmpty()) {
        return;
    }
    const QJsonObject request = QJsonDocument::fromJson(m_waiting.dequeue()).object();
    const QJsonValue command = request.value(QLatin1String(remote::commandKey));
    if (!command.isString()) {
        refuse(QStringLiteral("a command is a line like {\"command\": \"home()\"}"));
        return;
    }
    m_api->setFolder(request.value(QLatin1String(remote::folderKey)).toString());
    m_running = true;
    const QJsonObject result = run(command.toString());
    m_running = false;
    if (m_over) {
        leave();
        return;
    }
    answer(result);
    if (!m_waiting.isEmpty()) {
        QTimer::singleShot(0, this, &RemoteSession::doNext);  // the unit's own work comes between
    }
}

QJsonObject RemoteSession::run(const QString &command) {
    const auto failed = [](const QString &reason) { return QJsonObject{{QLatin1String(remote::errorKey), reason}}; };
    m_engine.setInterrupted(false);
    m_watch.begin();
    const QJSValue outcome = m_run.call({command});
    const bool inTime = m_watch.end();
    m_engine.setInterrupted(false);
    if (!inTime) {
        return failed(QStringLiteral("the command computed for %1 s without a wait(), and was ended")
                          .arg(remote::longestComputing / 1000));
    }
    if (outcome.isError()) {  // the runner itself was ended
        return failed(outcome.toString());
    }
    const QJSValue error = outcome.property(1);
    if (!error.isNull()) {
        return failed(error.toString().replace(QLatin1Char('\n'), QLatin1Char(' ')));
    }
    const QJSValue value = outcome.property(0);
    if (value.isUndefined()) {
        return QJsonObject{{QLatin1String(remote::resultKey), QJsonValue()}};
    }
    const QString text = value.toString();
    if (text.size() > remote::longestResult) {
        return failed(QStringLiteral("the result is longer than %1 KiB").arg(remote::longestResult / 1024));
    }
    return QJsonObject{{QLatin1String(remote::resultKey), text}};
}

void RemoteSession::answer(const QJsonObject &object) {
    if (!m_over) {
        m_socket->write(asLine(object));
    }
}

void RemoteSession::refuse(const QString &reason) {
    m_socket->disconnect(this);
    dismiss(m_socket, reason);
    leave();
}

void RemoteSession::leave() {
    if (m_ended) {
        return;
    }
    m_over = true;
    m_waiting.clear();
    if (m_running) {
        m_engine.setInterrupted(true);
        m_target.endWait();
        return;  // doNext() comes here again
    }
    m_ended = true;
    m_api->lift();
    Q_EMIT ended();
}

void dismiss(QLocalSocket *socket, const QString &reason) {
    socket->setParent(nullptr);
    // Whoever is cut off in the middle of a line would see a broken pipe instead of the reason.
    QObject::connect(socket, &QLocalSocket::readyRead, socket, [socket] { socket->readAll(); });
    QObject::connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    QTimer::singleShot(timeToGo, socket, [socket] {
        socket->abort();
        socket->deleteLater();
    });
    socket->write(asLine({{QLatin1String(remote::refusedKey), reason}}));
    socket->flush();
    socket->readAll();
}

}  // namespace headunit
