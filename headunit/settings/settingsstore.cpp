#include "settingsstore.h"

#include "settingswriter.h"

#include <QDir>
#include <QFileInfo>

namespace headunit {

SettingsStore::SettingsStore() = default;

SettingsStore::~SettingsStore() = default;

QString SettingsStore::open(const QString &path, const SettingsMap &factory) {
    close();
    m_values = factory;
    QDir().mkpath(QFileInfo(path).path());
    SettingsFile file(path);
    QString problem;
    if (m_lock.acquire(path + QStringLiteral(".lock"))) {
        file.load(&m_values, &problem);
        m_writer = std::make_unique<SettingsWriter>(file, m_values);
    } else {
        file.peek(&m_values);
        problem = QStringLiteral("settings file %1: in use by another process; nothing will be saved").arg(path);
    }
    if (!problem.isEmpty()) {
        qWarning("%s", qUtf8Printable(problem));
    }
    return problem;
}

void SettingsStore::close() {
    m_writer.reset();
    m_lock.release();
    m_values.clear();
}

bool SettingsStore::flush(int timeoutMs) {
    return m_writer && m_writer->flush(timeoutMs);
}

int SettingsStore::intValue(const QString &key, int defaultValue) const {
    const auto it = m_values.constFind(key);
    return it == m_values.cend() ? defaultValue : toInt(*it, defaultValue);
}

bool SettingsStore::boolValue(const QString &key, bool defaultValue) const {
    const auto it = m_values.constFind(key);
    return it == m_values.cend() ? defaultValue : toBool(*it, defaultValue);
}

void SettingsStore::set(const QString &key, const QVariant &value) {
    const QVariant kept = storableValue(value);
    if (!kept.isValid() && value.isValid()) {
        qWarning("settings: %s cannot hold a %s", qUtf8Printable(key), value.typeName());
        return;
    }
    const auto it = m_values.find(key);
    if (it == m_values.end() ? !kept.isValid() : sameValue(*it, kept)) {
        return;
    }
    if (!kept.isValid()) {
        m_values.erase(it);
    } else if (it == m_values.end()) {
        m_values.insert(key, kept);
    } else {
        *it = kept;
    }
    if (m_writer) {
        m_writer->put(key, kept);
    }
}

void SettingsStore::replaceAll(const SettingsMap &values) {
    m_values = values;
    if (m_writer) {
        m_writer->replaceAll(values);
    }
}

}  // namespace headunit
