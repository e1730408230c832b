#pragma once

#include "platformapi.h"

#include <QVariant>

namespace mem {

/// The unit's store of settings that applications share, beside the audio settings.
///
/// One object per process, used from the GUI thread. Writing raises no signal (see SettingsCache).
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
