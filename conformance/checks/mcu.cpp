// SPDX-License-Identifier: Apache-2.0
// The microcontroller. Its effect on the sound is not visible here; that it touches nothing else is.

#include "audioservice.h"
#include "audiosettingsutils.h"
#include "check.h"
#include "keys.h"
#include "mcuservice.h"
#include "signallog.h"

using namespace conformance;

namespace {

const char volumePage[] = "Volume Settings, and the hard keys";

mcu::McuService *mcuService() {
    return mcu::McuService::instance();
}

const int extremes[] = {0, 1, -1, 2, 15, 16, 20, 21, 99, 100, 1000000, 2147483647, -2147483647 - 1};

}  // namespace

CHECK(mcuOneObject, "mcu.one-object", "instance() is the same object at every call.", "every page") {
    expectTrue("the second call gives the object of the first", mcuService() == mcu::McuService::instance());
}

CHECK(mcuVolume, "mcu.volume-shared", "setAudioVolumeValue() sets the level that the audio service has of the channel.",
      volumePage) {
    for (int type = 0; type < channelCount; ++type) {
        mcuService()->setAudioVolumeValue(type, 20 + type);
        expect(QStringLiteral("channel %1").arg(type), 20 + type,
               qvaudio::AudioService::instance()->getSourceVolByType(type));
    }
}

CHECK(mcuVolumeSignal, "mcu.volume-announced", "A level that the microcontroller is told is announced once.",
      volumePage) {
    mcuService()->setAudioVolumeValue(4, 9);
    SignalLog log;
    mcuService()->setAudioVolumeValue(4, 31);
    pass(0);
    expect("signals", QStringList(QStringLiteral("audioVolumeChanged(0, 31, 4)")), log.lines);
}

CHECK(mcuFilters, "mcu.filters-return", "The filter operations return, whatever they are given.",
      "no page; the process would end or hang") {
    for (int value : extremes) {
        mcuService()->setCrossoverFrontFreq(value, value, value);
        mcuService()->setCrossoverRearFreq(value, value, value);
        mcuService()->setLPFValue(value, value, value);
    }
}

CHECK(mcuSwitches, "mcu.switches-return", "Loudness, subwoofer and input gains return, whatever they are given.",
      "no page; the process would end or hang") {
    for (int value : extremes) {
        mcuService()->setLoudness(value);
        mcuService()->setSubwooferValue(value);
        mcuService()->setSubwooferPhase(value);
        mcuService()->setAudioInputGainValue(value, 10);
        mcuService()->setAudioInputGainValue(0, value);
    }
}

CHECK(mcuDelays, "mcu.delays-only-read", "setAudioTimerDelay() reads six delays, and writes none.", "Timing") {
    // A guard on either side of the array.
    int delays[8] = {4711, 0, 99, 50, 1, 2, 3, 4712};
    const QVector<int> before = {4711, 0, 99, 50, 1, 2, 3, 4712};
    mcuService()->setAudioTimerDelay(1, delays + 1);
    QVector<int> after;
    for (int delay : delays) {
        after << delay;
    }
    expect("the array", before, after);
    int wild[8] = {0, -1, 100, 2147483647, -2147483647 - 1, 1000000, 0, 0};
    mcuService()->setAudioTimerDelay(1, wild + 1);
}

CHECK(mcuNotStored, "mcu.stores-nothing", "The microcontroller writes no key of the pages: they write their own.",
      "General: switching the subwoofer off would lose its level") {
    AudioSettingsUtils *const store = AudioSettingsUtils::instance();
    const char *const keys[] = {"subwooferLevel",  "subwooferphase",      "Setup_Loudness",
                                "audioinputgain1", "crossover/frontfreq", "timing/DATA_TYPE0"};
    for (const char *key : keys) {
        store->setValue(QLatin1String(key), 0, 1, true);
    }
    int delays[6] = {9, 9, 9, 9, 9, 9};
    mcuService()->setSubwooferValue(0);
    mcuService()->setSubwooferPhase(0);
    mcuService()->setLoudness(0);
    mcuService()->setAudioInputGainValue(1, 15);
    mcuService()->setCrossoverFrontFreq(5, 2, 3);
    mcuService()->setAudioTimerDelay(1, delays);
    for (const char *key : keys) {
        expect(QLatin1String(key), 1, store->getValue(QLatin1String(key), 0));
    }
}
