// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/plugincatalog.h"

#include "appplugin.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

namespace headunit {

namespace {

// Every application's metadata carries an interface id of this form: com.norvale.Qt.audiosettingPlugin.
const QLatin1String iidStart("com.norvale.Qt.");
const QLatin1String iidEnd("Plugin");

QString idFromIid(const QString &iid) {
    QString id = iid.mid(iidStart.size());
    if (id.endsWith(iidEnd)) {
        id.chop(iidEnd.size());
    }
    return id;
}

}  // namespace

PluginCatalog::~PluginCatalog() {
    unload();
}

void PluginCatalog::load(const QString &file) {
    const QString reason = tryLoad(file);
    if (!reason.isEmpty()) {
        m_failures << QStringLiteral("%1: %2").arg(QFileInfo(file).fileName(), reason);
    }
}

QString PluginCatalog::tryLoad(const QString &file) {
    const QFileInfo info(file);
    if (!info.exists()) {
        return QStringLiteral("there is no such file (%1)").arg(info.absoluteFilePath());
    }
    if (!info.isFile()) {
        return QStringLiteral("is not a file");
    }

    // Everything up to load() reads the file without running any of its code.
    QPluginLoader loader(info.absoluteFilePath());
    const QJsonObject metaData = loader.metaData();
    if (metaData.isEmpty()) {
        return QStringLiteral("is not a plug-in");
    }
    const QString iid = metaData.value(QLatin1String("IID")).toString();
    const QString id = idFromIid(iid);
    if (!iid.startsWith(iidStart) || id.isEmpty()) {
        return QStringLiteral("is no application of this unit (interface id \"%1\")").arg(iid);
    }
    if (metaData.value(QLatin1String("className")).toString().isEmpty()) {
        return QStringLiteral("its metadata names no class");
    }
    if (find(id)) {
        return QStringLiteral("an application named %1 is loaded already").arg(id);
    }

    if (!loader.load()) {
        return QStringLiteral("cannot be loaded (%1)").arg(loader.errorString());
    }
    QObject *root = loader.instance();
    AppPlugin *plugin = qobject_cast<AppPlugin *>(root);
    if (!plugin) {
        delete root;
        return QStringLiteral("offers no application interface (" AppPlugin_iid ")");
    }
    plugin->create();
    WindowInterface *window = plugin->windowInterfaceID().contains(applicationWindowId)
                                  ? plugin->requestWindowInterface(applicationWindowId)
                                  : nullptr;
    if (!window) {
        delete root;
        return QStringLiteral("offers no window %1").arg(applicationWindowId);
    }
    m_applications.push_back({id, root, plugin, window});
    return QString();
}

void PluginCatalog::unload() {
    for (Application &application : m_applications) {
        delete application.root.data();
    }
    m_applications.clear();
}

const Application *PluginCatalog::find(const QString &id) const {
    for (const Application &application : m_applications) {
        if (application.id == id) {
            return &application;
        }
    }
    return nullptr;
}

}  // namespace headunit
