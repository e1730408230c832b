// SPDX-License-Identifier: Apache-2.0
// The Crossover page by finger: screen, store and sound agree after every step, Flat included.
import { use } from "./steps.js";

function sounds(channel, freq, slope, level) {
    var filter = sound()[channel];
    var is = [filter.freq, filter.slope, filter.level].join();
    expect(is === [freq, slope, level].join(), channel + " sounds as " + is);
    expect(store("crossover/" + channel + "freq") == freq, channel + " frequency in the store");
    expect(store("crossover/" + channel + "slope") == slope, channel + " slope in the store");
}

function shows(slope, frequency, level) {
    expect("txt_slope_value", "text", slope);
    expect("txt_freq_value", "text", frequency);
    expect("txt_level_value", "text", level);
}

open("audiosetting");
use("key_crossover");
shows("6 db", "Off", "0");

use("key_freq_minus");
use("key_slope_plus");
use("key_level_minus");
shows("12 db", "5000 Hz", "-1");
sounds("front", 11, 2, 11);

use("key_rear");
shows("6 db", "Off", "0");
use("key_freq_minus");
use("key_slope_minus");
shows("18 db", "250 Hz", "0");
sounds("rear", 5, 3, 12);

use("key_sub");
use("key_freq_plus");
use("key_level_plus");
shows("6 db", "25 Hz", "-12");
sounds("subwoofer", 1, 1, 0);

// Held, preset 2 keeps all of it.
press("key_preset_2");
wait(1600);
release();
expect("key_preset_2", "checked", true);

use("Key_update");
shows("6 db", "Off", "0");
sounds("front", 0, 1, 12);
sounds("rear", 0, 1, 12);
sounds("subwoofer", 0, 1, 12);
expect("key_preset_2", "checked", false);
expect("key_sub", "checked", true);

use("key_preset_2");
shows("6 db", "25 Hz", "-12");
sounds("front", 11, 2, 11);
sounds("rear", 5, 3, 12);
sounds("subwoofer", 1, 1, 0);

// Values that no page stores: the sound stays within its range, the page goes on.
setStore("crossover/frontfreq", 2000000000);
setStore("crossover/fronty", -2000000000);
setStore("crossover/frontheigh", 2000000000);
setStore("crossover/rearlevel", -99);
use("key_general");
use("key_crossover");
var state = sound();
expect(state.front.freq >= 0 && state.front.freq <= 11, "front frequency " + state.front.freq);
expect(state.rear.level >= 0 && state.rear.level <= 12, "rear level " + state.rear.level);
use("key_front");
use("key_freq_plus");
shows("12 db", "Off", "-1");
