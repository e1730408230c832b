// SPDX-License-Identifier: Apache-2.0
// Everything is changed, then reset: screen, store and sound are those of the factory.
import { settle, use } from "./steps.js";

open("audiosetting");
settle();
use("key_Subwoofer");
use("key_subvol_next");
use("key_Phase_180");
drag("settings::balanceFaderControl", 132, 130, 192, 70);
settle();
use("key_advanced");
use("Key_001_loudness");
expect(sound().loudness === true);
expect(sound().balance === 10);
expect(sound().subwooferPhase === 1);

use("Key_005_res_audio");
tap("Key_accept");
expect("txt_reset_success", "visible", true);
expect("Key_accept", "visible", false);
wait(2499);
expect("txt_reset_success", "visible", true);
wait(1);
expect("txt_reset_success", "visible", false);
expect("Key_001_loudness", "checked", false);
expect(sound().loudness === false);
expect(sound().balance === 0);
expect(sound().fader === 0);
expect(sound().subwooferPhase === 0);
for (var channel = 0; channel < 8; ++channel) {
    expect(sound().channelLevel[channel] === 15);
}
use("key_return");
expect("key_Subwoofer", "checked", false);
expect("txt_vol_level", "text", "3");
expect("key_Phase_0", "checked", true);
expect("txt_bal_val", "text", "0");
