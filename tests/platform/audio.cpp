// SPDX-License-Identifier: Apache-2.0
#include "platform/audioservice.h"
#include "tests/platform/recorder_p.h"

using recording::call;
using recording::state;

namespace recording {

void setVolume(int type, int level) {
    int &kept = state().volume[type];
    if (kept != level) {
        kept = level;
        announceVolume(0, level, type);
    }
}

}  // namespace recording

namespace qvaudio {

namespace {

bool isBand(int band) {
    return band >= 0 && band < static_cast<int>(state().customEq.size());
}

}  // namespace

struct AudioService::Private {};

AudioService::AudioService() : d(nullptr) {
    connect(this, &AudioService::audioVolumeChanged,
            [](int mute, int vol, int type) { call("audioVolumeChanged", mute, vol, type); });
}

AudioService::~AudioService() {}

AudioService *AudioService::instance() {
    static AudioService service;
    return &service;
}

void AudioService::doBeep(int sound) {
    call("doBeep", sound);
}

void AudioService::getBalanceFader(int &balance, int &fader) {
    call(recording::Reads, "getBalanceFader");
    balance = state().balance;
    fader = state().fader;
}

void AudioService::setBalanceFader(int balance, int fader, bool apply) {
    call("setBalanceFader", balance, fader, apply);
    state().balance = balance;
    state().fader = fader;
}

AudioEQType AudioService::getCurrEQType() {
    call(recording::Reads, "getCurrEQType");
    return static_cast<AudioEQType>(state().eqType);
}

void AudioService::setEQType(AudioEQType type, bool apply) {
    call("setEQType", int(type), apply);
    state().eqType = type;
}

int AudioService::getCustomEq(int band) {
    call(recording::Reads, "getCustomEq", band);
    return isBand(band) ? state().customEq[band] : 0;
}

void AudioService::setCustomEq(int value, int band, bool apply) {
    call("setCustomEq", value, band, apply);
    if (isBand(band)) {
        state().customEq[band] = value;
        // The service keeps the live curve in the store by itself.
        recording::setStored(QStringLiteral("eq%1").arg(band), value);
    }
}

void AudioService::setVolumeLevel(int level, int type) {
    call("setVolumeLevel", level, type);
    recording::setVolume(type, level);
}

int AudioService::getSourceVolByType(int type) {
    call(recording::Reads, "getSourceVolByType", type);
    return state().volume.value(type);
}

}  // namespace qvaudio
