// SPDX-License-Identifier: Apache-2.0
// After everypage_restarted.js and another restart: every page and the sound are those of the factory, but for the
// volumes, which a reset sets to its own.
import { settle, use } from "./steps.js";

function tab(name) {
    use("left_widget/" + name);
}

var s = sound();
expect(s.defeat === false);
expect(s.balance === 0 && s.fader === 0);
expect(s.loudness === false);
expect(s.subwooferPhase === 0);
expect(s.delay.join() === "0,0,0,0,0,0");
expect(s.sourceGain.slice(0, 6).join() === "10,10,10,10,10,10");
expect(s.channelLevel.join() === "15,15,15,15,15,15,15,15");
["front", "rear", "subwoofer"].forEach(function (channel) {
    expect(s[channel].freq === 0, channel);
});

open("audiosetting");
settle();
expect("Txt_title", "text", "General");
expect("key_defeat", "checked", false);
expect("key_Subwoofer", "checked", false);
expect("txt_vol_level", "text", "3");
expect("key_Phase_0", "checked", true);
expect("txt_bal_val", "text", "0");
expect("txt_fad_val", "text", "0");
tab("key_crossover");
expect("txt_level_value", "text", "0");
tab("key_timing");
expect("key_fl_minus", "enabled", false);
tab("key_factoryeq");
tab("key_eq");
tab("key_general");
use("key_advanced");
expect("Key_001_loudness", "checked", false);
use("Key_004_vol_settings");
use("key_main_plus");
expect(sound().channelLevel[0] === 16);
