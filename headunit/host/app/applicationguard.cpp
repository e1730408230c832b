// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/applicationguard.h"

#include "headunit/host/app/throwplace.h"
#include "headunit/host/app/watchdog.h"
#include "headunit/settings/linelimit.h"

#include <QAbstractEventDispatcher>

#include <algorithm>
#include <cstdlib>
#include <exception>

#include <cxxabi.h>

namespace headunit {

namespace {

/// What is being handled: its own words if it is a std::exception, else its type.
QString thrownText() {
    try {
        throw;
    } catch (const std::exception &exception) {
        return QString::fromUtf8(exception.what()).simplified();
    } catch (...) {
        char *const type = abi::__cxa_demangle(abi::__cxa_current_exception_type()->name(), nullptr, nullptr, nullptr);
        QString text = QString::fromUtf8(type ? type : "something without a name");
        std::free(type);
        return text;
    }
}

QString reasonOf(const QByteArray &what) {
    return QStringLiteral("an exception in %1 (%2)").arg(QString::fromUtf8(what), thrownText());
}

}  // namespace

ApplicationGuard::ApplicationGuard(QObject *parent) : QObject(parent) {}

ApplicationGuard::~ApplicationGuard() = default;

void ApplicationGuard::setWatchdog(Watchdog *watchdog) {
    m_watchdog = watchdog;
    QAbstractEventDispatcher *const dispatcher = QAbstractEventDispatcher::instance();
    disconnect(dispatcher, nullptr, this, nullptr);
    if (watchdog && dispatcher) {
        // An application may well wait in an event loop of its own, as for the answer to a question.
        connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, [this] {
            if (m_called) {
                m_watchdog->pause();
            }
        });
        connect(dispatcher, &QAbstractEventDispatcher::awake, this, [this] {
            if (m_called) {
                m_watchdog->goOn();
            }
        });
    }
}

void ApplicationGuard::add(const QString &name, QObject *root, WindowInterface *window) {
    m_entries.push_back({name.toUtf8(), libraryOf(root->metaObject()), window, {root}, false});
}

void ApplicationGuard::own(QObject *widget, const WindowInterface *window) {
    if (Entry *const entry = find(window)) {
        entry->objects.emplace_back(widget);
    }
}

void ApplicationGuard::silence(QObject *root) {
    m_entries.push_back({QByteArray(), nullptr, nullptr, {root}, true});
    m_anyFailed = true;
}

void ApplicationGuard::clear() {
    m_entries.clear();
    m_anyFailed = false;
}

ApplicationGuard::Entry *ApplicationGuard::find(const WindowInterface *window) {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [window](const Entry &entry) { return window && entry.window == window; });
    return found == m_entries.end() ? nullptr : &*found;
}

const ApplicationGuard::Entry *ApplicationGuard::find(const WindowInterface *window) const {
    return const_cast<ApplicationGuard *>(this)->find(window);
}

const ApplicationGuard::Entry *ApplicationGuard::ownerOf(const QObject *object) const {
    for (; object; object = object->parent()) {
        for (const Entry &entry : m_entries) {
            for (const QPointer<QObject> &owned : entry.objects) {
                if (owned == object) {
                    return &entry;
                }
            }
        }
    }
    return nullptr;
}

const char *ApplicationGuard::nameOf(const QObject *object) const {
    const Entry *const entry = m_watchdog && !m_called ? ownerOf(object) : nullptr;
    return entry ? entry->name.constData() : nullptr;
}

bool ApplicationGuard::failedOwns(const QObject *object) const {
    const Entry *const entry = ownerOf(object);
    return entry && entry->failed;
}

bool ApplicationGuard::hasFailed(const WindowInterface *window) const {
    const Entry *const entry = find(window);
    return entry && entry->failed;
}

ApplicationGuard::Present::Present(ApplicationGuard *guard, const char *application, const char *what)
    : m_guard(guard) {
    if (guard && guard->m_watchdog && application && !guard->m_called) {
        m_watchdog = guard->m_watchdog;
        guard->m_called = true;
        m_watchdog->begin(application, what);
    }
}

ApplicationGuard::Present::~Present() {
    if (m_watchdog) {
        m_watchdog->end();
        m_guard->m_called = false;
    }
}

bool ApplicationGuard::call(const WindowInterface *window, const char *what, const std::function<void()> &function) {
    Entry *const entry = find(window);
    if (entry && entry->failed) {
        return false;
    }
    const Present present(this, entry ? entry->name.constData() : "an application", what);
    try {
        function();
    } catch (...) {
        fail(entry, reasonOf(what));
        return false;
    }
    return true;
}

bool ApplicationGuard::callUnknown(const QString &name, const char *what, const std::function<void()> &function,
                                   QString *problem) {
    const QByteArray bytes = name.toUtf8();
    const Present present(this, bytes.constData(), what);
    try {
        function();
    } catch (...) {
        *problem = reasonOf(what);
        return false;
    }
    return true;
}

void ApplicationGuard::caught(const char *receiverClass) {
    const QString reason = reasonOf("an event of " + QByteArray(receiverClass));
    // Who threw: the receiver may be the unit's own, or Qt's, and have called an application's slot.
    const std::vector<const void *> libraries = librariesOfThrow();
    for (const void *library : libraries) {
        for (Entry &entry : m_entries) {
            if (entry.library == library) {
                fail(&entry, reason);
                return;
            }
        }
    }
    fail(nullptr, reason);
}

void ApplicationGuard::fail(Entry *entry, const QString &reason) {
    if (!entry) {
        if (lineMayPass(reason)) {
            Q_EMIT failed(reason);
        }
    } else if (!entry->failed) {
        entry->failed = true;
        m_anyFailed = true;
        Q_EMIT failed(QStringLiteral("%1: %2").arg(QString::fromUtf8(entry->name), reason));
    }
}

}  // namespace headunit
