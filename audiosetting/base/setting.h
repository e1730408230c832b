// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audiosettingsutils.h"

namespace audiosetting {

/// One key of the audio settings store, with the default that all its readers use.
class Setting {
public:
    Setting(const QString &key, const QVariant &defaultValue) : m_key(key), m_default(defaultValue) {}
    /// A key of a family: "%1" in \a pattern becomes \a index.
    Setting(const QString &pattern, int index, const QVariant &defaultValue)
        : m_key(pattern.arg(index)), m_default(defaultValue) {}

    int value() const { return AudioSettingsUtils::instance()->getValue(m_key, m_default.toInt()); }
    bool flag() const { return AudioSettingsUtils::instance()->getValue(m_key, m_default.toBool()); }
    void write(const QVariant &value) const { AudioSettingsUtils::instance()->setValue(m_key, m_default, value, true); }
    const QString &key() const { return m_key; }
    const QVariant &defaultValue() const { return m_default; }

private:
    QString m_key;
    QVariant m_default;
};

}  // namespace audiosetting
