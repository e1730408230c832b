// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QtPlugin>

class SourceInterface;
class WindowInterface;

/// An application's plug-in, as the host sees it. Found with qobject_cast on the plug-in's root object.
class AppPlugin {
public:
    virtual ~AppPlugin() {}

    /// Called once after loading, before any other operation.
    virtual void create() = 0;
    /// Ids of the windows that the plug-in offers.
    virtual QList<int> windowInterfaceID() = 0;
    /// Ids of the audio sources that the plug-in offers.
    virtual QList<int> sourceInterfaceID() = 0;
    /// The window of that id, the same one at every call, or null. The plug-in owns it.
    virtual WindowInterface *requestWindowInterface(int id) = 0;
    /// The source of that id, or null. The plug-in owns it.
    virtual SourceInterface *requestSourceInterface(int id) = 0;
};

#define AppPlugin_iid "com.norvale.Plugin.AppPlugin/1.0"
Q_DECLARE_INTERFACE(AppPlugin, AppPlugin_iid)
