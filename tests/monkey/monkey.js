// SPDX-License-Identifier: Apache-2.0
// A monkey at the unit: touches, drags, held keys, hard keys, other applications, languages, calls, at random.
// The variables seed and steps stand before this script; see the program monkey beside it.

// Numbers from 0 to below 1, the same for the same seed (mulberry32).
var state = seed;
function random() {
    state = (state + 0x6d2b79f5) | 0;
    var t = Math.imul(state ^ (state >>> 15), 1 | state);
    t = (t + Math.imul(t ^ (t >>> 7), 61 | t)) ^ t;
    return ((t ^ (t >>> 14)) >>> 0) / 4294967296;
}
function pick(count) {
    return Math.floor(random() * count);
}
function oneOf(list) {
    return list[pick(list.length)];
}

var screenWidth = 1024;
var screenHeight = 600;
var farthest = 2147483647;
// But "SettingTouchPageType": Volume Settings clears it when the unit goes off.
var keys = ["Setup_Loudness", "ADV_AUDIO_SETTINGS", "EQ_DEFEAT_TYPE", "Setup_Sub",
            "subwooferLevel", "subwooferphase", "SoundFieldBalance", "SoundFieldFader", "HIGHLIGHT_PRESET_ID",
            "custom_eq_type_id", "crossover/type", "crossover/frontfreq", "crossover/frontlevel",
            "crossover/frontslope", "crossover/fronty", "crossover/frontheigh", "crossover/rearfreq",
            "crossover/rearlevel", "crossover/rearslope", "crossover/subwooferfreq", "crossover/subwooferlevel",
            "crossover/subwooferslope", "timing/type"];
function family(pattern, first, last) {
    for (var i = first; i <= last; ++i) {
        keys.push(pattern.replace("%1", i));
    }
}
family("inputgain%1", 0, 7);
family("audioinputgain%1", 0, 6);
family("eq%1", 0, 12);
family("customeq1_%1", 0, 12);
family("customeq5_%1", 0, 12);
family("EqPresetSwitch%1", 0, 5);
family("timing/DATA_TYPE%1", 0, 5);
family("timing/PRESET_ENABLE%1", 0, 1);
family("crossover/PRESET_FRONT_FREQ%1", 0, 1);

function place() {
    return [pick(screenWidth), pick(screenHeight)];
}

function tapSomewhere() {
    var at = place();
    tap(at[0], at[1]);
}

// The keys that lead from page to page.
var roads = ["left_widget/key_general", "left_widget/key_eq", "left_widget/key_crossover", "left_widget/key_timing",
             "left_widget/key_factoryeq", "key_advanced", "Key_001_loudness", "Key_003_source_gain",
             "Key_004_vol_settings", "Key_005_res_audio", "Key_accept", "Key_Reject", "top_widget/Key_update",
             "key_return"];
function tapRoad() {
    try {
        tap(oneOf(roads));
    } catch (error) {
        // Not on this page, or covered.
    }
}

// Most touches of a driver go to keys, not between them.
function tapKey() {
    var columns = [68, 116, 200, 246, 330, 430, 512, 620, 730, 838, 956];
    var rows = [166, 256, 302, 346, 430, 462, 540, 570];
    tap(oneOf(columns), oneOf(rows));
}

function dragSomewhere() {
    var from = place();
    press(from[0], from[1]);
    for (var i = pick(3); i >= 0; --i) {
        var to = place();
        move(to[0], to[1]);
    }
    wait(oneOf([0, 5, 100, 500]));
    release();
}

function holdSomewhere() {
    var at = place();
    press(at[0], at[1]);
    wait(oneOf([100, 999, 1001, 1499, 1501, 2600]));
    release();
}

// Something else happens while a finger is down.
function interrupted() {
    var at = place();
    press(at[0], at[1]);
    oneOf([outsideVolume, outsideRequest, outsideLanguage, outsideCall, outsideHome])();
    move(pick(screenWidth), pick(screenHeight));
    release();
}

function hardKey() {
    var key = oneOf(["hardkey_home", "hardkey_back", "hardkey_volume_up", "hardkey_volume_down"]);
    press(key);
    wait(oneOf([0, 50, 800]));
    release();
}

function outsideVolume() {
    volume(pick(8), pick(41));
}
function outsideRequest() {
    request();
}
function outsideLanguage() {
    language(oneOf(["en", "de", "fr", "es", "ja"]));
}
function outsideCall() {
    call(random() < 0.5);
}
function outsideHome() {
    home();
}
function outsideSource() {
    source(pick(7));
}
function openAgain() {
    open("audiosetting");
}
function spoilStore() {
    setStore(oneOf(keys), oneOf([-1, 0, 1, 7, 41, 100, -farthest - 1, farthest]));
}
function pause() {
    wait(oneOf([1, 16, 149, 151, 400, 2500, 4000]));
}

// Likelihoods in per mille; what remains is taps on keys.
var habits = [[200, tapSomewhere], [120, dragSomewhere], [60, holdSomewhere], [30, interrupted], [40, hardKey],
              [20, outsideVolume], [8, outsideRequest], [10, outsideLanguage], [8, outsideCall], [8, outsideSource],
              [10, openAgain], [6, spoilStore], [60, pause],
              [180, tapRoad]];
function step() {
    // The monkey soon finds the way back from wherever it got out.
    if (!shown("key_return") && random() < 0.4) {
        call(false);
        openAgain();
    }
    // From the two pages without tabs only Back leads on.
    if (shown("scrollArea") && random() < 0.06) {
        tap("key_return");
    }
    wait(pick(200));
    var die = pick(1000);
    for (var i = 0; i < habits.length; ++i) {
        die -= habits[i][0];
        if (die < 0) {
            habits[i][1]();
            return;
        }
    }
    tapKey();
}

function within(value, lowest, highest, what) {
    expect(value >= lowest && value <= highest, what + " is " + value);
}

function checkSound() {
    var s = sound();
    within(s.balance, -15, 15, "balance");
    within(s.fader, -15, 15, "fader");
    within(s.subwooferLevel, 0, 15, "subwooferLevel");
    within(s.subwooferPhase, 0, 1, "subwooferPhase");
    for (var i = 0; i < 8; ++i) {
        within(s.channelLevel[i], 0, 40, "channelLevel " + i);
    }
    for (i = 0; i < 7; ++i) {
        within(s.sourceGain[i], 0, 20, "sourceGain " + i);
    }
    for (i = 0; i < 13; ++i) {
        within(s.customEq[i], -12, 24, "customEq " + i);
    }
    for (i = 0; i < 6; ++i) {
        within(s.delay[i], 0, 99, "delay " + i);
    }
    within(s.front.freq, 0, 11, "front.freq");
    within(s.rear.freq, 0, 5, "rear.freq");
    within(s.subwoofer.freq, 0, 5, "subwoofer.freq");
}

// Whatever is shown, the driver gets out of it: by Back, or by Close.
function leave() {
    call(false);
    wait(300);
    if (get("screen", "visible") && shown("key_return")) {
        if (random() < 0.3) {
            tap("Key_close");
            wait(300);
        } else {
            for (var i = 0; i < 4 && shown("key_return"); ++i) {
                tap("key_return");
                wait(300);
            }
        }
        expect("key_return", "visible", false);
    }
}

function shown(name) {
    try {
        get(name, "visible");
        return true;
    } catch (error) {
        return false;
    }
}

function settings() {
    var values = {};
    for (var i = 0; i < keys.length; ++i) {
        values[keys[i]] = store(keys[i]);
    }
    return JSON.stringify(values);
}

log("store " + settings());
openAgain();
for (var i = 1; i <= steps; ++i) {
    try {
        step();
        if (i % 50 === 0) {
            checkSound();
        }
        if (i % 100 === 0) {
            leave();
            openAgain();
        }
    } catch (error) {
        log("step " + i + " of seed " + seed);
        throw error;
    }
}
log("store " + settings());
