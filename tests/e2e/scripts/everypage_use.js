// SPDX-License-Identifier: Apache-2.0
// A driver works through every page. everypage_restarted.js finds it all again, and resets it.
import { settle, use } from "./steps.js";

function tab(name) {
    use("left_widget/" + name);
}

open("audiosetting");
settle();

// General
use("key_Subwoofer");
use("key_subvol_next");
use("key_Phase_180");
drag("settings::balanceFaderControl", 132, 130, 132 + 30, 130 - 42);
settle();
expect(sound().balance === 5);
expect(sound().fader === -7);

// Crossover: front, then rear, then subwoofer
tab("key_crossover");
["key_front", "key_rear", "key_sub"].forEach(function (channel) {
    use(channel);
    use("key_freq_plus");
    use("key_freq_plus");
    use("key_slope_plus");
    use("key_level_minus");
});
["front", "rear", "subwoofer"].forEach(function (channel) {
    expect(sound()[channel].freq === 2, channel);
    expect(sound()[channel].slope === 2, channel);
    expect(sound()[channel].level === 11, channel);
});

// Timing
tab("key_timing");
["key_fl_plus", "key_fr_plus", "key_fr_plus", "key_sr_plus"].forEach((key) => use(key));
expect(sound().delay.join() === "1,2,0,0,0,1");

// Factory EQ, then bands drawn with a finger
tab("key_factoryeq");
use("key_Rock");
expect(sound().eqType === 3);
tab("key_eq");
drag("Audiosetting_right_eq_widget", 313, 155, 313, 110);
settle();
settle();
var drawn = sound().customEq.join();
expect(sound().eqType === 16, "what is drawn is the live curve");
expect(drawn !== "12,12,12,12,12,12,12,12,12,12,12,12,12");

// Settings root
tab("key_general");
use("key_advanced");
use("Key_001_loudness");

// Source Gain, by keys and by a slider, at the top and scrolled
use("Key_003_source_gain");
use("key_radio_plus");
use("key_androidauto_minus");
drag("Audiosourcegainsettings", 500, 40, 500, -500);
wait(3000);
use("key_usb_plus");
use("key_usb_plus");
use("key_return");
expect(sound().sourceGain.join() === "11,12,10,10,9,10,10");

// Volume Settings
use("Key_004_vol_settings");
drag("Audiovolumsettings", 500, 126, 950, 126);
use("key_phone_volume_plus");
expect(sound().channelLevel[0] === 40);
expect("key_main_plus", "enabled", false);
expect(sound().channelLevel[2] === 17);
// A finger between the keys and the sliders scrolls, and no further than the contents go: the row for traffic announcements lies below.
for (var i = 0; i < 4; ++i) {
    drag("Audiovolumsettings", 310, 240, 310, -60);
    wait(3000);
}
use("key_ringtone_volume_minus");
expect(sound().channelLevel[1] === 15);
volume(4, 22);
use("key_return");
setStore("test/customEq", drawn);
