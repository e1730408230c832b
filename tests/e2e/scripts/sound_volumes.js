// SPDX-License-Identifier: Apache-2.0
// Every volume, every source gain and the reset, by finger, heard at the loudspeakers.
import { hears, settle, use } from "./steps.js";

function everywhere(db) {
    return [db, db, db, db, -Infinity, -Infinity];
}

// Prompts are heard in front.
function inFront(db) {
    return [db, db, -Infinity, -Infinity, -Infinity, -Infinity];
}

function levelDb(level) {
    return level === 0 ? -Infinity : (level - 40) * 1.5;
}

// Inputs as heard() counts them; the beep follows the main volume.
var levels = [16, 16, 16, 16, 16, 16];

function hearsLevels(what) {
    levels.forEach(function (level, input) {
        var db = levelDb(level);
        hears(what + ", input " + input, 1000, input === 0 ? everywhere(db) : inFront(db), input);
    });
    hears(what + ", beep", 1000, inFront(levelDb(levels[0])), 6);
}

open("audiosetting");
settle();
hearsLevels("a new unit");

use("key_advanced");
use("Key_004_vol_settings");
// A finger between the keys and the sliders moves the page on by a row, and stops before it lets go; the last rows are
// there together.
function scroll() {
    press(446, 370);
    move(446, 190);
    wait(500);
    release();
    wait(1000);
}

// Where a finger has a slider at that level
function sliderX(level) {
    return Math.round(364 + 14.75 * level);
}

// The rows in the order of the page, with their inputs, and where their sliders stand once they are scrolled to
[["main", 0, 256], ["phone_volume", 2, 271], ["voice_volume", 4, 287], ["navig_volume", 3, 350],
 ["ringtone_volume", 1, 530]].forEach(function (row, number) {
    var name = row[0];
    var input = row[1];
    var sliderY = row[2];
    if (number > 0 && number < 4) {
        scroll();
    }
    use("key_" + name + "_plus");
    levels[input] = 17;
    hearsLevels(name + " up");
    for (var i = 0; i <= number + 1; ++i) {
        use("key_" + name + "_minus");
    }
    levels[input] = 15 - number;
    hearsLevels(name + " down");
    press(sliderX(0), sliderY);
    [0, 40, 10 + number].forEach(function (level) {
        move(sliderX(level), sliderY);
        settle();
        levels[input] = level;
        hearsLevels(name + " by its slider");
    });
    release();
    settle();
    hearsLevels(name + ", slider let go");
});
// The row for traffic announcements is not on this unit's page; its level comes from elsewhere.
volume(6, 30);
levels[5] = 30;
hearsLevels("announcements");
use("hardkey_volume_up");
++levels[0];
hearsLevels("hard key up");
use("hardkey_volume_down");
use("hardkey_volume_down");
levels[0] -= 2;
hearsLevels("hard key down");
volume(0, 0);
levels[0] = 0;
hearsLevels("main volume 0");
volume(0, 40);
levels[0] = 40;
hearsLevels("main volume 40");
use("key_return");

// Source gains: heard only while that source plays.
use("Key_003_source_gain");
var gains = [0, 0, 0, 0, 0, 0, 0];

function hearsGains(what) {
    gains.forEach(function (gain, number) {
        source(number);
        hears(what + ", source " + number, 1000, everywhere(gain));
    });
    source(0);
}

hearsGains("neutral");
[["radio", 0], ["androidauto", 4], ["applecarplay", 3], ["siriusxm", 5], ["btmusic", 2],
 ["usb", 1]].forEach(function (row, place) {
    var name = row[0];
    var number = row[1];
    if (place > 0 && place < 5) {
        scroll();
    }
    use("key_" + name + "_plus");
    use("key_" + name + "_plus");
    gains[number] = 2;
    hearsGains(name + " up");
    for (var i = 0; i < 3 + place; ++i) {
        use("key_" + name + "_minus");
    }
    gains[number] = -1 - place;
    hearsGains(name + " down");
});
use("key_return");

// The reset sets its own volumes, and sends the stored gains without their offset, which is required of it,
// as is the curve Pop: 1 dB more at 1 kHz, of what plays.
var pop = 1;

function afterReset(db) {
    // The subwoofer is sent its stored level although its switch is off: required, too.
    var sub = db + pop + (3 - 10) * 1.5;
    return [db + pop, db + pop, db + pop, db + pop, sub, sub];
}

use("Key_005_res_audio");
tap("Key_accept");
wait(2600);
for (var number = 0; number < 6; ++number) {
    source(number);
    hears("reset, source " + number, 1000, afterReset(levelDb(15) - 10 + (store("audioinputgain" + number) || 0)));
}
for (var input = 1; input < 6; ++input) {
    hears("reset, input " + input, 1000, inFront(levelDb(15)), input);
}
