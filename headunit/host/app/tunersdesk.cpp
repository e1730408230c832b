// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/tunersdesk.h"

#include "headunit/host/app/deskwindow.h"
#include "headunit/host/app/hostlibrary.h"
#include "headunit/host/app/unit.h"
#include "headunit/settings/lines.h"

namespace headunit {

namespace {

/// A function of the desk's library; null, with a line on standard error, if it is not there.
template <typename Entry> Entry resolve(const char *name) {
    QString problem;
    const auto entry = reinterpret_cast<Entry>(hostFunction("desk", name, &problem));
    if (!entry) {
        say(QStringLiteral("no tuner's desk here: ") + problem);
    }
    return entry;
}

}  // namespace

TunersDesk::TunersDesk(DeskWindow &window, Unit &unit) : m_window(window), m_unit(unit) {
    connect(&window, &DeskWindow::deskWanted, this, [this] { open(); });
}

TunersDesk::~TunersDesk() {
    delete m_desk.data();
}

void TunersDesk::open(const QString &panel) {
    if (const auto entry = resolve<DeskEntry>(deskEntryName)) {
        m_desk = entry(this, &panel);
    }
}

int doSetupJob(const QString &exportTo, const QString &importFrom) {
    constexpr int exitUnusable = 2;
    const auto entry = resolve<SetupEntry>(setupEntryName);
    return entry ? entry(&exportTo, &importFrom) : exitUnusable;
}

void TunersDesk::setSound(QObject *sound, SoundMonitor *monitor) {
    m_sound = sound;
    m_monitor = monitor;
}

QWidget *TunersDesk::window() {
    return &m_window;
}

QWidget *TunersDesk::screen() {
    return m_window.screen();
}

void TunersDesk::refreshFront() {
    m_unit.refreshFront();
}

void TunersDesk::restart() {
    m_unit.restart();
}

}  // namespace headunit
