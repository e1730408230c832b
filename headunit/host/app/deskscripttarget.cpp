// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/deskscripttarget.h"

#include "headunit/host/app/deskwindow.h"
#include "headunit/host/app/hostlibrary.h"
#include "headunit/host/app/unit.h"
#include "headunit/settings/lines.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace headunit {

DeskScriptTarget::DeskScriptTarget(DeskWindow &window, Unit &unit, MoveTime moveTime)
    : m_window(window), m_unit(unit), m_moveTime(moveTime) {}

QWidget *DeskScriptTarget::window() {
    return &m_window;
}

QWidget *DeskScriptTarget::screen() {
    return m_window.screen();
}

void DeskScriptTarget::wait(int ms) {
    if (m_moveTime) {
        m_moveTime(ms);
    } else if (ms > 0) {
        QEventLoop loop;
        QTimer::singleShot(ms, Qt::PreciseTimer, &loop, &QEventLoop::quit);
        loop.exec();
    } else {
        QCoreApplication::processEvents();
    }
}

void DeskScriptTarget::setInterrupt(std::function<void()> interrupt) {
    m_endSignals.reset();
    if (interrupt) {
        m_endSignals = std::make_unique<EndSignals>([interrupt](int) {
            interrupt();
            QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection);  // a wait, too
        });
    }
}

void DeskScriptTarget::refreshFront() {
    m_unit.refreshFront();
}

bool DeskScriptTarget::openApplication(const QString &id) {
    return m_unit.openApplication(id, Unit::Home);
}

void DeskScriptTarget::showHome() {
    m_unit.showHome();
}

void DeskScriptTarget::showCar() {
    m_unit.showCar();
}

bool DeskScriptTarget::requestVolumeSettings() {
    return m_unit.requestVolumeSettings();
}

void DeskScriptTarget::setCallActive(bool active) {
    if (active) {
        m_unit.startCall();
    } else {
        m_unit.endCall();
    }
}

bool DeskScriptTarget::setSource(int source) {
    return m_unit.setSource(source);
}

bool DeskScriptTarget::setLanguage(const QString &code) {
    return m_unit.setLanguage(code);
}

int runScript(ScriptTarget &target, const QString &file, const QString &folder) {
    constexpr int exitUnusable = 2;
    QString problem;
    const auto entry = reinterpret_cast<ScriptEntry>(hostFunction("script", scriptEntryName, &problem));
    if (!entry) {
        say(QStringLiteral("no scripts here: ") + problem);
        return exitUnusable;
    }
    return entry(&target, &file, &folder);
}

}  // namespace headunit
