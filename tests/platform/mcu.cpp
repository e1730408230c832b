// SPDX-License-Identifier: Apache-2.0
#include "platform/mcuservice.h"
#include "tests/platform/recorder_p.h"

using recording::call;
using recording::state;

namespace mcu {

struct McuService::Private {};

McuService::McuService() : d(nullptr) {}
McuService::~McuService() {}

McuService *McuService::instance() {
    static McuService service;
    return &service;
}

void McuService::setLoudness(int on) {
    call("setLoudness", on);
    state().loudness = on;
}

void McuService::setSubwooferValue(int level) {
    call("setSubwooferValue", level);
    state().subwooferLevel = level;
}

void McuService::setSubwooferPhase(int phase) {
    call("setSubwooferPhase", phase);
    state().subwooferPhase = phase;
}

void McuService::setCrossoverFrontFreq(int freq, int slope, int level) {
    call("setCrossoverFrontFreq", freq, slope, level);
    state().frontFilter = {{freq, slope, level}};
}

void McuService::setCrossoverRearFreq(int freq, int slope, int level) {
    call("setCrossoverRearFreq", freq, slope, level);
    state().rearFilter = {{freq, slope, level}};
}

void McuService::setLPFValue(int freq, int slope, int level) {
    call("setLPFValue", freq, slope, level);
    state().lowPass = {{freq, slope, level}};
}

void McuService::setAudioTimerDelay(int enable, int *delays) {
    QStringList values;
    for (int &kept : state().delays) {
        kept = *delays++;
        values << QString::number(kept);
    }
    recording::note(QStringLiteral("setAudioTimerDelay(%1, {%2})").arg(enable).arg(values.join(QLatin1String(", "))));
}

void McuService::setAudioVolumeValue(int type, int level) {
    call("setAudioVolumeValue", type, level);
    recording::setVolume(type, level);
}

void McuService::setAudioInputGainValue(int source, int value) {
    call("setAudioInputGainValue", source, value);
    state().inputGain[source] = value;
}

}  // namespace mcu
