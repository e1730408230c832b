// SPDX-License-Identifier: Apache-2.0
// Every key and slider of the band-adjust panel, by finger, heard at the loudspeakers.
import { curves, flat, hearsCurve } from "./curves.js";
import { settle, use } from "./steps.js";

tap("tile_bandadjust");
settle();
hearsCurve("a new unit", flat());
var last = 16; // the custom curve
for (var type = 1; type <= last; ++type) {
    use("key_left");
    hearsCurve("left to type " + type, curves[type] || flat());
}
use("key_left");
hearsCurve("left from the last to the first", flat());
use("key_right");
hearsCurve("right from the first to the last", flat());
for (type = last - 1; type >= 0; --type) {
    use("key_right");
    hearsCurve("right to type " + type, curves[type] || flat());
}

// The sliders are columns of 94 pixels. They send the gain that they show, which the unit takes for twelve more than
// it is: required of both. So +12 sounds as 0 dB, and all below 0 as -12.
var gains = flat();
for (var band = 0; band < 10; ++band) {
    var x = 68 + 94 * band;
    [[195, 0], [540, -12], [275, -6]].forEach(function (step) {
        press(x, 375);
        settle();
        gains[band] = -12;
        hearsCurve("slider " + band + " at 0", gains);
        move(x, step[0]);
        release();
        gains[band] = step[1];
        hearsCurve("slider " + band + " let go at " + step[0], gains);
    });
}
use("key_reset");
hearsCurve("reset", flat());
