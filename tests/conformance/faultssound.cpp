// SPDX-License-Identifier: Apache-2.0
// Faults of the audio service and the microcontroller.

#include "platform/audioservice.h"
#include "platform/audiosettingsutils.h"
#include "platform/mcuservice.h"
#include "tests/conformance/faults.h"

#include <cstdlib>
#include <stdexcept>

using qvaudio::AudioService;

namespace {

int s_curve = 0;
int s_bands[13] = {12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12, 12};
int s_levels[8] = {16, 16, 16, 16, 16, 16, 16, 16};
int s_balance = 0;
int s_fader = 0;
bool s_levelsMuted = false;

bool bandsAreOurs() {
    return faulty("band-not-in-store") || faulty("band-range-open");
}

bool levelsAreOurs() {
    return faulty("levels-not-kept") || faulty("level-range-open");
}

}  // namespace

WRAP(void, audioBeep, "_ZN7qvaudio12AudioService6doBeepEi", AudioService *self, int sound) {
    REAL(audioBeep);
    if (faulty("beep-throws")) {
        throw std::runtime_error("no such sound");
    }
    if (faulty("beep-crashes")) {
        std::abort();
    }
    if (faulty("beep-exits")) {
        std::exit(3);
    }
    real(self, sound);
}

WRAP(AudioEQType, audioCurve, "_ZN7qvaudio12AudioService13getCurrEQTypeEv", AudioService *self) {
    REAL(audioCurve);
    return faulty("curve-not-kept") ? AudioEQType(s_curve) : faulty("curve-is-flat") ? AudioEQFlat : real(self);
}

WRAP(void, audioSetCurve, "_ZN7qvaudio12AudioService9setEQTypeE11AudioEQTypeb", AudioService *self, AudioEQType type,
     bool apply) {
    REAL(audioSetCurve);
    s_curve = type;
    if (faulty("unnamed-curve-is-flat") && (type == 4 || type == 6 || type == 15)) {
        type = AudioEQFlat;
    }
    real(self, type, apply);
    if (faulty("curve-takes-bands")) {
        self->setCustomEq(12, 2, true);
    }
}

WRAP(int, audioBand, "_ZN7qvaudio12AudioService11getCustomEqEi", AudioService *self, int band) {
    REAL(audioBand);
    return bandsAreOurs() && band >= 0 && band < 13 ? s_bands[band] : real(self, band);
}

WRAP(void, audioSetBand, "_ZN7qvaudio12AudioService11setCustomEqEiib", AudioService *self, int value, int band,
     bool apply) {
    REAL(audioSetBand);
    if (bandsAreOurs() && band >= 0 && band < 13) {
        s_bands[band] = value;
        return;
    }
    if (faulty("no-such-band-crashes") && band > 12) {
        std::abort();
    }
    if (faulty("band-and-value-swapped")) {
        std::swap(value, band);
    }
    if (faulty("band-not-below-0")) {
        value = qMax(0, value);
    }
    real(self, value, band, apply);
    if (faulty("neighbour-follows") && band < 12) {
        real(self, value, band + 1, apply);
    }
    if (faulty("band-selects-curve")) {
        self->setEQType(AudioEQCustom, true);
    }
}

WRAP(void, audioBalance, "_ZN7qvaudio12AudioService15getBalanceFaderERiS1_", AudioService *self, int &balance,
     int &fader) {
    REAL(audioBalance);
    real(self, balance, fader);
    if (faulty("balance-swapped")) {
        std::swap(balance, fader);
    }
    if (faulty("fader-turned")) {
        fader = -fader;
    }
    if (faulty("balance-range-open")) {
        balance = s_balance;
        fader = s_fader;
    }
}

WRAP(void, audioSetBalance, "_ZN7qvaudio12AudioService15setBalanceFaderEiib", AudioService *self, int balance,
     int fader, bool apply) {
    REAL(audioSetBalance);
    s_balance = balance;
    s_fader = fader;
    real(self, balance, fader, apply);
}

WRAP(int, audioLevel, "_ZN7qvaudio12AudioService18getSourceVolByTypeEi", AudioService *self, int type) {
    REAL(audioLevel);
    return levelsAreOurs() && type >= 0 && type < 8 ? s_levels[type] : real(self, type);
}

WRAP(void, audioSetLevel, "_ZN7qvaudio12AudioService14setVolumeLevelEii", AudioService *self, int level, int type) {
    REAL(audioSetLevel);
    if (type >= 0 && type < 8) {
        s_levels[type] = level;
    }
    if (faulty("level-and-channel-swapped")) {
        std::swap(level, type);
    }
    if (faulty("level-announced-first")) {
        emit self->audioVolumeChanged(0, level, type);
        s_levelsMuted = true;
    }
    const int before = self->getSourceVolByType(type);
    real(self, level, type);
    s_levelsMuted = false;
    if ((faulty("same-level-announced") && before == level) || (faulty("no-such-channel-announced") && type > 7)) {
        emit self->audioVolumeChanged(0, level, type);
    }
}

WRAP(void, audioLevelSignal, "_ZN7qvaudio12AudioService18audioVolumeChangedEiii", AudioService *self, int mute,
     int level, int type) {
    REAL(audioLevelSignal);
    if (faulty("level-not-announced") || s_levelsMuted) {
        return;
    }
    real(self, mute, faulty("announcement-swapped") ? type : level, faulty("announcement-swapped") ? level : type);
    if (faulty("level-announced-twice")) {
        real(self, mute, level, type);
    }
}

WRAP(void, mcuLevel, "_ZN3mcu10McuService19setAudioVolumeValueEii", mcu::McuService *self, int type, int level) {
    REAL(mcuLevel);
    if (faulty("mcu-has-levels-of-its-own")) {
        return;
    }
    real(self, faulty("mcu-level-swapped") ? level : type, faulty("mcu-level-swapped") ? type : level);
    if (faulty("mcu-announces-again")) {
        emit AudioService::instance()->audioVolumeChanged(0, level, type);
    }
}

WRAP(void, mcuLowPass, "_ZN3mcu10McuService11setLPFValueEiii", mcu::McuService *self, int freq, int slope, int level) {
    REAL(mcuLowPass);
    volatile bool spinning = faulty("filter-hangs") && freq > 5;
    while (spinning) {
    }
    real(self, freq, slope, level);
}

WRAP(void, mcuDelays, "_ZN3mcu10McuService18setAudioTimerDelayEiPi", mcu::McuService *self, int enable, int *delays) {
    REAL(mcuDelays);
    real(self, enable, delays);
    if (faulty("delays-are-written")) {
        delays[6] = 0;
    }
}

WRAP(void, mcuSubwoofer, "_ZN3mcu10McuService17setSubwooferValueEi", mcu::McuService *self, int level) {
    REAL(mcuSubwoofer);
    real(self, level);
    if (faulty("subwoofer-is-stored")) {
        AudioSettingsUtils::instance()->setValue(QStringLiteral("subwooferLevel"), 3, level, true);
    }
}

WRAP(void, mcuLoudness, "_ZN3mcu10McuService11setLoudnessEi", mcu::McuService *self, int on) {
    REAL(mcuLoudness);
    if (faulty("loudness-crashes") && on > 1) {
        std::abort();
    }
    real(self, on);
}
