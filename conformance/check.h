// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDebug>
#include <QStringList>
#include <QVector>

namespace conformance {

/// A fault found by a check, or the reason why it could not be made.
struct Findings {
    QStringList problems;  ///< "what: expected this, got that"
    QString skipped;       ///< the reason, where the check was left out
};

Findings &findings();

/// One sentence of the contract.
struct Check {
    const char *name;      ///< "store.int-default"
    const char *sentence;  ///< what the contract says
    const char *page;      ///< what of the application suffers
    void (*run)();
    void (*afterRestart)();  ///< runs in a second process on the same root folder; null for most checks
};

/// All checks, in the order of their registration.
QVector<Check> &checks();

struct Registration {
    explicit Registration(const Check &check) { checks() << check; }
};

template <typename T> QString text(const T &value) {
    QString line;
    QDebug(&line).nospace() << value;
    return line.trimmed();
}
inline QString text(bool value) {
    return QLatin1String(value ? "true" : "false");
}

void fail(const QString &problem);
/// Ends the check as left out.
void skip(const QString &reason);

/// Notes a problem where the two differ.
template <typename T> bool expect(const QString &what, const T &expected, const T &got) {
    if (expected == got) {
        return true;
    }
    fail(QStringLiteral("%1: expected %2, got %3").arg(what, text(expected), text(got)));
    return false;
}
inline bool expect(const QString &what, bool expected, bool got) {
    return expect<bool>(what, expected, got);
}
inline bool expectTrue(const QString &what, bool got) {
    return expect<bool>(what, true, got);
}

/// Lets time pass, on the unit's clock.
void pass(int ms);

}  // namespace conformance

/// CHECK(function, "group.name", "What the contract says.", "what suffers") { ... }
#define CHECK(function, name, sentence, page)                                                                 \
    static void function();                                                                                   \
    static const conformance::Registration function##Registration({name, sentence, page, function, nullptr}); \
    static void function()

/// The same with a second half, which runs once the unit was started again: RESTART_CHECK(...) { ... } AFTER(f) { ... }
#define RESTART_CHECK(function, name, sentence, page)                                                                 \
    static void function();                                                                                           \
    static void function##After();                                                                                    \
    static const conformance::Registration function##Registration({name, sentence, page, function, function##After}); \
    static void function()
#define AFTER_RESTART(function) static void function##After()
