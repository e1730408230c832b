// SPDX-License-Identifier: Apache-2.0
// The audio settings store.

#include "audiosettingsutils.h"
#include "check.h"
#include "keys.h"
#include "settingscache.h"
#include "signallog.h"

using namespace conformance;

namespace {

const char everyPage[] = "every page: what it shows is not what was set";
const char crossover[] = "Crossover and its Flat key";
const char timing[] = "Timing and its Flat key";
const char resetPage[] = "Reset audio settings, and every page after it";

AudioSettingsUtils *store() {
    return AudioSettingsUtils::instance();
}

void set(const char *key, const QVariant &value, const QVariant &defaultValue = 0) {
    store()->setValue(QLatin1String(key), defaultValue, value, true);
}

int get(const char *key, int defaultValue) {
    return store()->getValue(QLatin1String(key), defaultValue);
}

bool flag(const char *key, bool defaultValue) {
    return store()->getValue(QLatin1String(key), defaultValue);
}

/// The store as a slot sees it while the signal is raised.
template <typename Signal> QVector<int> seenDuring(Signal signal, const Key *first, const Key *last, void (*act)()) {
    QVector<int> seen;
    QObject receiver;
    QObject::connect(store(), signal, &receiver, [&] {
        for (const Key *key = first; key != last; ++key) {
            seen << get(key->name, -1);
        }
    });
    act();
    return seen;
}

template <size_t Count> void disturb(const Key (&keys)[Count]) {
    for (const Key &key : keys) {
        set(key.name, 2, key.flat);
    }
}

template <size_t Count> void expectFlat(const Key (&keys)[Count]) {
    for (const Key &key : keys) {
        // A default of another value: a key that was taken away is found as well.
        expect(QLatin1String(key.name), key.flat, get(key.name, key.flat));
    }
}

template <size_t Count> void expectDisturbed(const Key (&keys)[Count]) {
    for (const Key &key : keys) {
        expect(QLatin1String(key.name), 2, get(key.name, key.flat));
    }
}

template <size_t Count> QVector<int> flatValues(const Key (&keys)[Count]) {
    QVector<int> values;
    for (const Key &key : keys) {
        values << key.flat;
    }
    return values;
}

void expectKept() {
    for (const char *key : keptByFlat) {
        expect(QLatin1String(key), 1, get(key, 0));
    }
}

}  // namespace

CHECK(storeOneObject, "store.one-object", "instance() is the same object at every call.", everyPage) {
    expectTrue("the second call gives the object of the first", store() == AudioSettingsUtils::instance());
    expectTrue("SettingsCache, too", mem::SettingsCache::instance() == mem::SettingsCache::instance());
}

CHECK(storeIntDefault, "store.int-default", "A number that was never written reads as the caller's default.",
      everyPage) {
    for (int value : {0, 3, 12, 506, -5}) {
        expect("getValue(\"conformance/none\", int)", value, get("conformance/none", value));
    }
}

CHECK(storeBoolDefault, "store.bool-default", "A truth value that was never written reads as the caller's default.",
      "preset keys of EQ, Crossover and Timing") {
    expect("getValue(\"conformance/none\", true)", true, flag("conformance/none", true));
    expect("getValue(\"conformance/none\", false)", false, flag("conformance/none", false));
}

CHECK(storeReadAtOnce, "store.read-at-once", "What was written is read back at once.", everyPage) {
    set("conformance/a", 7);
    expect("after the first write", 7, get("conformance/a", 0));
    set("conformance/a", 8);
    expect("after the second write", 8, get("conformance/a", 0));
    set("conformance/a", 0);
    expect("after 0 was written", 0, get("conformance/a", 5));
}

CHECK(storeBool, "store.bool-round-trip", "A truth value reads as it was written.", "preset keys, switches") {
    set("conformance/flag", true, false);
    expect("after true", true, flag("conformance/flag", false));
    set("conformance/flag", false, false);
    expect("after false", false, flag("conformance/flag", true));
}

CHECK(storeBoolIsInt, "store.bool-is-int", "A truth value read as a number is 1 or 0.", "switches of General") {
    set("conformance/flag", true, false);
    expect("true as a number", 1, get("conformance/flag", 5));
    set("conformance/flag", false, false);
    expect("false as a number", 0, get("conformance/flag", 5));
}

CHECK(storeIntIsBool, "store.int-is-bool", "A number read as a truth value is true unless it is 0.",
      "switches of General") {
    set("conformance/number", 1);
    expect("1 as a truth value", true, flag("conformance/number", false));
    set("conformance/number", 7);
    expect("7 as a truth value", true, flag("conformance/number", false));
    set("conformance/number", 0);
    expect("0 as a truth value", false, flag("conformance/number", true));
}

CHECK(storeText, "store.text-is-default", "A stored text that is not a number reads as the caller's default.",
      everyPage) {
    set("conformance/text", QStringLiteral("loud"));
    expect("as a number", 9, get("conformance/text", 9));
}

CHECK(storeNegative, "store.any-number", "Every int is a value: negative ones and the largest, too.",
      "balance and fader, source gains") {
    for (int value : {-1, -12, -15, 2147483647, -2147483647 - 1}) {
        set("conformance/number", value);
        expect("the value written", value, get("conformance/number", 1));
    }
}

CHECK(storeKeysApart, "store.keys-apart", "Keys are told apart by every character, case included.",
      "EQ bands, crossover and timing presets") {
    const char *const names[] = {"eq1",         "eq10",           "EQ1", "subwooferLevel", "subwooferlevel",
                                 "timing/type", "crossover/type", "type"};
    int value = 20;
    for (const char *name : names) {
        set(name, ++value);
    }
    value = 20;
    for (const char *name : names) {
        expect(QLatin1String(name), ++value, get(name, 0));
    }
}

CHECK(storeDefaultArgument, "store.default-is-not-stored",
      "The default that setValue() is given is its readers'; it is not what is stored.", everyPage) {
    set("conformance/a", 4, 16);
    expect("the value, not the default", 4, get("conformance/a", 16));
}

CHECK(storeSilent, "store.writes-are-silent", "Writing raises no signal.", "Volume Settings would open over itself") {
    SignalLog log;
    for (const char *key : {"ADV_AUDIO_SETTINGS", "SettingTouchPageType", "crossover/frontfreq", "inputgain0"}) {
        set(key, 3);
    }
    pass(0);
    expect("signals", QStringList(), log.lines);
}

CHECK(flatCrossoverKeys, "flat.crossover-keys", "flatCrossover() sets the fifteen keys of the current filters to flat.",
      crossover) {
    disturb(crossoverKeys);
    store()->flatCrossover();
    expectFlat(crossoverKeys);
}

CHECK(flatCrossoverKeeps, "flat.crossover-keeps",
      "flatCrossover() keeps \"crossover/type\", the presets, and all else.", crossover) {
    for (const char *key : keptByFlat) {
        set(key, 1);
    }
    disturb(delayKeys);
    store()->flatCrossover();
    expectKept();
    expectDisturbed(delayKeys);
}

CHECK(flatCrossoverSignal, "flat.crossover-signal",
      "flatCrossover() emits signal_flatCrossover() once, and nothing else.", crossover) {
    SignalLog log;
    store()->flatCrossover();
    pass(0);
    expect("signals", QStringList(QStringLiteral("signal_flatCrossover()")), log.lines);
}

CHECK(flatCrossoverOrder, "flat.crossover-order", "signal_flatCrossover() comes when the keys are flat already.",
      crossover) {
    disturb(crossoverKeys);
    const QVector<int> seen = seenDuring(&AudioSettingsUtils::signal_flatCrossover, std::begin(crossoverKeys),
                                         std::end(crossoverKeys), [] { store()->flatCrossover(); });
    QVector<int> wanted;
    for (const Key &key : crossoverKeys) {
        wanted << key.flat;
    }
    // A unit may take the keys away instead: then each reads as its default.
    expectTrue("the keys in a slot of the signal", seen == wanted || seen == QVector<int>(wanted.size(), -1));
}

CHECK(flatDelayKeys, "flat.delay-keys", "flatTimeDelay() sets the six delays to 0.", timing) {
    disturb(delayKeys);
    store()->flatTimeDelay();
    expectFlat(delayKeys);
}

CHECK(flatDelayKeeps, "flat.delay-keeps", "flatTimeDelay() keeps \"timing/type\", the presets, and all else.", timing) {
    for (const char *key : keptByFlat) {
        set(key, 1);
    }
    disturb(crossoverKeys);
    store()->flatTimeDelay();
    expectKept();
    expectDisturbed(crossoverKeys);
}

CHECK(flatDelaySignal, "flat.delay-signal", "flatTimeDelay() emits signal_flatTimeDelay() once, and nothing else.",
      timing) {
    SignalLog log;
    store()->flatTimeDelay();
    pass(0);
    expect("signals", QStringList(QStringLiteral("signal_flatTimeDelay()")), log.lines);
}

CHECK(flatDelayOrder, "flat.delay-order", "signal_flatTimeDelay() comes when the delays are 0 already.", timing) {
    disturb(delayKeys);
    const QVector<int> seen = seenDuring(&AudioSettingsUtils::signal_flatTimeDelay, std::begin(delayKeys),
                                         std::end(delayKeys), [] { store()->flatTimeDelay(); });
    expectTrue("the keys in a slot of the signal", seen == QVector<int>(6, 0) || seen == QVector<int>(6, -1));
}

CHECK(clearForgets, "clear.forgets", "After clear() every key reads as its default or its factory value.", resetPage) {
    const char *const keys[] = {"Setup_Loudness",      "Setup_Sub",         "subwooferphase",
                                "SoundFieldBalance",   "SoundFieldFader",   "ADV_AUDIO_SETTINGS",
                                "crossover/frontfreq", "timing/DATA_TYPE5", "EqPresetSwitch0",
                                "customeq1_3",         "conformance/own",   "timing/PRESETS0_DATA1"};
    for (const char *key : keys) {
        set(key, 4);
    }
    store()->clear(QLatin1String(factoryFile));
    for (const char *key : keys) {
        expectTrue(QStringLiteral("%1 was forgotten").arg(QLatin1String(key)), get(key, -99) != 4);
    }
}

CHECK(clearCurve, "clear.curve-in-store",
      "After clear(), and on a new unit, \"eq%1\" and getCustomEq() say the same: the curve is flat, 12.", "EQ") {
    for (int round = 0; round < 2; ++round) {
        for (int band = 0; band < bandCount; ++band) {
            const QString where =
                QStringLiteral("band %1 %2").arg(band).arg(QLatin1String(round ? "after clear()" : "anew"));
            const int value = qvaudio::AudioService::instance()->getCustomEq(band);
            expect(where + QStringLiteral(", in the store"), 12,
                   store()->getValue(QStringLiteral("eq%1").arg(band), 0));
            expect(where + QStringLiteral(", in the service"), 12, value);
        }
        store()->clear(QLatin1String(factoryFile));
    }
}

CHECK(clearSilent, "clear.is-silent", "clear() announces no setting: its caller does.", resetPage) {
    set("ADV_AUDIO_SETTINGS", 1);
    SignalLog log;
    store()->clear(QLatin1String(factoryFile));
    pass(0);
    expect("SettingsCacheSig", QStringList(), log.lines.filter(QStringLiteral("SettingsCacheSig")));
}

CHECK(clearWithoutFile, "clear.without-file", "A factory file that is not there leaves every key at its default.",
      resetPage) {
    set("subwooferLevel", 9);
    store()->clear(QStringLiteral("/no/such/file.ini"));
    expectTrue("subwooferLevel was forgotten", get("subwooferLevel", -99) != 9);
}

CHECK(defeatReads, "defeat.reads-only", "updateDefeatSetup() applies what is stored, and changes no key.", "General") {
    set("ADV_AUDIO_SETTINGS", 1);
    set("EQ_DEFEAT_TYPE", 3);
    SignalLog log;
    store()->updateDefeatSetup();
    pass(0);
    expect("ADV_AUDIO_SETTINGS", 1, get("ADV_AUDIO_SETTINGS", 0));
    expect("EQ_DEFEAT_TYPE", 3, get("EQ_DEFEAT_TYPE", 0));
    expect("signals", QStringList(), log.lines);
}

RESTART_CHECK(storeRestart, "store.survives-restart", "The store keeps what was written over a restart.",
              "everything that the driver has set") {
    set("subwooferLevel", 11, 3);
    set("SoundFieldBalance", -7);
    set("EqPresetSwitch2", true, false);
    set("crossover/frontheigh", 300, 506);
}
AFTER_RESTART(storeRestart) {
    expect("subwooferLevel", 11, get("subwooferLevel", 3));
    expect("SoundFieldBalance", -7, get("SoundFieldBalance", 0));
    expect("EqPresetSwitch2", true, flag("EqPresetSwitch2", false));
    expect("crossover/frontheigh", 300, get("crossover/frontheigh", 506));
}
