// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "finger.h"

#include <QPluginLoader>
#include <QWidget>

class AppPlugin;
class WindowInterface;

namespace conformance {

/// The plug-in on the unit, with a bare window for a host.
class Plugin {
public:
    Plugin();
    ~Plugin();

    /// Loads the plug-in of the command line; notes what is wrong, or that none was named.
    bool load();
    bool records() const;

    AppPlugin *root() const { return m_plugin; }
    WindowInterface *window() const { return m_window; }
    const QPluginLoader &loader() const { return m_loader; }
    QWidget *screen() { return &m_screen; }

    /// Brings the application to the screen; false if it has nothing to show.
    bool open();
    void leave();
    /// The visible object of that name, or of a class of that name; null if there is none.
    QWidget *find(const QString &name);

private:
    QPluginLoader m_loader;
    QWidget m_screen;
    QObject *m_watch;
    AppPlugin *m_plugin = nullptr;
    WindowInterface *m_window = nullptr;
    bool m_open = false;
};

}  // namespace conformance
