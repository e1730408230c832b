// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/deskhost.h"

#include <QObject>
#include <QPointer>

namespace headunit {

class DeskWindow;
class Unit;

/// Opens the tuner's desk over the unit. The desk is a library of its own: until it is opened, it costs nothing.
class TunersDesk : public QObject, private DeskHost {
    Q_OBJECT
public:
    /// Opens it whenever \a window asks for it.
    TunersDesk(DeskWindow &window, Unit &unit);
    ~TunersDesk() override;

    /// Opens the desk, with the window of that name in front if one is given. A reason that keeps it from being opened
    /// is one line on standard error.
    void open(const QString &panel = QString());

    /// What plays from now on, and the part of it that the desk watches; it may end before the desk does.
    void setSound(QObject *sound, SoundMonitor *monitor);

private:
    QWidget *window() override;
    QWidget *screen() override;
    void refreshFront() override;
    void restart() override;
    SoundMonitor *sound() override { return m_sound ? m_monitor : nullptr; }

    DeskWindow &m_window;
    Unit &m_unit;
    QPointer<QObject> m_desk;
    QPointer<QObject> m_sound;
    SoundMonitor *m_monitor = nullptr;
};

/// Set-ups without a screen, see SetupEntry.
int doSetupJob(const QString &exportTo, const QString &importFrom);

}  // namespace headunit
