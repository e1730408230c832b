// SPDX-License-Identifier: Apache-2.0
// Faults of the stores.

#include "platform/audiosettingsutils.h"
#include "platform/settingscache.h"
#include "platform/settingsfunc.h"
#include "tests/conformance/faults.h"

#include <QHash>

namespace {

/// The writes since the start, in order.
QHash<QString, QVariant> s_written;
QHash<QString, QVariant> s_before;  ///< the value before the last write
bool s_signalsMuted = false;

QString faultyKey(const QString &key) {
    if (faulty("keys-without-case")) {
        return key.toLower();
    }
    if (faulty("keys-without-group")) {
        return key.section(QLatin1Char('/'), -1);
    }
    return key;
}

void put(const char *key, int value) {
    AudioSettingsUtils::instance()->setValue(QLatin1String(key), 0, value, true);
}

int take(const char *key) {
    return AudioSettingsUtils::instance()->getValue(QLatin1String(key), 0);
}

void announce(const char *key) {
    emit mem::SettingsCache::instance()->SettingsCacheSig(QLatin1String(key));
}

}  // namespace

WRAP(int, storeGetInt, "_ZN18AudioSettingsUtils8getValueERK7QStringi", AudioSettingsUtils *self, const QString &key,
     int defaultValue) {
    REAL(storeGetInt);
    const bool written = s_written.contains(key);
    const bool number = written && s_written[key].canConvert<int>() && s_written[key].type() != QVariant::String;
    if (faulty("int-default-0") && !written) {
        return 0;
    }
    if (faulty("text-reads-0") && written && !number) {
        return 0;
    }
    if (faulty("flag-is-no-number") && written && s_written[key].type() == QVariant::Bool) {
        return defaultValue;
    }
    if (faulty("store-late") && s_before.contains(key)) {
        return s_before[key].toInt();
    }
    if (faulty("store-in-memory")) {
        return number ? s_written[key].toInt() : defaultValue;
    }
    const int value = real(self, faultyKey(key), defaultValue);
    return faulty("no-sign") && value < 0 ? ~value : value;
}

WRAP(bool, storeGetBool, "_ZN18AudioSettingsUtils8getValueERK7QStringb", AudioSettingsUtils *self, const QString &key,
     bool defaultValue) {
    REAL(storeGetBool);
    if (faulty("flag-default-false") && !s_written.contains(key)) {
        return false;
    }
    if (faulty("only-1-is-true")) {
        return self->getValue(key, int(defaultValue)) == 1;
    }
    return real(self, faultyKey(key), defaultValue);
}

WRAP(void, storeSet, "_ZN18AudioSettingsUtils8setValueERK7QStringRK8QVariantS5_b", AudioSettingsUtils *self,
     const QString &key, const QVariant &defaultValue, const QVariant &value, bool save) {
    REAL(storeSet);
    const bool first = !s_written.contains(key);
    if (!first) {
        s_before[key] = s_written[key];
    }
    s_written[key] = value;
    if ((faulty("first-write-lost") && first) || (faulty("zero-is-lost") && value.toInt() == 0) ||
        (faulty("false-is-lost") && value.type() == QVariant::Bool && !value.toBool()) || faulty("store-in-memory") ||
        (faulty("presets-are-lost") && key.contains(QLatin1String("PRESET")))) {
        return;
    }
    real(self, faultyKey(key), defaultValue, faulty("stores-the-default") ? defaultValue : value, save);
    if (faulty("write-announces")) {
        announce(key.toLatin1());
    }
}

WRAP(void, storeFlatCrossover, "_ZN18AudioSettingsUtils13flatCrossoverEv", AudioSettingsUtils *self) {
    REAL(storeFlatCrossover);
    const char *const kept = faulty("flat-forgets-level")    ? "crossover/frontlevel"
                             : faulty("flat-forgets-height") ? "crossover/subwooferheigh"
                                                             : nullptr;
    const int before = kept ? take(kept) : 0;
    if (faulty("flat-announces-first")) {
        emit self->signal_flatCrossover();
        s_signalsMuted = true;
    }
    real(self);
    s_signalsMuted = false;
    if (kept) {
        put(kept, before);
    }
    if (faulty("flat-takes-type")) {
        put("crossover/type", 0);
    }
    if (faulty("flat-takes-presets")) {
        put("crossover/PRESET_SWITCH0", 0);
    }
    if (faulty("flat-takes-delays")) {
        put("timing/DATA_TYPE2", 0);
    }
}

WRAP(void, storeFlatDelays, "_ZN18AudioSettingsUtils13flatTimeDelayEv", AudioSettingsUtils *self) {
    REAL(storeFlatDelays);
    const int last = take("timing/DATA_TYPE5");
    if (faulty("delays-announced-first")) {
        emit self->signal_flatTimeDelay();
        s_signalsMuted = true;
    }
    real(self);
    s_signalsMuted = false;
    if (faulty("last-delay-stays")) {
        put("timing/DATA_TYPE5", last);
    }
    if (faulty("delays-take-presets")) {
        put("timing/PRESETS1_DATA3", 0);
    }
    if (faulty("delays-announced-as-crossover")) {
        emit self->signal_flatCrossover();
    }
}

WRAP(void, storeCrossoverSignal, "_ZN18AudioSettingsUtils20signal_flatCrossoverEv", AudioSettingsUtils *self) {
    REAL(storeCrossoverSignal);
    if (faulty("flat-not-announced") || s_signalsMuted) {
        return;
    }
    real(self);
    if (faulty("flat-announced-twice")) {
        real(self);
    }
}

WRAP(void, storeDelaySignal, "_ZN18AudioSettingsUtils20signal_flatTimeDelayEv", AudioSettingsUtils *self) {
    REAL(storeDelaySignal);
    if (!faulty("delays-not-announced") && !s_signalsMuted) {
        real(self);
    }
}

WRAP(void, storeClear, "_ZN18AudioSettingsUtils5clearERK7QString", AudioSettingsUtils *self, const QString &path) {
    REAL(storeClear);
    if (faulty("clear-does-nothing")) {
        return;
    }
    const int loudness = take("Setup_Loudness");
    s_written.clear();
    real(self, path);
    if (faulty("clear-keeps-loudness")) {
        put("Setup_Loudness", loudness);
    }
    if (faulty("clear-lowers-curve")) {
        put("eq7", 0);
    }
    if (faulty("clear-announces")) {
        announce("ADV_AUDIO_SETTINGS");
    }
}

WRAP(void, storeDefeat, "_ZN18AudioSettingsUtils17updateDefeatSetupEv", AudioSettingsUtils *self) {
    REAL(storeDefeat);
    real(self);
    if (faulty("defeat-writes")) {
        put("EQ_DEFEAT_TYPE", 0);
    }
}

WRAP(int, sharedGet, "_ZN3mem12SettingsFunc8getValueERK7QStringi", mem::SettingsFunc *self, const QString &key,
     int defaultValue) {
    REAL(sharedGet);
    return real(self, key, faulty("shared-default-0") ? 0 : defaultValue);
}

WRAP(void, sharedSet, "_ZN3mem12SettingsFunc8setValueERK7QStringRK8QVariantS6_b", mem::SettingsFunc *self,
     const QString &key, const QVariant &defaultValue, const QVariant &value, bool save) {
    REAL(sharedSet);
    if (faulty("shared-is-lost")) {
        return;
    }
    real(self, key, defaultValue, value, save);
    if (faulty("shared-announces")) {
        announce(key.toLatin1());
    }
    if (faulty("stores-are-one")) {
        AudioSettingsUtils::instance()->setValue(key, defaultValue, value, save);
    }
}

WRAP(void, cacheSignal, "_ZN3mem13SettingsCache16SettingsCacheSigERK7QString", mem::SettingsCache *self,
     const QString &key) {
    REAL(cacheSignal);
    if (!faulty("cache-is-mute")) {
        real(self, key);
    }
}
