// SPDX-License-Identifier: Apache-2.0
#include "platform/audiosettingsutils.h"
#include "platform/settingscache.h"
#include "platform/settingsfunc.h"
#include "tests/platform/recorder_p.h"

using recording::call;

namespace {

int intValue(const QHash<QString, QVariant> &values, const QString &key, int defaultValue) {
    bool ok = false;
    const int value = values.value(key).toInt(&ok);
    return ok ? value : defaultValue;
}

bool boolValue(const QHash<QString, QVariant> &values, const QString &key, bool defaultValue) {
    const QVariant value = values.value(key);
    bool ok = false;
    const int number = value.toInt(&ok);
    return value.userType() == QMetaType::Bool ? value.toBool() : ok ? number != 0 : defaultValue;
}

/// Forgets the keys asked for, so that they read as their defaults.
template <typename Forget> void forget(Forget wanted) {
    QHash<QString, QVariant> &values = recording::storedValues();
    const QStringList keys = values.keys();
    for (const QString &key : keys) {
        if (wanted(key)) {
            values.remove(key);
        }
    }
}

bool isCurrentCrossover(const QString &key) {
    return key.startsWith(QLatin1String("crossover/")) && key != QLatin1String("crossover/type") &&
           !key.startsWith(QLatin1String("crossover/PRESET_"));
}

bool isCurrentDelay(const QString &key) {
    return key.startsWith(QLatin1String("timing/DATA_TYPE")) || key.startsWith(QLatin1String("timing/msec"));
}

}  // namespace

struct AudioSettingsUtils::Private {};

AudioSettingsUtils::AudioSettingsUtils() : d(nullptr) {
    connect(this, &AudioSettingsUtils::signal_flatCrossover, [] { call("signal_flatCrossover"); });
    connect(this, &AudioSettingsUtils::signal_flatTimeDelay, [] { call("signal_flatTimeDelay"); });
}

AudioSettingsUtils::~AudioSettingsUtils() {}

AudioSettingsUtils *AudioSettingsUtils::instance() {
    static AudioSettingsUtils utils;
    return &utils;
}

int AudioSettingsUtils::getValue(const QString &key, int defaultValue) {
    call(recording::Reads, "getValue", key, defaultValue);
    return intValue(recording::storedValues(), key, defaultValue);
}

bool AudioSettingsUtils::getValue(const QString &key, bool defaultValue) {
    call(recording::Reads, "getValue", key, defaultValue);
    return boolValue(recording::storedValues(), key, defaultValue);
}

void AudioSettingsUtils::setValue(const QString &key, const QVariant &defaultValue, const QVariant &value, bool save) {
    call("setValue", key, defaultValue, value, save);
    recording::storedValues().insert(key, value);
}

void AudioSettingsUtils::clear(const QString &path) {
    call("clear", path);
    recording::storedValues() = recording::factoryValues();
}

void AudioSettingsUtils::flatCrossover() {
    call("flatCrossover");
    forget(isCurrentCrossover);
    emit signal_flatCrossover();
}

void AudioSettingsUtils::flatTimeDelay() {
    call("flatTimeDelay");
    forget(isCurrentDelay);
    emit signal_flatTimeDelay();
}

void AudioSettingsUtils::updateDefeatSetup() {
    call("updateDefeatSetup");
}

namespace mem {

struct SettingsFunc::Private {};

SettingsFunc::SettingsFunc() : d(nullptr) {}
SettingsFunc::~SettingsFunc() {}

SettingsFunc *SettingsFunc::instance() {
    static SettingsFunc settings;
    return &settings;
}

int SettingsFunc::getValue(const QString &key, int defaultValue) {
    call(recording::Reads, "SettingsFunc::getValue", key, defaultValue);
    return intValue(recording::sharedValues(), key, defaultValue);
}

void SettingsFunc::setValue(const QString &key, const QVariant &defaultValue, const QVariant &value, bool save) {
    call("SettingsFunc::setValue", key, defaultValue, value, save);
    recording::sharedValues().insert(key, value);
}

SettingsCache::SettingsCache() {
    connect(this, &SettingsCache::SettingsCacheSig, [](const QString &key) { call("SettingsCacheSig", key); });
}

SettingsCache::~SettingsCache() {}

SettingsCache *SettingsCache::instance() {
    static SettingsCache cache;
    return &cache;
}

}  // namespace mem
