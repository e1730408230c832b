// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/plugincatalog.h"

#include "appplugin.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

#include <utility>

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

PluginCatalog::PluginCatalog() {
    QObject::connect(&m_guard, &ApplicationGuard::failed, [this](const QString &line) { m_failures << line; });
}

PluginCatalog::~PluginCatalog() {
    unload();
}

void PluginCatalog::load(const QString &file) {
    m_files << file;
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

    return takeUp(info.fileName(), id, loader);
}

QString PluginCatalog::takeUp(const QString &name, const QString &id, QPluginLoader &loader) {
    QString problem;
    const auto runs = [&](const char *what, const std::function<void()> &step) {
        return m_guard.callUnknown(name, what, step, &problem);
    };
    bool isLoaded = false;
    QObject *root = nullptr;
    if (!runs("its library's start", [&] { isLoaded = loader.load(); })) {
        return problem;
    }
    if (!isLoaded) {
        return QStringLiteral("cannot be loaded (%1)").arg(loader.errorString());
    }
    if (!runs("its constructor", [&] { root = loader.instance(); })) {
        return problem;
    }
    AppPlugin *const plugin = qobject_cast<AppPlugin *>(root);
    if (!plugin) {
        delete root;
        return QStringLiteral("offers no application interface (" AppPlugin_iid ")");
    }
    WindowInterface *window = nullptr;
    const bool hasStarted = runs("create", [&] { plugin->create(); }) && runs("requestWindowInterface", [&] {
                                if (plugin->windowInterfaceID().contains(applicationWindowId)) {
                                    window = plugin->requestWindowInterface(applicationWindowId);
                                }
                            });
    if (!hasStarted) {
        m_guard.silence(root);  // in what state it is, nobody knows
        return problem;
    }
    if (!window) {
        delete root;
        return QStringLiteral("offers no window %1").arg(applicationWindowId);
    }
    m_applications.push_back({id, root, plugin, window});
    m_guard.add(name, root, window);
    return QString();
}

void PluginCatalog::unload() {
    for (Application &application : m_applications) {
        delete application.root.data();
    }
    m_applications.clear();
    m_guard.clear();
}

void PluginCatalog::reload() {
    unload();
    m_failures.clear();
    for (const QString &file : QStringList(std::exchange(m_files, {}))) {
        load(file);
    }
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
