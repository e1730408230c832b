// SPDX-License-Identifier: Apache-2.0
#include "callrecorder.h"

#include "audioeqtype.h"

#include <QObject>
#include <QVariant>
#include <QWidget>

#include <cstring>

#include <dlfcn.h>

class AudioSettingsUtils;

namespace conformance {

namespace {

QStringList s_calls;
const void *s_plugin = nullptr;  ///< where its library lies in memory

const void *libraryOf(const void *code) {
    Dl_info info;
    return dladdr(code, &info) ? info.dli_fbase : nullptr;
}

#ifndef CONFORMANCE_STATIC_UNIT

/// Whether a call that returns to there was made by the plug-in. A call that ends one of its slots returns to Qt, which
/// called the slot; what returns to this program or to the unit was made by them.
bool fromPlugin(const void *caller) {
    Dl_info info;
    return s_plugin && dladdr(caller, &info) && (info.dli_fbase == s_plugin || std::strstr(info.dli_fname, "/libQt5"));
}

QString text(int value) {
    return QString::number(value);
}
QString text(bool value) {
    return QLatin1String(value ? "true" : "false");
}
QString text(const QString &value) {
    return QLatin1Char('"') + value + QLatin1Char('"');
}
QString text(const QVariant &value) {
    return value.type() == QVariant::String ? text(value.toString()) : value.toString();
}

template <typename... Args> QString line(const char *name, const Args &...args) {
    const QStringList texts = {text(args)...};
    return QStringLiteral("%1(%2)").arg(QLatin1String(name), texts.join(QStringLiteral(", ")));
}

#endif

}  // namespace

bool callsAreSeen() {
#ifdef CONFORMANCE_STATIC_UNIT
    return false;
#else
    return true;
#endif
}

void recordCallsOf(const QObject *object) {
    // The table of virtual functions is the first thing in an object, and part of its library.
    s_plugin = libraryOf(*reinterpret_cast<const void *const *>(object));
}

QStringList takeCalls() {
    QStringList calls;
    calls.swap(s_calls);
    return calls;
}

void noteCall(const QString &call) {
    s_calls << call;
}

}  // namespace conformance

#ifndef CONFORMANCE_STATIC_UNIT

// A member function is a function whose first argument is the object, and its name in the library is the mangled one.

#define RECORDED(function, symbol, name, parameters, arguments, ...)                       \
    extern "C" void function parameters __asm__(symbol);                                   \
    extern "C" void function parameters {                                                  \
        if (conformance::fromPlugin(__builtin_return_address(0))) {                        \
            conformance::noteCall(conformance::line(name, __VA_ARGS__));                   \
        }                                                                                  \
        typedef void(*Function) parameters;                                                \
        static const Function next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol)); \
        next arguments;                                                                    \
    }
#define RECORDED_BARE(function, symbol, name)                                              \
    extern "C" void function(void *self) __asm__(symbol);                                  \
    extern "C" void function(void *self) {                                                 \
        if (conformance::fromPlugin(__builtin_return_address(0))) {                        \
            conformance::noteCall(QStringLiteral(name "()"));                              \
        }                                                                                  \
        typedef void (*Function)(void *);                                                  \
        static const Function next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, symbol)); \
        next(self);                                                                        \
    }

// clang-format off: a function of the contract a line or two
RECORDED(recordedBeep, "_ZN7qvaudio12AudioService6doBeepEi", "doBeep", (void *self, int sound), (self, sound), sound)
RECORDED(recordedBalance, "_ZN7qvaudio12AudioService15setBalanceFaderEiib", "setBalanceFader",
         (void *self, int balance, int fader, bool apply), (self, balance, fader, apply), balance, fader, apply)
RECORDED(recordedCurve, "_ZN7qvaudio12AudioService9setEQTypeE11AudioEQTypeb", "setEQType",
         (void *self, AudioEQType type, bool apply), (self, type, apply), int(type), apply)
RECORDED(recordedBand, "_ZN7qvaudio12AudioService11setCustomEqEiib", "setCustomEq",
         (void *self, int value, int band, bool apply), (self, value, band, apply), value, band, apply)
RECORDED(recordedLevel, "_ZN7qvaudio12AudioService14setVolumeLevelEii", "setVolumeLevel",
         (void *self, int level, int type), (self, level, type), level, type)
RECORDED(recordedLoudness, "_ZN3mcu10McuService11setLoudnessEi", "setLoudness", (void *self, int on), (self, on), on)
RECORDED(recordedSub, "_ZN3mcu10McuService17setSubwooferValueEi", "setSubwooferValue", (void *self, int level),
         (self, level), level)
RECORDED(recordedPhase, "_ZN3mcu10McuService17setSubwooferPhaseEi", "setSubwooferPhase", (void *self, int phase),
         (self, phase), phase)
RECORDED(recordedFront, "_ZN3mcu10McuService21setCrossoverFrontFreqEiii", "setCrossoverFrontFreq",
         (void *self, int freq, int slope, int level), (self, freq, slope, level), freq, slope, level)
RECORDED(recordedRear, "_ZN3mcu10McuService20setCrossoverRearFreqEiii", "setCrossoverRearFreq",
         (void *self, int freq, int slope, int level), (self, freq, slope, level), freq, slope, level)
RECORDED(recordedLowPass, "_ZN3mcu10McuService11setLPFValueEiii", "setLPFValue",
         (void *self, int freq, int slope, int level), (self, freq, slope, level), freq, slope, level)
RECORDED(recordedDelays, "_ZN3mcu10McuService18setAudioTimerDelayEiPi", "setAudioTimerDelay",
         (void *self, int enable, int *delays), (self, enable, delays), enable, delays[0], delays[1], delays[2],
         delays[3], delays[4], delays[5])
RECORDED(recordedVolume, "_ZN3mcu10McuService19setAudioVolumeValueEii", "setAudioVolumeValue",
         (void *self, int type, int level), (self, type, level), type, level)
RECORDED(recordedGain, "_ZN3mcu10McuService22setAudioInputGainValueEii", "setAudioInputGainValue",
         (void *self, int source, int value), (self, source, value), source, value)
RECORDED(recordedSetValue, "_ZN18AudioSettingsUtils8setValueERK7QStringRK8QVariantS5_b", "setValue",
         (void *self, const QString &key, const QVariant &defaultValue, const QVariant &value, bool save),
         (self, key, defaultValue, value, save), key, defaultValue, value, save)
RECORDED(recordedClear, "_ZN18AudioSettingsUtils5clearERK7QString", "clear", (void *self, const QString &path),
         (self, path), path)
RECORDED_BARE(recordedFlatCrossover, "_ZN18AudioSettingsUtils13flatCrossoverEv", "flatCrossover")
RECORDED_BARE(recordedFlatDelays, "_ZN18AudioSettingsUtils13flatTimeDelayEv", "flatTimeDelay")
RECORDED_BARE(recordedDefeat, "_ZN18AudioSettingsUtils17updateDefeatSetupEv", "updateDefeatSetup")
RECORDED(recordedShared, "_ZN3mem12SettingsFunc8setValueERK7QStringRK8QVariantS6_b", "SettingsFunc::setValue",
         (void *self, const QString &key, const QVariant &defaultValue, const QVariant &value, bool save),
         (self, key, defaultValue, value, save), key, defaultValue, value, save)
RECORDED(recordedCache, "_ZN3mem13SettingsCache16SettingsCacheSigERK7QString", "SettingsCacheSig",
         (void *self, const QString &key), (self, key), key)
RECORDED(recordedStatusBar, "_ZN2cm16StatusBarControl7sethideEb", "sethide", (void *self, bool hide), (self, hide),
         hide)
// clang-format on

#endif
