// SPDX-License-Identifier: Apache-2.0
// Every control of the General page and Loudness, by finger, heard at the loudspeakers.
import { hears, settle, use } from "./steps.js";

var silent = -Infinity;
var main = -36; // a new unit's volume, 16 of 40
var sub = silent;

// The six loudspeakers when left, right, front and rear are lowered by so much.
function field(left, right, front, rear) {
    return [left + front, right + front, left + rear, right + rear].map(function (by) {
        return main + by;
    }).concat([sub + left, sub + right]);
}

open("audiosetting");
hears("a new unit", 1000, field(0, 0, 0, 0));

// Balance and fader: every step of the keys to one end, then to the other.
[["Key_balance_right", "Key_balance_left", function (by) { return field(by, 0, 0, 0); },
  function (by) { return field(0, by, 0, 0); }],
 ["Key_fade_rear", "Key_fade_front", function (by) { return field(0, 0, by, 0); },
  function (by) { return field(0, 0, 0, by); }]].forEach(function (row) {
    for (var step = 1; step <= 15; ++step) {
        use(row[0]);
        hears(row[0] + " " + step, 1000, row[2](step === 15 ? silent : -2 * step));
    }
    for (step = 14; step >= -15; --step) {
        use(row[1]);
        hears(row[1] + " " + step, 1000,
              step >= 0 ? row[2](-2 * step) : row[3](step === -15 ? silent : 2 * step));
    }
    use("Audiosetting_right_general_widget/Key_update");
    hears("centred", 1000, field(0, 0, 0, 0));
});

// The pad
drag("settings::balanceFaderControl", 132, 130, 132 - 36, 130 - 24);
settle();
hears("pad", 1000, field(0, -12, 0, -8));
use("Audiosetting_right_general_widget/Key_update");

// Subwoofer: switch, every level, phase
use("key_Subwoofer");
for (var level = 3; level <= 15; ++level) {
    sub = main + (level - 10) * 1.5;
    hears("subwoofer level " + level, 50, field(0, 0, 0, 0));
    if (level < 15) {
        use("key_subvol_next");
    }
}
for (level = 14; level >= 0; --level) {
    use("key_subvol_prev");
    sub = level === 0 ? silent : main + (level - 10) * 1.5;
    hears("subwoofer down to level " + level, 50, field(0, 0, 0, 0));
}
for (level = 1; level <= 14; ++level) {
    use("key_subvol_next");
}
sub = main + (14 - 10) * 1.5;
hears("subwoofer up again", 50, field(0, 0, 0, 0));
var phase = heard(50).deg;
use("key_Phase_180");
hears("turned", 50, field(0, 0, 0, 0));
heard(50).deg.forEach(function (degrees, i) {
    var turned = Math.round(Math.abs(degrees - phase[i])) % 360;
    expect(turned === (i < 4 ? 0 : 180), "loudspeaker " + i + " is turned by " + turned);
});
use("key_Phase_0");
expect(Math.abs(heard(50).deg[4] - phase[4]) < 0.01);

// Loudness at this volume: bass up, 1 kHz as it was.
use("key_advanced");
use("Key_001_loudness");
expect(Math.abs(heard(1000).db[2] - main) < 0.2);
var bass = heard(50).db[0];
expect(bass > main + 6 && bass < main + 12, "bass under loudness " + bass);
expect(heard(10000).db[3] > main + 1);
use("Key_001_loudness");
[50, 1000, 10000].forEach(function (hz) {
    hears("loudness off", hz, field(0, 0, 0, 0));
});
use("Key_001_loudness");
use("key_return");

// Defeat takes all that away but the subwoofer's own settings.
use("Key_balance_right");
use("Key_fade_front");
expect(heard(1000).db[0] < main - 1.9);
use("key_defeat");
[50, 1000, 10000].forEach(function (hz) {
    hears("Defeat", hz, field(0, 0, 0, 0));
});
use("key_defeat");
expect(Math.abs(heard(1000).db[3] - (main - 2)) < 0.2);
expect(Math.abs(heard(50).db[1] - bass) < 0.05);

use("key_Subwoofer");
sub = silent;
var quiet = heard(50).db;
expect(quiet[4] === silent && quiet[5] === silent);
expect(Math.abs(quiet[1] - bass) < 0.05, "the others go on");
