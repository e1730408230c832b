// SPDX-License-Identifier: Apache-2.0
// The settings stores: two ini files below the unit's root folder.

#include "audiosettingsutils.h"
#include "settingscache.h"
#include "settingsfunc.h"
#include "unit.h"

#include <QSettings>

namespace {

/// The unit's path below its root folder.
QString unitPath(const QString &path) { return carunit::rootFolder() + path; }

int wholeNumber(const QVariant &value, int defaultValue) {
    bool ok = false;
    const int number = value.toInt(&ok);
    return ok ? number : defaultValue;
}

void write(QSettings &file, const QString &key, const QVariant &value) {
    // As a number: what is written as a truth value may be read as a number.
    file.setValue(key, value.type() == QVariant::Bool ? QVariant(value.toInt()) : value);
}

}  // namespace

struct AudioSettingsUtils::Private {
    QSettings file{unitPath(QStringLiteral("/audio.ini")), QSettings::IniFormat};

    void restore(const QStringList &keys, int defaultValue) {
        for (const QString &key : keys) { write(file, key, defaultValue); }
    }
};

SINGLETON(AudioSettingsUtils)

int AudioSettingsUtils::getValue(const QString &key, int defaultValue) {
    return wholeNumber(d->file.value(key), defaultValue);
}

bool AudioSettingsUtils::getValue(const QString &key, bool defaultValue) {
    return wholeNumber(d->file.value(key), defaultValue) != 0;
}

void AudioSettingsUtils::setValue(const QString &key, const QVariant &, const QVariant &value, bool) {
    write(d->file, key, value);
}

void AudioSettingsUtils::clear(const QString &path) {
    d->file.clear();
    const QSettings factory(unitPath(path), QSettings::IniFormat);
    for (const QString &key : factory.allKeys()) { write(d->file, key, factory.value(key)); }
    carunit::powerUp();
}

void AudioSettingsUtils::flatCrossover() {
    for (const char *filter : {"front", "rear", "subwoofer"}) {
        const QString key = QStringLiteral("crossover/") + QLatin1String(filter);
        d->restore({key + QStringLiteral("freq"), key + QStringLiteral("y")}, 0);
        d->restore({key + QStringLiteral("heigh")}, 506);
        d->restore({key + QStringLiteral("level")}, 12);
        d->restore({key + QStringLiteral("slope")}, 1);
    }
    carunit::sendCrossover();
    emit signal_flatCrossover();
}

void AudioSettingsUtils::flatTimeDelay() {
    for (int output = 0; output < 6; ++output) { d->restore({QStringLiteral("timing/DATA_TYPE%1").arg(output)}, 0); }
    carunit::sendDelays();
    emit signal_flatTimeDelay();
}

void AudioSettingsUtils::updateDefeatSetup() { carunit::sendDefeat(); }

namespace mem {

struct SettingsFunc::Private {
    QSettings file{unitPath(QStringLiteral("/shared.ini")), QSettings::IniFormat};
};

SINGLETON(SettingsFunc)

int SettingsFunc::getValue(const QString &key, int defaultValue) {
    return wholeNumber(d->file.value(key), defaultValue);
}

void SettingsFunc::setValue(const QString &key, const QVariant &, const QVariant &value, bool) {
    write(d->file, key, value);
}

SettingsCache::SettingsCache() {}

SettingsCache::~SettingsCache() {}

SettingsCache *SettingsCache::instance() {
    static SettingsCache cache;
    return &cache;
}

}  // namespace mem
