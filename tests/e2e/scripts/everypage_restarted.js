// SPDX-License-Identifier: Apache-2.0
// After everypage_use.js and a restart: every page shows what was set, and the sound is what it was. Then all is reset.
import { settle, use } from "./steps.js";

function tab(name) {
    use("left_widget/" + name);
}

function expectSound() {
    var s = sound();
    expect(s.balance === 5);
    expect(s.fader === -7);
    expect(s.subwooferLevel === 4);
    expect(s.subwooferPhase === 1);
    expect(s.loudness === true);
    expect(s.delay.join() === "1,2,0,0,0,1");
    expect(s.sourceGain.join() === "11,12,10,10,9,10,10");
    // The main volume was 40: more than the factory file lets the unit start with.
    expect(s.channelLevel.slice(0, 5).join() === "30,15,17,16,22");
    expect(s.customEq.join() === store("test/customEq"));
    ["front", "rear", "subwoofer"].forEach(function (channel) {
        expect(s[channel].freq === 2 && s[channel].slope === 2 && s[channel].level === 11, channel);
    });
}

// Before any page exists.
expectSound();
open("audiosetting");
settle();
expect("txt_vol_level", "text", "4");
expect("key_Phase_180", "checked", true);
expect("txt_bal_val", "text", "5");
expect("txt_fad_val", "text", "7");
tab("key_eq");
tab("key_factoryeq");
tab("key_crossover");
["key_front", "key_rear", "key_sub"].forEach(function (channel) {
    use(channel);
    expect("txt_level_value", "text", "-1");
});
tab("key_timing");
expect("key_fl_minus", "enabled", true);
tab("key_general");
use("key_advanced");
expect("Key_001_loudness", "checked", true);
use("Key_004_vol_settings");
expect("key_main_plus", "enabled", true);
expect("key_phone_volume_plus", "enabled", true);
use("key_return");
use("Key_003_source_gain");
use("key_return");
// Looking changes nothing.
expectSound();

// With Defeat on, too, a reset is a reset; Back and Close are touched while the dialog is open.
use("key_return");
use("key_defeat");
expect(sound().defeat === true);
use("key_advanced");
use("Key_005_res_audio");
use("key_return");
expect("Txt_title", "text", "General");
use("key_advanced");
use("Key_005_res_audio");
use("Key_close");
expect("home", "visible", true);
open("audiosetting");
settle();
use("Key_005_res_audio");
use("Key_Reject");
expect(sound().defeat === true, "declined");
use("Key_005_res_audio");
tap("Key_accept");
wait(2500);
expect(sound().eqType === 2);
expect("Key_005_res_audio", "visible", true);
expect("left_widget/key_eq", "enabled", true);
