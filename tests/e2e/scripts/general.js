// SPDX-License-Identifier: Apache-2.0
// The General page by finger: screen, store and sound agree after every step.
import { use } from "./steps.js";

open("audiosetting");
expect("Txt_title", "text", "General");
expect("status_bar", "visible", false);
expect("key_Subwoofer", "checked", false);
expect("key_subvol_prev", "enabled", false);
expect("txt_vol_level", "text", "3");
expect("key_Phase_0", "checked", true);

// Off, the keys of the level do nothing.
use("key_subvol_next");
expect(store("subwooferLevel") === undefined, "a disabled key writes nothing");

use("key_Subwoofer");
expect(store("Setup_Sub") == true);
expect(sound().subwooferLevel === 3);
for (var i = 0; i < 20; ++i) {
    use("key_subvol_next");
}
expect("txt_vol_level", "text", "15");
expect("key_subvol_next", "enabled", false);
expect(store("subwooferLevel") === 15);
expect(sound().subwooferLevel === 15);
use("key_subvol_prev");
expect(sound().subwooferLevel === 14);
use("key_Subwoofer");
expect(sound().subwooferLevel === 0, "off is silent");
expect(store("subwooferLevel") === 14, "the level is kept");
use("key_Subwoofer");
expect(sound().subwooferLevel === 14);

use("key_Phase_180");
expect("key_Phase_0", "checked", false);
expect(store("subwooferphase") === 1);
expect(sound().subwooferPhase === 1);

// The pad: a touch counts from the middle in steps of 6 pixels, and reaches the sound 100 ms later.
var middleX = 132;
var middleY = 130;
drag("settings::balanceFaderControl", middleX, middleY, middleX - 36, middleY - 24);
expect("txt_bal_val", "text", "-6");
expect("txt_fad_val", "text", "4");
wait(100);
expect(sound().balance === -6);
expect(sound().fader === -4, "the front is negative in the sound");
expect(store("SoundFieldBalance") === -6);
expect(store("SoundFieldFader") === -4);

use("Key_balance_right");
expect(sound().balance === -5);
use("Key_fade_rear");
expect(sound().fader === -3);

// Defeat: nothing but itself and Advanced can be used, and what it hides comes back.
use("key_defeat");
expect(sound().defeat === true);
expect("key_Subwoofer", "enabled", false);
expect("key_eq", "enabled", false);
expect("key_advanced", "enabled", true);
expect("txt_bal_val", "text", "0");
use("Key_balance_right");
expect(sound().balance === -5, "a disabled key sends nothing");
use("key_defeat");
expect(sound().defeat === false);
expect("key_eq", "enabled", true);
expect("txt_bal_val", "text", "-5");
expect("txt_fad_val", "text", "3");

use("Audiosetting_right_general_widget/Key_update");
expect(sound().balance === 0);
expect(sound().fader === 0);
expect("txt_bal_val", "text", "0");

// A finger that slides off.
press("key_advanced");
move(600, 590);
release();
expect("Txt_title", "text", "General");
