// SPDX-License-Identifier: Apache-2.0
#include "platform/settingscache.h"

#include "trace.h"

namespace mem {

SettingsCache::SettingsCache() {
    connect(this, &SettingsCache::SettingsCacheSig, this, [](const QString &key) {
        HEADUNIT_TRACE_KIND(Announcement, headunit::traceCall("SettingsCacheSig", {key}),
                            QStringLiteral("announced: %1 changed").arg(key));
    });
}

SettingsCache::~SettingsCache() = default;

SettingsCache *SettingsCache::instance() {
    static SettingsCache cache;
    return &cache;
}

}  // namespace mem
