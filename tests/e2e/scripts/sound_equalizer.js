// SPDX-License-Identifier: Apache-2.0
// Every band of the equaliser, every factory curve, every preset and Flat, by finger, heard at the loudspeakers.
import { bands, curves, flat, hearsCurve } from "./curves.js";
import { settle, use } from "./steps.js";

open("audiosetting");
settle();
use("key_factoryeq");
[["key_Rock", 3], ["key_hiphop", 8], ["key_electronic", 5], ["key_jazz", 7], ["key_pop", 2]].forEach(function (row) {
    use(row[0]);
    hearsCurve(row[0], curves[row[1]]);
});
use("Audiosetting_right_factoryeq_widget/key_flat");
hearsCurve("factory Flat", flat());

// Each band by its slider to the lowest and to the highest level, then by the keys above and below it: columns of 68
// pixels.
use("key_eq");
var gains = flat();
bands.forEach(function (hz, band) {
    var x = 177 + 68 * band;
    var steps = 1 + band % 3;
    press(x, 345);
    settle();
    gains[band] = -12;
    hearsCurve("slider of " + hz + " Hz down", gains);
    release();
    for (var i = 0; i < steps; ++i) {
        use(x, 156);
        ++gains[band];
    }
    wait(400);
    hearsCurve("key above " + hz + " Hz", gains);
    press(x, 300);
    move(x, 205);
    release();
    wait(400);
    gains[band] = 12;
    hearsCurve("slider of " + hz + " Hz up", gains);
    for (i = 0; i < 12 - (band % 2 ? -steps : steps); ++i) {
        use(x, 416);
        --gains[band];
    }
    wait(400);
    hearsCurve("key below " + hz + " Hz", gains);
});

// Each preset keeps a curve of its own; Flat and back.
var presets = [1, 2, 3, 4, 5].map(function (number) {
    use(177 + 68 * number, 156);
    ++gains[number];
    wait(400);
    press("key_custom" + number);
    wait(1500);
    release();
    return gains.slice();
});
use("Audiosetting_right_eq_widget/key_flat");
wait(400);
hearsCurve("Flat", flat());
presets.forEach(function (kept, i) {
    use("key_custom" + (i + 1));
    wait(400);
    hearsCurve("preset " + (i + 1), kept);
});

// Defeat
use("key_general");
use("key_defeat");
hearsCurve("Defeat", flat());
use("key_defeat");
hearsCurve("after Defeat", gains);
