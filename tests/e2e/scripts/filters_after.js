// SPDX-License-Identifier: Apache-2.0
// The unit was switched off and on: filters and delays sound as they were left before any page is opened.
function filter(channel) {
    var f = sound()[channel];
    return [f.freq, f.slope, f.level].join();
}

expect(filter("front") === "1,1,12", "front sounds as " + filter("front"));
expect(filter("subwoofer") === "0,2,11", "subwoofer sounds as " + filter("subwoofer"));
var rear = sound().rear;
expect(rear.slope >= 1 && rear.slope <= 3 && rear.freq >= 0 && rear.freq <= 5, "rear sounds as " + filter("rear"));
var delay = sound().delay;
expect(delay[0] === 0 && delay[1] === 1 && delay[5] === 1, "the sound is delayed by " + delay.join());
expect(delay[2] >= 0 && delay[2] <= 99, "the sound is delayed by " + delay.join());

open("audiosetting");
wait(200);
tap("key_timing");
wait(200);
expect("key_inches", "checked", true);
expect("txt_fr_value", "text", "1");
tap("key_crossover");
wait(200);
expect("key_sub", "checked", true);
expect("txt_slope_value", "text", "12 db");
expect("txt_level_value", "text", "-1");
// Rear is no longer what was saved.
expect("key_preset_1", "checked", false);
tap("key_preset_1");
wait(200);
expect(filter("rear") === "0,1,12", "rear sounds as " + filter("rear"));
expect("key_preset_1", "checked", true);
