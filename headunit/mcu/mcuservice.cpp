// SPDX-License-Identifier: Apache-2.0
#include "platform/mcuservice.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/audio/service/soundtext.h"
#include "headunit/settings/linelimit.h"
#include "headunit/settings/trace.h"

#include <QDebug>

#include <algorithm>

namespace mcu {

using headunit::FilterChannel;
using headunit::SoundModel;
using headunit::SoundState;
using headunit::traceCall;

struct McuService::Private {
    SoundModel &sound = SoundModel::instance();

    void setFilter(const char *operation, FilterChannel channel, int freq, int slope, int level) {
        HEADUNIT_TRACE(traceCall(operation, {freq, slope, level}), headunit::filterText(channel, freq, slope, level));
        sound.setFilter(channel, {freq, slope, level});
    }
};

McuService::McuService() : d(new Private) {}

McuService::~McuService() {
    delete d;
}

McuService *McuService::instance() {
    static McuService service;
    return &service;
}

void McuService::setLoudness(int on) {
    HEADUNIT_TRACE(traceCall("setLoudness", {on}),
                   on == 0 ? QStringLiteral("loudness off") : QStringLiteral("loudness on"));
    d->sound.setLoudness(on);
}

void McuService::setSubwooferValue(int level) {
    HEADUNIT_TRACE(traceCall("setSubwooferValue", {level}), headunit::subwooferLevelText(level));
    d->sound.setSubwooferLevel(level);
}

void McuService::setSubwooferPhase(int phase) {
    HEADUNIT_TRACE(traceCall("setSubwooferPhase", {phase}), headunit::subwooferPhaseText(phase));
    d->sound.setSubwooferPhase(phase);
}

void McuService::setCrossoverFrontFreq(int freq, int slope, int level) {
    d->setFilter("setCrossoverFrontFreq", FilterChannel::Front, freq, slope, level);
}

void McuService::setCrossoverRearFreq(int freq, int slope, int level) {
    d->setFilter("setCrossoverRearFreq", FilterChannel::Rear, freq, slope, level);
}

void McuService::setLPFValue(int freq, int slope, int level) {
    d->setFilter("setLPFValue", FilterChannel::Subwoofer, freq, slope, level);
}

void McuService::setAudioTimerDelay(int enable, int *delays) {
    constexpr int enabled = 1;  // the only value that the unit knows
    if (enable != enabled || delays == nullptr) {
        HEADUNIT_TRACE(traceCall("setAudioTimerDelay", {enable}), QStringLiteral("no delays, ignored"));
        if (headunit::lineMayPass("delays")) {
            qDebug("sound: delays with enable %d%s, ignored", enable, delays == nullptr ? " and no array" : "");
        }
        return;
    }
    HEADUNIT_TRACE(headunit::delaysCall(enable, delays), headunit::delaysText(delays));
    std::array<int, SoundState::outputs> copy;
    std::copy_n(delays, copy.size(), copy.begin());
    d->sound.setDelays(copy);
}

void McuService::setAudioVolumeValue(int type, int level) {
    HEADUNIT_TRACE(traceCall("setAudioVolumeValue", {type, level}), headunit::channelText(type, level));
    d->sound.setChannelLevel(type, level);
}

void McuService::setAudioInputGainValue(int source, int value) {
    HEADUNIT_TRACE(traceCall("setAudioInputGainValue", {source, value}), headunit::sourceGainText(source, value));
    d->sound.setSourceGain(source, value);
}

}  // namespace mcu
