// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QDBusUnixFileDescriptor>
#include <QObject>
#include <QStringList>

#include <vector>

/// What of logind programs see that want to know of the desk's sleep, on the system bus. In a process of one thread, or
/// of many: everything happens on the thread that made it.
class FakeLogind : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")
public:
    FakeLogind();
    ~FakeLogind() override;

    /// Whether somebody has the sleep wait.
    bool isDelayed();
    /// The requests for that, so far.
    const QStringList &requests() const { return m_requests; }

public Q_SLOTS:
    QDBusUnixFileDescriptor Inhibit(const QString &what, const QString &who, const QString &why, const QString &mode);

Q_SIGNALS:
    void PrepareForSleep(bool begins);

private:
    QDBusConnection m_bus;
    QStringList m_requests;
    std::vector<int> m_delays;  ///< ends of pipes, whose other ends the programs have
};
