// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/host/remote/commandwatch.h"

#include <QJSEngine>
#include <QLocalSocket>
#include <QQueue>

#include <functional>

namespace headunit {

class ScriptApi;
class ScriptTarget;

/// One controller at work: reads its commands, does one after the other, answers. What a command leaves (variables, a
/// finger that is down) the next one finds; at the end the finger is lifted.
class RemoteSession : public QObject {
    Q_OBJECT
public:
    /// Takes the socket over.
    RemoteSession(ScriptTarget &target, QLocalSocket *socket, QObject *parent);
    ~RemoteSession() override;

    /// Ends at once if the controller has gone and the news of it has not been read yet.
    void noticeDeparture();

Q_SIGNALS:
    /// The controller has gone, or was refused. Never while a command runs.
    void ended();

private:
    void read();
    void take(const QByteArray &line);
    void doNext();
    QJsonObject run(const QString &command);
    void answer(const QJsonObject &object);
    void refuse(const QString &reason);
    void leave();

    ScriptTarget &m_target;
    QLocalSocket *const m_socket;
    QJSEngine m_engine;
    ScriptApi *m_api;
    QJSValue m_run;  ///< the function that runs a command
    CommandWatch m_watch;
    QByteArray m_bytes;  ///< of a command whose end has not come yet
    QQueue<QByteArray> m_waiting;
    bool m_running = false;
    bool m_over = false;   ///< nothing more is heard ...
    bool m_ended = false;  ///< ... and nothing is left to do
};

/// Tells a controller in one line why it is not heard, and lets it go; what it still sends is thrown away.
void dismiss(QLocalSocket *socket, const QString &reason);

}  // namespace headunit
