// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QObject>
#include <QVariant>

/// The unit's store of audio settings: typed values under text keys, kept over restarts and power cuts.
///
/// A value that was written as one type is read as the other: true is 1, false is 0, and every number but 0 is true.
///
/// One object per process, used from the GUI thread. Writing raises no signal: whoever changes a key on behalf
/// of others raises mem::SettingsCache::SettingsCacheSig itself.
class PLATFORM_API AudioSettingsUtils : public QObject {
    Q_OBJECT
public:
    static AudioSettingsUtils *instance();

    /// The stored value, or \a defaultValue where the key was never written or holds no number.
    int getValue(const QString &key, int defaultValue);
    /// The stored value, or \a defaultValue where the key was never written or holds no truth value.
    bool getValue(const QString &key, bool defaultValue);
    /// Stores \a value. \a defaultValue is the default that the key's readers use; \a save is always true.
    /// The new value is read back at once; it is on the disk a moment later, without waiting for it here.
    void setValue(const QString &key, const QVariant &defaultValue, const QVariant &value, bool save);

    /// Restores the factory state of all audio settings from the file at \a path, a path of the unit: keys that the
    /// file does not name, and all where it is missing, read as their defaults. "eq0" to "eq12" hold 12 (flat)
    /// afterwards, as on a new unit. Announces no setting: the caller does.
    void clear(const QString &path);

    /// Sets the fifteen keys of the current filters ("crossover/frontfreq" to "crossover/subwooferslope") to flat,
    /// updates the sound, then emits signal_flatCrossover(), once. "crossover/type" and the presets stay.
    void flatCrossover();
    /// Sets the six delays ("timing/DATA_TYPE%1") to 0, updates the sound, then emits signal_flatTimeDelay(), once.
    /// "timing/type" and the presets stay.
    void flatTimeDelay();

    /// Applies the stored Defeat state ("ADV_AUDIO_SETTINGS") to the sound; changes no key.
    void updateDefeatSetup();

Q_SIGNALS:
    void signal_flatCrossover();
    void signal_flatTimeDelay();

private:
    AudioSettingsUtils();
    ~AudioSettingsUtils() override;
    struct Private;
    Private *const d;
};
