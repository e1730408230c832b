// SPDX-License-Identifier: Apache-2.0
// The audio service and the microcontroller. This unit has no loudspeakers: what would go to the sound processor is a
// debug line. State that outlives a restart stands in the store, under the keys that the pages read.

#include "audioservice.h"
#include "audiosettingsutils.h"
#include "mcuservice.h"
#include "unit.h"

#include <QDebug>

using carunit::send;

namespace {

int stored(const QByteArray &key, int defaultValue) {
    return AudioSettingsUtils::instance()->getValue(QLatin1String(key), defaultValue);
}

const int bands = 13;
const int channels = 8;
const int flat = 12;  // the value of a band at 0 dB
const char eqTypeKey[] = "carunit/eqtype";

bool exists(int number, int count, const char *what) {
    if (number < 0 || number >= count) {
        qDebug("%s %d does not exist, ignored", what, number);
        return false;
    }
    return true;
}

int clamped(int value, int low, int high, const char *what) {
    if (value < low || value > high) { qDebug("%s %d is not within %d to %d", what, value, low, high); }
    return qBound(low, value, high);
}

void keep(const QString &key, int value) { AudioSettingsUtils::instance()->setValue(key, 0, value, true); }

void sendFilter(const char *filter, int frequencies, int freq, int slope, int level) {
    if (exists(freq, frequencies, filter)) {
        send(filter, {freq, clamped(slope, 1, 3, "slope"), clamped(level, 0, 12, "filter level")});
    }
}

}  // namespace

namespace carunit {

void send(const char *what, const QVector<int> &values) { qDebug() << "sound processor:" << what << values; }

void sendCrossover() {
    const char *const filters[] = {"front", "rear", "subwoofer"};
    for (const char *filter : filters) {
        const QByteArray key = QByteArray("crossover/") + filter;
        sendFilter(filter, filter == filters[0] ? 12 : 6, stored(key + "freq", 0), stored(key + "slope", 1),
                   stored(key + "level", 12));
    }
}

void sendDelays() {
    QVector<int> delays;
    for (int output = 0; output < 6; ++output) { delays << stored("timing/DATA_TYPE" + QByteArray::number(output), 0); }
    send("delays", delays);
}

void sendDefeat() { send("defeat", {stored("ADV_AUDIO_SETTINGS", 0)}); }

void powerUp() {
    // The EQ page reads the curve from the store, and its default there is -12 dB: a new unit writes the flat curve.
    for (int band = 0; band < bands; ++band) {
        keep(QStringLiteral("eq%1").arg(band), stored("eq" + QByteArray::number(band), flat));
    }
    sendCrossover();
    sendDelays();
    sendDefeat();
    send("loudness", {stored("Setup_Loudness", 0)});
    send("subwoofer", {stored("Setup_Sub", 0) ? stored("subwooferLevel", 3) : 0, stored("subwooferphase", 0)});
    for (int source = 0; source < 7; ++source) {
        send("input gain", {source, stored("audioinputgain" + QByteArray::number(source), 0) + 10});
    }
}

}  // namespace carunit

namespace qvaudio {

struct AudioService::Private {
    int balance = stored("SoundFieldBalance", 0);
    int fader = stored("SoundFieldFader", 0);
};

SINGLETON(AudioService)

void AudioService::doBeep(int sound) { send("beep", {sound}); }

void AudioService::getBalanceFader(int &balance, int &fader) {
    balance = d->balance;
    fader = d->fader;
}

void AudioService::setBalanceFader(int balance, int fader, bool) {
    d->balance = clamped(balance, -15, 15, "balance");
    d->fader = clamped(fader, -15, 15, "fader");
    send("balance, fader", {d->balance, d->fader});
}

AudioEQType AudioService::getCurrEQType() { return static_cast<AudioEQType>(stored(eqTypeKey, AudioEQFlat)); }

void AudioService::setEQType(AudioEQType type, bool) {
    keep(QLatin1String(eqTypeKey), type);
    send("curve", {type});
}

int AudioService::getCustomEq(int band) {
    return exists(band, bands, "band") ? stored("eq" + QByteArray::number(band), flat) : 0;
}

void AudioService::setCustomEq(int value, int band, bool) {
    if (exists(band, bands, "band")) {
        const int kept = clamped(value, -12, 24, "band value");
        keep(QStringLiteral("eq%1").arg(band), kept);  // the EQ page reads the curve from the store
        send("band", {band, qMax(0, kept) - flat});
    }
}

void AudioService::setVolumeLevel(int level, int type) {
    if (exists(type, channels, "channel")) {
        const int before = getSourceVolByType(type);
        const int kept = clamped(level, 0, 40, "level");
        keep(QStringLiteral("inputgain%1").arg(type), kept);
        send("level", {type, kept});
        if (kept != before) { emit audioVolumeChanged(0, kept, type); }
    }
}

int AudioService::getSourceVolByType(int type) {
    return exists(type, channels, "channel") ? stored("inputgain" + QByteArray::number(type), 16) : 0;
}

}  // namespace qvaudio

namespace mcu {

struct McuService::Private {};

SINGLETON(McuService)

void McuService::setLoudness(int on) { send("loudness", {clamped(on, 0, 1, "loudness")}); }

void McuService::setSubwooferValue(int level) { send("subwoofer level", {clamped(level, 0, 15, "subwoofer level")}); }

void McuService::setSubwooferPhase(int phase) {
    if (exists(phase, 2, "phase")) { send("subwoofer phase", {phase}); }
}

void McuService::setCrossoverFrontFreq(int freq, int slope, int level) { sendFilter("front", 12, freq, slope, level); }

void McuService::setCrossoverRearFreq(int freq, int slope, int level) { sendFilter("rear", 6, freq, slope, level); }

void McuService::setLPFValue(int freq, int slope, int level) { sendFilter("subwoofer", 6, freq, slope, level); }

void McuService::setAudioTimerDelay(int, int *delays) {
    QVector<int> values;
    for (int output = 0; delays && output < 6; ++output) { values << clamped(delays[output], 0, 99, "delay"); }
    send("delays", values);
}

void McuService::setAudioVolumeValue(int type, int level) {
    qvaudio::AudioService::instance()->setVolumeLevel(level, type);
}

void McuService::setAudioInputGainValue(int source, int value) {
    if (exists(source, 7, "source")) { send("input gain", {source, clamped(value, 0, 20, "input gain")}); }
}

}  // namespace mcu
