// SPDX-License-Identifier: Apache-2.0
// The tour: every screen, in each state worth seeing, and in each language where its texts differ. One picture each.

// Time for a press to be seen, and longer than any guard against double taps.
var pause = 400;

function use(place) {
    tap(place);
    wait(pause);
}

// Waits until what was on the screen for a moment only is gone.
function settle() {
    wait(3000);
}

// Draws a page's rows, as far as a finger gets in one go.
function draw(from, to) {
    press(120, from);
    move(120, to);
    release();
    settle();
}

function drawUp() {
    draw(560, 300);
}

function drawDown() {
    draw(300, 560);
}

// Source Gain's pictures, from its first row to its last, and back; the end of their names tells the language.
function sourceGain(end, title) {
    shot("source_gain" + end + ".png", "Source gain" + title);
    drawUp();
    shot("source_gain_scrolled" + end + ".png", "Source gain, scrolled" + title);
    drawUp();
    drawUp();
    shot("source_gain_end" + end + ".png", "Source gain, at its end" + title);
    drawDown();
    drawDown();
    drawDown();
}

var tabs = [
    ["key_eq", "eq", "EQ"],
    ["key_crossover", "crossover", "Crossover"],
    ["key_timing", "timing", "Timing"],
    ["key_factoryeq", "factoryeq", "Factory EQ"],
];

shot("home.png", "Home screen");
press("tile_audiosetting");
shot("home_pressed.png", "Home screen, Audio settings pressed");
release();
settle();

shot("general.png", "General");
press("key_advanced");
shot("general_pressed.png", "General, Advanced pressed");
move(600, 560);
release();
use("key_Subwoofer");
use("key_subvol_next");
use("key_Phase_180");
drag("settings::balanceFaderControl", [[130, 130], [180, 60], [200, 70]]);
settle();
shot("general_subwoofer.png", "General, subwoofer on, reversed, sound placed front right");
use("key_defeat");
settle();
shot("general_defeat.png", "General, Defeat on");
use("key_defeat");

for (var i = 0; i < tabs.length; ++i) {
    use(tabs[i][0]);
    settle();
    shot(tabs[i][1] + ".png", tabs[i][2]);
}

press("key_hiphop");
shot("factoryeq_pressed.png", "Factory EQ, Hip Hop pressed");
release();
settle();
shot("factoryeq_hiphop.png", "Factory EQ, Hip Hop");
use("key_eq");
press("key_custom1");
wait(1500);
shot("eq_store.png", "EQ, the curve stored by a long press");
release();
settle();
shot("eq_preset.png", "EQ, a curve of the driver's own");

use("key_crossover");
for (i = 0; i < 6; ++i) {
    use("key_freq_plus");
}
use("key_slope_plus");
use("key_rear");
use("key_freq_plus");
use("key_freq_plus");
use("key_level_minus");
use("key_level_minus");
use("key_sub");
for (i = 0; i < 4; ++i) {
    use("key_freq_plus");
    use("key_level_minus");
}
use("key_slope_minus");
press("key_preset_1");
wait(1600);
release();
settle();
shot("crossover_set.png", "Crossover, three filters, kept as preset 1");
use("Key_update");
use("key_timing");
press("key_fl_plus");
wait(4000);
release();
use("key_rr_plus");
press("key_preset_2");
wait(1600);
release();
settle();
shot("timing_set.png", "Timing, kept as preset 2");
use("key_inches");
settle();
shot("timing_inches.png", "Timing in inches");
use("key_msec");
use("Key_update");

use("key_general");
use("key_advanced");
shot("settings.png", "Settings");
use("Key_001_loudness");
settle();
shot("settings_loudness.png", "Settings, Loudness on");
use("Key_003_source_gain");
settle();
sourceGain("", "");
use("key_return");
use("Key_004_vol_settings");
settle();
shot("volume.png", "Volume settings");
tap("hardkey_volume_up");
shot("volume_overlay.png", "Volume settings, level shown while the hard key turns it");
tap("hardkey_mute");
shot("volume_muted.png", "Volume settings, the sound muted by its hard key");
tap("hardkey_mute");
settle();
drawUp();
shot("volume_scrolled.png", "Volume settings, scrolled");
drawDown();
use("key_return");
use("Key_005_res_audio");
settle();
shot("reset.png", "Reset audio settings");
use("key_return");

home();
mute(true);
shot("home_muted.png", "Home screen, the sound muted");
mute(false);
use("tile_bandadjust");
shot("bandadjust.png", "Band adjust");
for (var b = 0; b < 3; ++b) {
    use("key_left");
}
drag("bands", [[68, 245], [68, 160], [68, 110]]);
shot("bandadjust_custom.png", "Band adjust, a preset changed by hand");
use("key_back");
use("tile_car");
shot("car.png", "The rest of the car");
use("car_call");
shot("call.png", "A call");
use("call_end");

var languages = [["de", "German"], ["fr", "French"], ["es", "Spanish"], ["ja", "Japanese"]];
for (var l = 0; l < languages.length; ++l) {
    var code = languages[l][0];
    var name = languages[l][1];
    language(code);
    car();
    shot("car_" + code + ".png", "The rest of the car, " + name);
    open("audiosetting");
    use("key_general");
    settle();
    shot("general_" + code + ".png", "General, " + name);
    for (var t = 0; t < tabs.length; ++t) {
        use(tabs[t][0]);
        settle();
        shot(tabs[t][1] + "_" + code + ".png", tabs[t][2] + ", " + name);
    }
    use("key_general");
    use("key_advanced");
    shot("settings_" + code + ".png", "Settings, " + name);
    use("Key_003_source_gain");
    settle();
    sourceGain("_" + code, ", " + name);
    use("key_return");
    use("Key_004_vol_settings");
    settle();
    shot("volume_" + code + ".png", "Volume settings, " + name);
    drawUp();
    shot("volume_scrolled_" + code + ".png", "Volume settings, scrolled, " + name);
    drawDown();
    use("key_return");
    use("Key_005_res_audio");
    settle();
    shot("reset_" + code + ".png", "Reset audio settings, " + name);
    use("key_return");
    home();
    mute(true);
    shot("home_muted_" + code + ".png", "Home screen, the sound muted, " + name);
    mute(false);
}

language("en");
open("audiosetting");
use("key_general");
use("key_advanced");
use("Key_005_res_audio");
tap("Key_accept");
wait(pause);
shot("reset_done.png", "Reset audio settings, done");
settle();
