// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>
#include <QtGlobal>

#include <mutex>

/// Takes the log for as long as it lives, from any thread.
class LogWatch {
public:
    LogWatch() {
        s_current = this;
        m_before = qInstallMessageHandler(&LogWatch::take);
    }
    ~LogWatch() {
        qInstallMessageHandler(m_before);
        s_current = nullptr;
    }
    LogWatch(const LogWatch &) = delete;
    LogWatch &operator=(const LogWatch &) = delete;

    /// The lines of that kind since the last call.
    QStringList takeLines(QtMsgType type) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        QStringList &lines = type == QtDebugMsg ? m_debug : m_warnings;
        const QStringList taken = lines;
        lines.clear();
        return taken;
    }
    QStringList takeWarnings() { return takeLines(QtWarningMsg); }
    QStringList takeDebug() { return takeLines(QtDebugMsg); }

private:
    static void take(QtMsgType type, const QMessageLogContext &context, const QString &line) {
        if (type == QtFatalMsg) {
            s_current->m_before(type, context, line);
        }
        const std::lock_guard<std::mutex> lock(s_current->m_mutex);
        (type == QtDebugMsg ? s_current->m_debug : s_current->m_warnings).append(line);
    }

    static inline LogWatch *s_current = nullptr;
    QtMessageHandler m_before = nullptr;
    std::mutex m_mutex;
    QStringList m_debug;
    QStringList m_warnings;
};
