// SPDX-License-Identifier: Apache-2.0
#include "lines.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstring>
#include <mutex>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace headunit {

namespace {

/// Where lines go.
class Outlet {
public:
    explicit Outlet(int descriptor) : m_descriptor(descriptor) {}

    void put(const QByteArray &text, bool wait) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_missing > 0 && (wait || isReady())) {
            const QByteArray gap = m_isCut ? QByteArray("...\n") : QByteArray();
            const QByteArray news =
                "headunit: " + QByteArray::number(m_missing) + " lines are missing here: they were not read\n";
            m_missing = 0;
            m_isCut = false;
            write(gap + news, wait);
        }
        if (m_missing > 0 || !write(text, wait)) {
            ++m_missing;
        }
    }

    int error() {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_error;
    }

private:
    bool isReady() const {
        pollfd one = {m_descriptor, POLLOUT, 0};
        return poll(&one, 1, 0) > 0;
    }

    /// False if the reader stood still. What cannot be written at all has been read by nobody, too, but stays so.
    bool write(const QByteArray &text, bool wait) {
        // A pipe that is ready takes so many bytes without waiting.
        constexpr int piece = PIPE_BUF;
        for (int done = 0; done < text.size();) {
            if (!wait && !isReady()) {
                m_isCut = done > 0;
                return false;
            }
            const ssize_t taken = ::write(m_descriptor, text.constData() + done,
                                          static_cast<size_t>(std::min(piece, text.size() - done)));
            if (taken >= 0) {
                done += static_cast<int>(taken);
            } else if (errno != EINTR) {
                m_error = errno;
                return true;
            }
        }
        return true;
    }

    const int m_descriptor;
    std::mutex m_mutex;
    int m_missing = 0;     ///< lines that were not read
    bool m_isCut = false;  ///< the first of them in its middle
    int m_error = 0;
};

Outlet &outlet(int descriptor) {
    static Outlet output(STDOUT_FILENO);
    static Outlet errors(STDERR_FILENO);
    return descriptor == STDOUT_FILENO ? output : errors;
}

bool linesWait = true;

void takeMessage(QtMsgType type, const QMessageLogContext &context, const QString &message) {
    const QString text = qFormatLogMessage(type, context, oneLine(message));
    if (!text.isNull()) {
        outlet(STDERR_FILENO).put(text.toLocal8Bit() + '\n', linesWait);
    }
}

}  // namespace

QString oneLine(const QString &text) {
    QString line = text;
    for (QChar &c : line) {
        if (c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
            c.category() == QChar::Separator_Paragraph) {
            c = QLatin1Char(' ');
        }
    }
    return line;
}

void print(const QString &text) {
    outlet(STDOUT_FILENO).put(text.toUtf8() + '\n', linesWait);
}

void say(const QString &text) {
    outlet(STDERR_FILENO).put("headunit: " + oneLine(text).toUtf8() + '\n', linesWait);
}

void sayNoThread() {
    static std::once_flag once;
    std::call_once(once, [] {
        say(QStringLiteral("no thread is to be had: settings are saved when the unit ends, and nobody looks after it"));
    });
}

void takeMessages() {
    qInstallMessageHandler(takeMessage);
}

void setLinesWait(bool wait) {
    linesWait = wait;
}

QString printingProblem() {
    const int error = outlet(STDOUT_FILENO).error();
    return error == 0 ? QString() : QStringLiteral("standard output: %1").arg(QString::fromLocal8Bit(strerror(error)));
}

void keepStandardDescriptors() {
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) == -1 && errno == EBADF && open("/dev/null", O_RDWR) < 0) {
            return;
        }
    }
}

}  // namespace headunit
