#include "headunit/host/app/tunersdesk.h"

#include "headunit/host/app/deskwindow.h"
#include "headunit/host/app/hostlibrary.h"
#include "headunit/host/app/unit.h"

#include <cstdio>

namespace headunit {

TunersDesk::TunersDesk(DeskWindow &window, Unit &unit) : m_window(window), m_unit(unit) {
    connect(&window, &DeskWindow::deskWanted, this, [this] { open(); });
}

TunersDesk::~TunersDesk() {
    delete m_desk.data();
}

void TunersDesk::open(const QString &panel) {
    QString problem;
    if (const auto entry = reinterpret_cast<DeskEntry>(hostFunction("desk", deskEntryName, &problem))) {
        m_desk = entry(this, &panel);
    } else {
        std::fprintf(stderr, "headunit: no tuner's desk here: %s\n", qUtf8Printable(problem));
    }
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

}  // namespace headunit
