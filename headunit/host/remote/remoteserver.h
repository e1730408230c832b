// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLocalServer>

namespace headunit {

class RemoteSession;
class ScriptTarget;

/// Lets controllers in, one at a time, of the unit's owner alone.
class RemoteServer : public QObject {
    Q_OBJECT
public:
    explicit RemoteServer(ScriptTarget &target) : m_target(target) {}

    /// Listens at \a path. Returns why it cannot, or an empty text.
    QString listen(const QString &path);

private:
    void takeConnection();

    ScriptTarget &m_target;
    QLocalServer m_server;
    RemoteSession *m_session = nullptr;
};

}  // namespace headunit
