// Every band of the equaliser, every factory curve, every slot and Flat, by finger, heard at the loudspeakers.
import { hears, settle, use } from "./steps.js";

var main = -36;
var bands = [63, 100, 160, 250, 400, 630, 1000, 1600, 2500, 4000, 6300, 10000, 16000];
var curves = {
    key_Rock: [5, 2, 2, 2, -2, -4, -3, -3, 0, 2, 4, 2, 4],
    key_hiphop: [10, 6, 0, 0, 6, 2, -2, -1, -4, 2, 6, 2, 4],
    key_electronic: [6, 4, 6, 0, 2, 0, 0, 1, 2, 4, 6, 2, 4],
    key_jazz: [6, 2, 6, 0, -4, -1, 0, -1, 4, 0, -2, -2, 4],
    key_pop: [2, 4, 6, 4, 0, 0, 1, 1, 0, 0, 2, 3, 4]
};

function hearsCurve(what, gains) {
    bands.forEach(function (hz, band) {
        var there = main + gains[band];
        hears(what, hz, [there, there, there, there, -Infinity, -Infinity]);
    });
}

var flat = bands.map(function () {
    return 0;
});

open("audiosetting");
settle();
use("key_factoryeq");
Object.keys(curves).forEach(function (key) {
    use(key);
    hearsCurve(key, curves[key]);
});
use("Audiosetting_right_factoryeq_widget/key_flat");
hearsCurve("factory Flat", flat);

// Each band by its slider to the lowest and to the highest level, then by the keys above and below it: columns of 68
// pixels.
use("key_eq");
var gains = flat.slice();
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

// Each slot keeps a curve of its own; Flat and back.
var slots = [1, 2, 3, 4, 5].map(function (number) {
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
hearsCurve("Flat", flat);
slots.forEach(function (kept, i) {
    use("key_custom" + (i + 1));
    wait(400);
    hearsCurve("slot " + (i + 1), kept);
});

// Defeat
use("key_general");
use("key_defeat");
hearsCurve("Defeat", flat);
use("key_defeat");
hearsCurve("after Defeat", gains);
