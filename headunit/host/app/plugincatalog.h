// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/host/app/applicationguard.h"

#include <QPointer>
#include <QString>
#include <QStringList>

#include <vector>

class AppPlugin;
class QPluginLoader;
class WindowInterface;

namespace headunit {

/// Id of the window that the host shows of an application.
constexpr int applicationWindowId = 33;

/// An application that was loaded.
struct Application {
    QString id;  ///< its name on the command line and in scripts, taken from its metadata: audiosetting
    QPointer<QObject> root;
    AppPlugin *plugin = nullptr;
    WindowInterface *window = nullptr;
};

/// The applications of the unit: loads them, and keeps a readable line for each that cannot be loaded.
class PluginCatalog {
public:
    PluginCatalog();
    ~PluginCatalog();
    PluginCatalog(const PluginCatalog &) = delete;
    PluginCatalog &operator=(const PluginCatalog &) = delete;

    /// Checks the plug-in's metadata, loads it and takes it up. A failure adds a line to failures() and is
    /// otherwise without effect.
    void load(const QString &file);
    /// Deletes the applications and their windows; the code stays loaded.
    void unload();
    /// Ends the applications and makes them anew, as after power-up.
    void reload();

    const std::vector<Application> &applications() const { return m_applications; }
    /// The application of that id, or null.
    const Application *find(const QString &id) const;
    /// One line per plug-in that could not be taken up, or that failed since: the file's name and the reason.
    const QStringList &failures() const { return m_failures; }
    /// Through which the applications are called.
    ApplicationGuard &guard() { return m_guard; }
    /// Whether the application still works.
    bool works(const Application &application) const { return !m_guard.hasFailed(application.window); }

private:
    /// Takes up the plug-in; the reason if it cannot be.
    QString tryLoad(const QString &file);
    /// Runs the plug-in's own code; the reason if that fails.
    QString takeUp(const QString &name, const QString &id, QPluginLoader &loader);

    ApplicationGuard m_guard;
    QStringList m_files;  ///< in the order of load()
    std::vector<Application> m_applications;
    QStringList m_failures;
};

}  // namespace headunit
