// SPDX-License-Identifier: Apache-2.0
#include "platform/audioservice.h"

#include "headunit/settings/trace.h"
#include "soundmodel.h"
#include "soundtext.h"

namespace qvaudio {

using headunit::SoundModel;
using headunit::traceCall;

struct AudioService::Private {
    SoundModel &sound = SoundModel::instance();
};

AudioService::AudioService() : d(new Private) {
    connect(&d->sound, &SoundModel::channelLevelChanged, this, [this](int channel, int level) {
        const int mute = d->sound.state().muted ? 1 : 0;
        HEADUNIT_TRACE_KIND(Announcement, traceCall("audioVolumeChanged", {mute, level, channel}),
                            QStringLiteral("announced: ") + headunit::channelText(channel, level));
        Q_EMIT audioVolumeChanged(mute, level, channel);
    });
}

AudioService::~AudioService() {
    delete d;
}

AudioService *AudioService::instance() {
    static AudioService service;
    return &service;
}

void AudioService::doBeep(int sound) {
    HEADUNIT_TRACE(traceCall("doBeep", {sound}),
                   sound == 0 ? QStringLiteral("key click") : QStringLiteral("beep %1").arg(sound));
    d->sound.beep(sound);
}

void AudioService::getBalanceFader(int &balance, int &fader) {
    balance = d->sound.state().balance;
    fader = d->sound.state().fader;
    HEADUNIT_TRACE_READ(traceCall("getBalanceFader", {balance, fader}), headunit::balanceFaderText(balance, fader));
}

void AudioService::setBalanceFader(int balance, int fader, bool apply) {
    HEADUNIT_TRACE(traceCall("setBalanceFader", {balance, fader, apply}), headunit::balanceFaderText(balance, fader));
    d->sound.setBalanceFader(balance, fader);
}

AudioEQType AudioService::getCurrEQType() {
    const int type = d->sound.state().eqType;
    HEADUNIT_TRACE_READ(traceCall("getCurrEQType"), QStringLiteral("equaliser is ") + headunit::eqTypeText(type));
    return static_cast<AudioEQType>(type);
}

void AudioService::setEQType(AudioEQType type, bool apply) {
    HEADUNIT_TRACE(traceCall("setEQType", {static_cast<int>(type), apply}),
                   QStringLiteral("equaliser ") + headunit::eqTypeText(type));
    d->sound.setEqType(type);
}

int AudioService::getCustomEq(int band) {
    const int value = d->sound.customEq(band);
    HEADUNIT_TRACE_READ(traceCall("getCustomEq", {band}), headunit::bandText(band, value));
    return value;
}

void AudioService::setCustomEq(int value, int band, bool apply) {
    HEADUNIT_TRACE(traceCall("setCustomEq", {value, band, apply}), headunit::bandText(band, value));
    d->sound.setCustomEq(band, value);
}

void AudioService::setVolumeLevel(int level, int type) {
    HEADUNIT_TRACE(traceCall("setVolumeLevel", {level, type}), headunit::channelText(type, level));
    d->sound.setChannelLevel(type, level);
}

int AudioService::getSourceVolByType(int type) {
    const int level = d->sound.channelLevel(type);
    HEADUNIT_TRACE_READ(traceCall("getSourceVolByType", {type}), headunit::channelText(type, level));
    return level;
}

}  // namespace qvaudio
