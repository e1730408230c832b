// SPDX-License-Identifier: Apache-2.0
#include "pagecalls.h"

#include "platform/audioservice.h"
#include "platform/audiosettingsutils.h"
#include "platform/mcuservice.h"
#include "platform/settingscache.h"

#include <iterator>

namespace {

AudioSettingsUtils &store() {
    return *AudioSettingsUtils::instance();
}
qvaudio::AudioService &audio() {
    return *qvaudio::AudioService::instance();
}
mcu::McuService &processor() {
    return *mcu::McuService::instance();
}
QString numbered(const char *key, int number) {
    return QString(key).arg(number);
}

}  // namespace

void PageCalls::any() {
    using Action = void (PageCalls::*)();
    static const Action actions[] = {
        &PageCalls::defeat,       &PageCalls::subwooferSwitch, &PageCalls::subwooferLevel, &PageCalls::phase,
        &PageCalls::balanceFader, &PageCalls::loudness,        &PageCalls::curve,          &PageCalls::band,
        &PageCalls::crossover,    &PageCalls::delays,          &PageCalls::volume,         &PageCalls::sourceGain};
    (this->*actions[below(static_cast<int>(std::size(actions)))])();
}

void PageCalls::defeat() {
    const bool on = below(2) == 1;
    store().setValue("ADV_AUDIO_SETTINGS", 0, on, true);
    if (on) {
        store().setValue("EQ_DEFEAT_TYPE", 2, static_cast<int>(audio().getCurrEQType()), true);
    } else {
        audio().setEQType(static_cast<AudioEQType>(store().getValue("EQ_DEFEAT_TYPE", 2)), true);
    }
    store().updateDefeatSetup();
}

void PageCalls::subwooferSwitch() {
    const bool on = below(2) == 1;
    store().setValue("Setup_Sub", 0, on, true);
    processor().setSubwooferValue(on ? store().getValue("subwooferLevel", 3) : 0);
}

void PageCalls::subwooferLevel() {
    if (store().getValue("Setup_Sub", 0) != 1) {
        return;  // the keys are disabled
    }
    const int level = from(0, 15);
    store().setValue("subwooferLevel", 3, level, true);
    processor().setSubwooferValue(level);
}

void PageCalls::phase() {
    const int id = below(2);
    store().setValue("subwooferphase", 0, id, true);
    processor().setSubwooferPhase(id);
}

void PageCalls::balanceFader() {
    const int balance = from(-15, 15);
    const int fader = from(-15, 15);
    store().setValue("SoundFieldFader", 0, fader, true);
    store().setValue("SoundFieldBalance", 0, balance, true);
    audio().setBalanceFader(balance, fader, true);
}

void PageCalls::loudness() {
    const bool on = below(2) == 1;
    store().setValue("Setup_Loudness", 0, on, true);
    processor().setLoudness(on);
}

void PageCalls::curve() {
    audio().setEQType(static_cast<AudioEQType>(from(0, 20)), true);
}

void PageCalls::band() {
    audio().setEQType(AudioEQCustom, true);
    audio().setCustomEq(from(-12, 24), below(13), true);
}

void PageCalls::crossover() {
    struct Channel {
        const char *freqKey, *slopeKey, *levelKey;
        int frequencies;
        void (mcu::McuService::*send)(int, int, int);
    };
    static const Channel channels[] = {
        {"crossover/frontfreq", "crossover/frontslope", "crossover/frontlevel", 12,
         &mcu::McuService::setCrossoverFrontFreq},
        {"crossover/rearfreq", "crossover/rearslope", "crossover/rearlevel", 6, &mcu::McuService::setCrossoverRearFreq},
        {"crossover/subwooferfreq", "crossover/subwooferslope", "crossover/subwooferlevel", 6,
         &mcu::McuService::setLPFValue}};
    if (below(8) == 0) {
        store().flatCrossover();
        return;
    }
    const Channel &channel = channels[below(3)];
    const int freq = below(channel.frequencies);
    const int slope = from(1, 3);
    const int level = from(0, 12);
    store().setValue(channel.levelKey, 12, level, true);
    store().setValue(channel.slopeKey, 1, slope, true);
    store().setValue(channel.freqKey, 0, freq, true);
    (processor().*channel.send)(freq, slope, level);
}

void PageCalls::delays() {
    if (below(8) == 0) {
        store().flatTimeDelay();
        return;
    }
    int values[6];
    const int stepped = below(6);
    for (int output = 0; output < 6; ++output) {
        values[output] = output == stepped ? from(0, 99) : store().getValue(numbered("timing/DATA_TYPE%1", output), 0);
    }
    processor().setAudioTimerDelay(1, values);
    store().setValue(numbered("timing/DATA_TYPE%1", stepped), 0, values[stepped], true);
}

void PageCalls::volume() {
    const int type = below(8);
    const int level = from(0, 40);
    if (below(2) == 0) {
        audio().setVolumeLevel(level, type);
    } else {
        processor().setAudioVolumeValue(type, level);
    }
}

void PageCalls::sourceGain() {
    const int source = below(7);
    const int gain = from(-10, 10);
    store().setValue(numbered("audioinputgain%1", source), 0, gain, true);
    processor().setAudioInputGainValue(source, gain + 10);
}

void PageCalls::reset() {
    audio().doBeep(0);
    store().clear("/media/flash/nvm/factory/audiosettings.ini");
    audio().setBalanceFader(0, 0, true);
    processor().setSubwooferValue(store().getValue("subwooferLevel", 3));
    processor().setLoudness(store().getValue("Setup_Loudness", false));
    audio().setEQType(AudioEQCustom, true);
    for (int band = 0; band < 13; ++band) {
        // The band stands where the value belongs: required.
        audio().setCustomEq(band, store().getValue(numbered("customeq1_%1", band), 12), true);
    }
    processor().setLPFValue(store().getValue("crossover/subwooferfreq", 0),
                            store().getValue("crossover/subwooferslope", 1),
                            store().getValue("crossover/subwooferlevel", 12));
    const int rearFreq = store().getValue("crossover/rearfreq", 0);
    const int rearLevel = store().getValue("crossover/rearlevel", 12);
    processor().setCrossoverRearFreq(rearFreq, store().getValue("crossover/rearslope", 1), rearLevel);
    // Slope and level of the front come from the rear's keys: required.
    processor().setCrossoverFrontFreq(store().getValue("crossover/frontfreq", 0), rearFreq, rearLevel);
    int values[6];
    for (int output = 0; output < 6; ++output) {
        values[output] = store().getValue(numbered("timing/msec%1", output), 0);
    }
    processor().setAudioTimerDelay(1, values);
    for (int source = 0; source < 6; ++source) {
        // Without the offset of 10: required.
        processor().setAudioInputGainValue(source, store().getValue(numbered("audioinputgain%1", source), 0));
    }
    for (int type = 0; type < 8; ++type) {
        audio().setVolumeLevel(15, type);
    }
    audio().setEQType(AudioEQPop, true);
    Q_EMIT mem::SettingsCache::instance()->SettingsCacheSig("ADV_AUDIO_SETTINGS");
}
