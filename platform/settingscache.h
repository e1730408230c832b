// SPDX-License-Identifier: Apache-2.0
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
    ///
    /// For "SettingTouchPageType" (see SettingsFunc) only while the audio settings are in front: an application that is
    /// opened reads the request by itself, and would take one that comes twice for a page to return to.
    void SettingsCacheSig(const QString &key);

private:
    SettingsCache();
    ~SettingsCache() override;
};

}  // namespace mem
