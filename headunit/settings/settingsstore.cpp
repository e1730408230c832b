// SPDX-License-Identifier: Apache-2.0
#include "settingsstore.h"

#include "linelimit.h"
#include "settingsfile.h"
#include "settingswriter.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace headunit {

namespace {

// Of the 100 ms in which a change must be on the disk, the rest is the disk's.
constexpr int durableGatherMs = 40;
constexpr int quickGatherMs = 20;

constexpr int longestText = 64 * 1024;  ///< bytes of UTF-8

}  // namespace

SettingsStore::SettingsStore(std::shared_ptr<SaveClock> clock, std::shared_ptr<std::atomic<int>> failing)
    : m_clock(std::move(clock)), m_failing(std::move(failing)) {}

SettingsStore::~SettingsStore() {
    close();
}

QString SettingsStore::open(const QString &path, const SettingsMap &factory) {
    close();
    QDir().mkpath(QFileInfo(path).path());
    const auto file = std::make_shared<SettingsFile>(path);
    Snapshot snapshot;
    snapshot.values = factory;
    QString problem;
    if (m_lock.acquire(path + QStringLiteral(".lock"))) {
        file->load(&snapshot, &problem);
        m_file = file;
        m_writer = std::make_unique<SettingsWriter>(
            path, snapshot, durableGatherMs,
            [file](const Snapshot &state, QString *reason) { return file->save(state, reason); }, m_clock, m_failing);
        m_quick = std::make_unique<SettingsWriter>(
            path, snapshot, quickGatherMs,
            [file](const Snapshot &state, QString *) {
                file->saveQuickly(state);  // where that fails, the other writer has the same trouble and says so
                return true;
            },
            m_clock);
    } else {
        file->peek(&snapshot);
        problem = QStringLiteral("settings file %1: in use by another process; nothing will be saved").arg(path);
    }
    m_values = snapshot.values;
    if (m_file && m_file->isBehind()) {
        replaceAll(m_values);
    }
    if (!problem.isEmpty()) {
        qWarning("%s", qUtf8Printable(problem));
    }
    return problem;
}

void SettingsStore::close() {
    if (m_file) {
        const bool quickEnded = m_quick->finish();
        if (m_writer->finish() && quickEnded) {
            m_file->dropQuickCopies();
        }
        m_quick.reset();
        m_writer.reset();
        m_file.reset();
    }
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
        if (lineMayPass(value.typeName())) {
            qWarning("settings: %s cannot hold a %s", qUtf8Printable(key), value.typeName());
        }
        return;
    }
    if (kept.userType() == QMetaType::QString && kept.toString().toUtf8().size() > longestText) {
        if (lineMayPass(QStringLiteral("long text"))) {
            qWarning("settings: %s cannot hold a text of more than %d bytes", qUtf8Printable(key.left(60)),
                     longestText);
        }
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
        m_quick->put(key, kept);
    }
}

void SettingsStore::replaceAll(const SettingsMap &values) {
    m_values = values;
    if (m_writer) {
        m_writer->replaceAll(values);
        m_quick->replaceAll(values);
    }
}

}  // namespace headunit
