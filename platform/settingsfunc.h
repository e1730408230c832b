// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QVariant>

namespace mem {

/// The unit's store of settings that applications share, beside the audio settings.
///
/// One object per process, used from the GUI thread. Writing raises no signal (see SettingsCache).
///
/// "SettingTouchPageType" is how another application asks for a page of the audio settings: it writes 3 (Volume
/// Settings; 0 is no request), raises SettingsCache::SettingsCacheSig() if the audio settings are the application in
/// front, and opens them. The audio settings write 0 when the page has been left.
class PLATFORM_API SettingsFunc {
public:
    static SettingsFunc *instance();

    /// The stored value, or \a defaultValue where the key was never written or holds no number.
    int getValue(const QString &key, int defaultValue);
    /// Stores \a value, as AudioSettingsUtils::setValue() does.
    void setValue(const QString &key, const QVariant &defaultValue, const QVariant &value, bool save);

private:
    SettingsFunc();
    ~SettingsFunc();
    struct Private;
    Private *const d;
};

}  // namespace mem
