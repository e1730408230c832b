// SPDX-License-Identifier: Apache-2.0
// The Timing page by finger: screen, store and sound agree after every step. The page sends nothing on Flat, the unit
// does.
import { use } from "./steps.js";

function delays(expected) {
    var is = sound().delay.join();
    expect(is === expected.join(), "the sound is delayed by " + is);
    for (var i = 0; i < 6; ++i) {
        expect((store("timing/DATA_TYPE" + i) || 0) == expected[i], "delay " + i + " in the store");
    }
}

open("audiosetting");
use("key_timing");
delays([0, 0, 0, 0, 0, 0]);
use("key_fl_plus");
use("key_rr_plus");
use("key_rr_plus");
delays([1, 0, 0, 2, 0, 0]);
press("key_sl_plus");
wait(25000);
expect("key_sl_plus", "enabled", false);
release();
expect("txt_sl_value", "text", "9.9");
delays([1, 0, 0, 2, 99, 0]);
use("key_inches");
expect("txt_sl_value", "text", "133");
expect("txt_fl_value", "text", "1");
press("key_preset_1");
wait(1600);
release();
expect("key_preset_1", "checked", true);

use("Key_update");
delays([0, 0, 0, 0, 0, 0]);
expect("txt_sl_value", "text", "0");
expect("key_preset_1", "checked", false);
use("key_preset_1");
delays([1, 0, 0, 2, 99, 0]);

// Flat on the Crossover page leaves the delays.
use("key_crossover");
use("Key_update");
delays([1, 0, 0, 2, 99, 0]);
use("key_timing");
expect("txt_sl_value", "text", "133");
