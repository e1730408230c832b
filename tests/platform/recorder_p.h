// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tests/platform/recorder.h"

namespace recording {

/// The text of an argument in the log.
QString text(int value);
QString text(bool value);
QString text(const QString &value);
QString text(const QVariant &value);

inline void join(QString &) {}
template <typename First, typename... Rest> void join(QString &line, const First &first, const Rest &...rest) {
    line += text(first);
    if (sizeof...(rest) > 0) {
        line += QLatin1String(", ");
    }
    join(line, rest...);
}

/// Adds a line to the log.
template <typename... Args> void call(const char *name, const Args &...args) {
    QString line = QLatin1String(name) + QLatin1Char('(');
    join(line, args...);
    note(line + QLatin1Char(')'));
}

bool isLogged(Kind kind);
/// Adds a line of a kind that the test may leave out.
template <typename... Args> void call(Kind kind, const char *name, const Args &...args) {
    if (isLogged(kind)) {
        call(name, args...);
    }
}

/// The stores: plain maps, the values as they were written.
QHash<QString, QVariant> &storedValues();
QHash<QString, QVariant> &sharedValues();
QHash<QString, QVariant> &factoryValues();

/// The one level of a channel changed: keeps it, and announces what is new.
void setVolume(int type, int level);

}  // namespace recording
