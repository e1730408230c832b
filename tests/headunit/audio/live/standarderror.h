// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <fcntl.h>
#include <unistd.h>

/// Standard error goes into a file as long as this lives.
class StandardError {
public:
    explicit StandardError(const QString &file) : m_file(file) {
        const int descriptor =
            open(qPrintable(file), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
        dup2(descriptor, STDERR_FILENO);
        close(descriptor);
    }
    ~StandardError() {
        dup2(m_usual, STDERR_FILENO);
        close(m_usual);
    }

    QByteArray text() {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    const QString m_file;
    const int m_usual = dup(STDERR_FILENO);
};
