// SPDX-License-Identifier: Apache-2.0
#include "platform/audiosettingsutils.h"

#include "audiokeys.h"
#include "soundlistener.h"
#include "trace.h"
#include "unitsettings.h"

using headunit::SettingKey;
using headunit::SettingsMap;
using headunit::SoundPart;
using headunit::traceCall;
using headunit::traceValue;

struct AudioSettingsUtils::Private {
    headunit::SettingsStore &store = headunit::audioStore();

    /// The keys that a reset changes, in the order of their names.
    void traceReset(const SettingsMap &factory) {
        QStringList changed = store.values().keys() + factory.keys();
        changed.sort();
        changed.removeDuplicates();
        for (const QString &key : qAsConst(changed)) {
            const QVariant before = store.values().value(key);
            const QVariant after = factory.value(key);
            if (before != after) {
                const QString text = after.isValid() ? traceValue(after) : QStringLiteral("its default");
                HEADUNIT_TRACE_KIND(Write, QStringLiteral("%1 = %2").arg(key, text),
                                    QStringLiteral("store: %1 = %2").arg(key, text), key, before, after);
            }
        }
    }

    void restoreDefault(const QString &key, int defaultValue) {
        HEADUNIT_TRACE_KIND(Write, QStringLiteral("%1 = %2").arg(key).arg(defaultValue),
                            QStringLiteral("store: %1 = %2").arg(key).arg(defaultValue), key, store.values().value(key),
                            defaultValue);
        store.set(key, defaultValue);
    }
};

AudioSettingsUtils::AudioSettingsUtils() : d(new Private) {}

AudioSettingsUtils::~AudioSettingsUtils() {
    delete d;
}

AudioSettingsUtils *AudioSettingsUtils::instance() {
    static AudioSettingsUtils settings;
    return &settings;
}

int AudioSettingsUtils::getValue(const QString &key, int defaultValue) {
    const int value = d->store.intValue(key, defaultValue);
    HEADUNIT_TRACE_READ(traceCall("getValue", {key, defaultValue}),
                        QStringLiteral("store: %1 is %2").arg(key).arg(value));
    return value;
}

bool AudioSettingsUtils::getValue(const QString &key, bool defaultValue) {
    const bool value = d->store.boolValue(key, defaultValue);
    HEADUNIT_TRACE_READ(traceCall("getValue", {key, defaultValue}),
                        QStringLiteral("store: %1 is %2").arg(key, traceValue(value)));
    return value;
}

void AudioSettingsUtils::setValue(const QString &key, const QVariant &defaultValue, const QVariant &value, bool save) {
    HEADUNIT_TRACE_KIND(Write, traceCall("setValue", {key, defaultValue, value, save}),
                        QStringLiteral("store: %1 = %2").arg(key, traceValue(value)), key, d->store.values().value(key),
                        value);
    d->store.set(key, value);
}

void AudioSettingsUtils::clear(const QString &path) {
    HEADUNIT_TRACE(traceCall("clear", {path}), QStringLiteral("all audio settings to the factory state"));
    const headunit::FactoryState factory = headunit::factoryState(path);
    if (!factory.problem.isEmpty()) {
        qWarning("%s", qUtf8Printable(factory.problem));
    }
    if (headunit::traceEnabled()) {
        d->traceReset(factory.values);
    }
    d->store.replaceAll(factory.values);
    headunit::notifySound(SoundPart::All);
}

void AudioSettingsUtils::flatCrossover() {
    HEADUNIT_TRACE(traceCall("flatCrossover"), QStringLiteral("crossover flat: all three filters off"));
    for (const headunit::FilterKeys &filter : headunit::keys::filters) {
        for (const SettingKey &key : {filter.freq, filter.y, filter.heigh, filter.level, filter.slope}) {
            d->restoreDefault(QString::fromLatin1(key.name), key.defaultValue);
        }
    }
    headunit::notifySound(SoundPart::Crossover);
    Q_EMIT signal_flatCrossover();
}

void AudioSettingsUtils::flatTimeDelay() {
    HEADUNIT_TRACE(traceCall("flatTimeDelay"), QStringLiteral("all six delays 0 ms"));
    for (int output = 0; output < headunit::keys::outputs; ++output) {
        d->restoreDefault(QString::fromLatin1(headunit::keys::delay.name).arg(output),
                          headunit::keys::delay.defaultValue);
    }
    headunit::notifySound(SoundPart::Delays);
    Q_EMIT signal_flatTimeDelay();
}

void AudioSettingsUtils::updateDefeatSetup() {
    HEADUNIT_TRACE(traceCall("updateDefeatSetup"), d->store.intValue(QString::fromLatin1(headunit::keys::defeat.name),
                                                                     headunit::keys::defeat.defaultValue) != 0
                                                       ? QStringLiteral("Defeat on: sound processing bypassed")
                                                       : QStringLiteral("Defeat off: sound processing in force"));
    headunit::notifySound(SoundPart::Defeat);
}
