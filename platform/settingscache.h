#pragma once

#include "platformapi.h"

#include <QObject>

namespace mem {

/// Notification of changed settings between applications. One object per process.
class PLATFORM_API SettingsCache : public QObject {
    Q_OBJECT
public:
    static SettingsCache *instance();

Q_SIGNALS:
    /// Raised, on this object, by whoever changed the setting \a key on behalf of others.
    void SettingsCacheSig(const QString &key);

private:
    SettingsCache();
    ~SettingsCache() override;
};

}  // namespace mem
