// SPDX-License-Identifier: Apache-2.0
// The audio service.

#include "audioservice.h"
#include "audiosettingsutils.h"
#include "check.h"
#include "keys.h"
#include "signallog.h"

using namespace conformance;

namespace {

const char eqPages[] = "EQ, Factory EQ, the band-adjust panel";
const char eqPage[] = "EQ: after a page change every band shows -12 dB";
const char generalPage[] = "General: balance and fader";
const char volumePage[] = "Volume Settings";

qvaudio::AudioService *audio() {
    return qvaudio::AudioService::instance();
}

int stored(int band) {
    return AudioSettingsUtils::instance()->getValue(QStringLiteral("eq%1").arg(band), -99);
}

}  // namespace

CHECK(audioOneObject, "audio.one-object", "instance() is the same object at every call.", eqPages) {
    expectTrue("the second call gives the object of the first", audio() == qvaudio::AudioService::instance());
}

CHECK(audioBeep, "audio.beep", "doBeep() returns, whatever the sound's number.", "every key") {
    for (int sound : {0, 1, -1, 99}) {
        audio()->doBeep(sound);
    }
}

CHECK(audioCurve, "audio.curve", "getCurrEQType() is what setEQType() set: every integer, named or not.", eqPages) {
    for (int type : {0, 2, 3, 5, 7, 8, 16, 20, 1, 4, 6, 15, 21}) {
        audio()->setEQType(static_cast<AudioEQType>(type), true);
        expect("the curve", type, int(audio()->getCurrEQType()));
    }
}

RESTART_CHECK(audioCurveRestart, "audio.curve-survives-restart", "The curve in force outlives a restart.", eqPages) {
    audio()->setEQType(AudioEQJazz, true);
}
AFTER_RESTART(audioCurveRestart) {
    expect("the curve", int(AudioEQJazz), int(audio()->getCurrEQType()));
}

CHECK(bandAsSent, "eq.band-as-sent",
      "getCustomEq() is the value that setCustomEq() was given, -12 to 24, for each band.", eqPages) {
    for (int band = 0; band < bandCount; ++band) {
        for (int value : {-12, -1, 0, 1, 11, 12, 13, 24, 2 + band}) {
            audio()->setCustomEq(value, band, true);
            expect(QStringLiteral("band %1").arg(band), value, audio()->getCustomEq(band));
        }
    }
}

CHECK(bandInStore, "eq.band-in-store",
      "setCustomEq() keeps the value in the store at once, under \"eq%1\" of the band.", eqPage) {
    for (int band = 0; band < bandCount; ++band) {
        audio()->setCustomEq(3 + band, band, true);
        expect(QStringLiteral("eq%1").arg(band), 3 + band, stored(band));
        audio()->setCustomEq(12, band, true);
        expect(QStringLiteral("eq%1").arg(band), 12, stored(band));
    }
}

CHECK(bandsApart, "eq.bands-apart", "setCustomEq() changes the one band.", eqPages) {
    for (int band = 0; band < bandCount; ++band) {
        audio()->setCustomEq(12, band, true);
    }
    audio()->setCustomEq(20, 5, true);
    for (int band = 0; band < bandCount; ++band) {
        expect(QStringLiteral("band %1").arg(band), band == 5 ? 20 : 12, audio()->getCustomEq(band));
    }
}

CHECK(bandNone, "eq.no-such-band", "A band outside 0 to 12 is ignored.", "no page; the process would end") {
    for (int band = 0; band < bandCount; ++band) {
        audio()->setCustomEq(12, band, true);
    }
    for (int band : {-1, 13, 1000000, -2147483647 - 1, 2147483647}) {
        audio()->setCustomEq(20, band, true);
        audio()->getCustomEq(band);
    }
    for (int band = 0; band < bandCount; ++band) {
        expect(QStringLiteral("band %1").arg(band), 12, audio()->getCustomEq(band));
    }
}

CHECK(bandRange, "eq.band-range", "A band value outside -12 to 24 is clamped or ignored.", "the loudspeakers") {
    for (int value : {25, 1000, 2147483647, -13, -1000}) {
        audio()->setCustomEq(value, 0, true);
        const int kept = audio()->getCustomEq(0);
        expectTrue(QStringLiteral("after %1 the band is within -12 to 24 (it is %2)").arg(value).arg(kept),
                   kept >= -12 && kept <= 24);
    }
}

CHECK(bandKeepsCurve, "eq.band-keeps-curve",
      "setCustomEq() leaves the curve in force alone: pages select it themselves.", eqPages) {
    audio()->setEQType(AudioEQRock, true);
    audio()->setCustomEq(15, 2, true);
    expect("the curve", int(AudioEQRock), int(audio()->getCurrEQType()));
}

CHECK(curveKeepsBands, "eq.curve-keeps-bands", "setEQType() leaves the live custom curve alone.", eqPages) {
    audio()->setCustomEq(15, 2, true);
    audio()->setEQType(AudioEQRock, true);
    audio()->setEQType(AudioEQFlat, true);
    expect("band 2", 15, audio()->getCustomEq(2));
    expect("eq2", 15, stored(2));
}

RESTART_CHECK(bandsRestart, "eq.bands-survive-restart", "The live custom curve outlives a restart.", eqPage) {
    for (int band = 0; band < bandCount; ++band) {
        audio()->setCustomEq(2 + band, band, true);
    }
}
AFTER_RESTART(bandsRestart) {
    for (int band = 0; band < bandCount; ++band) {
        expect(QStringLiteral("band %1").arg(band), 2 + band, audio()->getCustomEq(band));
        expect(QStringLiteral("eq%1").arg(band), 2 + band, stored(band));
    }
}

CHECK(balance, "balance.as-set", "getBalanceFader() gives balance and fader as they were set, with their signs.",
      generalPage) {
    const int pairs[][2] = {{0, 0}, {-15, 15}, {15, -15}, {-7, -3}, {4, 9}};
    for (const auto &pair : pairs) {
        audio()->setBalanceFader(pair[0], pair[1], true);
        int side = 99;
        int fade = 99;
        audio()->getBalanceFader(side, fade);
        expect("balance", pair[0], side);
        expect("fader", pair[1], fade);
    }
}

CHECK(balanceRange, "balance.range", "Balance and fader outside -15 to 15 are clamped or ignored.", generalPage) {
    audio()->setBalanceFader(99, -99, true);
    int side = 0;
    int fade = 0;
    audio()->getBalanceFader(side, fade);
    expectTrue(QStringLiteral("both are within -15 to 15 (%1, %2)").arg(side).arg(fade),
               qAbs(side) <= 15 && qAbs(fade) <= 15);
}

CHECK(volume, "volume.as-set",
      "getSourceVolByType() is the level that setVolumeLevel() set, 0 to 40, for each channel.", volumePage) {
    for (int type = 0; type < channelCount; ++type) {
        for (int level : {0, 40, 5 + type}) {
            audio()->setVolumeLevel(level, type);
            expect(QStringLiteral("channel %1").arg(type), level, audio()->getSourceVolByType(type));
        }
    }
    for (int type = 0; type < channelCount; ++type) {
        expect(QStringLiteral("channel %1, at last").arg(type), 5 + type, audio()->getSourceVolByType(type));
    }
}

CHECK(volumeSignal, "volume.announced", "A level that changes is announced once: mute, level, channel.", volumePage) {
    audio()->setVolumeLevel(10, 3);
    SignalLog log;
    audio()->setVolumeLevel(22, 3);
    pass(0);
    expect("signals", QStringList(QStringLiteral("audioVolumeChanged(0, 22, 3)")), log.lines);
}

CHECK(volumeVisible, "volume.announced-after", "When a level is announced, getSourceVolByType() is that level.",
      volumePage) {
    audio()->setVolumeLevel(10, 2);
    int seen = -1;
    QObject receiver;
    QObject::connect(audio(), &qvaudio::AudioService::audioVolumeChanged, &receiver,
                     [&](int, int, int type) { seen = audio()->getSourceVolByType(type); });
    audio()->setVolumeLevel(23, 2);
    expect("the level in a slot of the signal", 23, seen);
}

CHECK(volumeSame, "volume.same-is-silent", "A level that stays the same is not announced.", volumePage) {
    audio()->setVolumeLevel(10, 1);
    SignalLog log;
    audio()->setVolumeLevel(10, 1);
    pass(0);
    expect("signals", QStringList(), log.lines);
}

CHECK(volumeRange, "volume.range", "A level outside 0 to 40 is clamped or ignored.", volumePage) {
    for (int level : {41, 1000, -1, -1000}) {
        audio()->setVolumeLevel(level, 0);
        const int kept = audio()->getSourceVolByType(0);
        expectTrue(QStringLiteral("after %1 the level is within 0 to 40 (it is %2)").arg(level).arg(kept),
                   kept >= 0 && kept <= 40);
    }
}

CHECK(volumeNone, "volume.no-such-channel", "A channel outside 0 to 7 is ignored.", "no page; the process would end") {
    SignalLog log;
    for (int type : {-1, 8, 1000000, -2147483647 - 1}) {
        audio()->setVolumeLevel(20, type);
        audio()->getSourceVolByType(type);
    }
    pass(0);
    expect("signals", QStringList(), log.lines);
}

RESTART_CHECK(volumeRestart, "volume.survives-restart", "The level of each channel outlives a restart.", volumePage) {
    for (int type = 0; type < channelCount; ++type) {
        audio()->setVolumeLevel(30 - type, type);
    }
}
AFTER_RESTART(volumeRestart) {
    for (int type = 0; type < channelCount; ++type) {
        expect(QStringLiteral("channel %1").arg(type), 30 - type, audio()->getSourceVolByType(type));
    }
}
