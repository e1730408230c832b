// SPDX-License-Identifier: Apache-2.0
// Every step of crossovers and delays, and Flat, by finger, heard at the loudspeakers.
import { hears, settle, use } from "./steps.js";

var main = -36;
var sub = main + (3 - 10) * 1.5; // a new unit's subwoofer level, once it is on
var flat = [main, main, main, main, sub, sub];

// The analogue Butterworth, its axis bent as the digital one's is.
function filtered(hz, cutOff, slope, highPass) {
    var ratio = Math.tan(Math.PI * hz / 48000) / Math.tan(Math.PI * cutOff / 48000);
    return -10 * Math.log10(1 + Math.pow(highPass ? 1 / ratio : ratio, 2 * slope));
}

function withPair(first, by) {
    return flat.map(function (db, i) {
        return i === first || i === first + 1 ? db + by : db;
    });
}

open("audiosetting");
settle();
use("key_Subwoofer");
hears("flat", 100, flat);

use("key_crossover");
var filters = [["key_front", 0, true, [25, 40, 63, 80, 100, 160, 250, 500, 1000, 3500, 5000]],
               ["key_rear", 2, true, [25, 40, 63, 100, 250]], ["key_sub", 4, false, [25, 40, 63, 100, 250]]];
filters.forEach(function (row) {
    use(row[0]);
    row[3].forEach(function (cutOff) {
        use("key_freq_plus");
        [cutOff, row[2] ? cutOff / 2 : cutOff * 2].forEach(function (hz) {
            hears(row[0] + " " + cutOff + " Hz", hz, withPair(row[1], filtered(hz, cutOff, 1, row[2])));
        });
    });
    var last = row[3][row[3].length - 1];
    [["plus", 2], ["plus", 3], ["minus", 2], ["minus", 1]].forEach(function (step) {
        use("key_slope_" + step[0]);
        var hz = row[2] ? last / 2 : last * 2;
        hears(row[0] + " slope " + step[1], hz, withPair(row[1], filtered(hz, last, step[1], row[2])));
    });
    for (var level = -1; level >= -12; --level) {
        use("key_level_minus");
        hears(row[0] + " level " + level, last, withPair(row[1], level + filtered(last, last, 1, row[2])));
    }
    for (level = -11; level <= 0; ++level) {
        use("key_level_plus");
        hears(row[0] + " level " + level, last, withPair(row[1], level + filtered(last, last, 1, row[2])));
    }
    row[3].slice(0, -1).reverse().forEach(function (cutOff) {
        use("key_freq_minus");
        hears(row[0] + " down to " + cutOff + " Hz", cutOff, withPair(row[1], filtered(cutOff, cutOff, 1, row[2])));
    });
    use("key_freq_minus");
    hears(row[0] + " off", last, flat);
    use("key_freq_plus");
    use("Key_update");
    hears(row[0] + " after Flat", last, flat);
});

function keep(preset) {
    press(preset);
    wait(1600);
    release();
}

// Each preset keeps frequency, slope and level of all three filters: steps that differ from one to the next.
function stepsOf(preset, place) {
    return {freq: preset + place, slope: (preset + place) % 3, level: 2 * preset + place};
}

[1, 2].forEach(function (preset) {
    filters.forEach(function (row, place) {
        use(row[0]);
        var count = stepsOf(preset, place);
        for (var i = 0; i < count.freq; ++i) {
            use("key_freq_plus");
        }
        for (i = 0; i < count.slope; ++i) {
            use("key_slope_plus");
        }
        for (i = 0; i < count.level; ++i) {
            use("key_level_minus");
        }
    });
    keep("key_preset_" + preset);
    use("Key_update");
    hears("Flat", 40, flat);
});
[2, 1].forEach(function (preset) {
    use("key_preset_" + preset);
    [30, 60, 120].forEach(function (hz) {
        hears("preset " + preset, hz, flat.map(function (db, i) {
            var row = filters[Math.floor(i / 2)];
            var count = stepsOf(preset, Math.floor(i / 2));
            return db - count.level + filtered(hz, row[3][count.freq - 1], 1 + count.slope, row[2]);
        }));
    });
});
use("Key_update");

// Delays: 48 samples a millisecond, each loudspeaker on its own.
use("key_timing");
var steps = [0, 0, 0, 0, 0, 0];

function arrives(what) {
    arrival().forEach(function (samples, i) {
        expect(samples === Math.round(steps[i] * 4.8), what + ": loudspeaker " + i + " after " + samples + " samples");
    });
}

arrives("no delay");
["fl", "fr", "rl", "rr", "sl", "sr"].forEach(function (name, i) {
    for (var step = 1; step <= i + 2; ++step) {
        use("key_" + name + "_plus");
        steps[i] = step;
        arrives(name);
    }
    use("key_" + name + "_minus");
    --steps[i];
    arrives(name);
});
press("key_fr_plus");
wait(25000);
release();
steps[1] = 99;
arrives("the longest");
hears("delayed", 100, flat);
// Inches are only another way to show it.
use("key_inches");
arrives("inches");
use("key_rl_plus");
++steps[2];
arrives("a step in inches");
use("key_msec");
arrives("milliseconds again");
keep("key_preset_2");
var kept = steps;
use("Key_update");
steps = [0, 0, 0, 0, 0, 0];
arrives("Flat");
use("key_sl_plus");
steps = [0, 0, 0, 0, 1, 0];
keep("key_preset_1");
use("key_preset_2");
steps = kept;
arrives("preset 2");
use("key_preset_1");
steps = [0, 0, 0, 0, 1, 0];
arrives("preset 1");
use("key_preset_2");
steps = kept;
arrives("preset 2 again");

// Defeat takes delays and high-passes away, not what protects the subwoofer.
function lowPassed(front) {
    var low = filtered(40, 25, 1, false);
    return flat.map(function (db, i) {
        return db + (i < 2 ? front : i < 4 ? 0 : low);
    });
}

use("key_crossover");
use("key_front");
use("key_freq_plus");
use("key_freq_plus");
use("key_sub");
use("key_freq_plus");
var frontHigh = filtered(40, 40, 1, true);
hears("before Defeat", 40, lowPassed(frontHigh));
use("key_general");
use("key_defeat");
steps = [0, 0, 0, 0, 0, 0];
arrives("Defeat");
hears("Defeat", 40, lowPassed(0));
use("key_defeat");
steps = kept;
arrives("after Defeat");
hears("after Defeat", 40, lowPassed(frontHigh));
