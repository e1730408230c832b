// SPDX-License-Identifier: Apache-2.0
// A finger that rests on something while another application's request takes the page away.
import { settle } from "./steps.js";

open("audiosetting");
settle();
tap("key_Subwoofer");
settle();

function takenAway(place, x, y) {
    press(place);
    request();
    expect("Txt_title", "text", "Volume Settings");
    move(x, y);
    settle();
    release();
    settle();
    expect("Txt_title", "text", "Volume Settings");
    tap("key_return");
    settle();
    expect("Txt_title", "text", "General");
}

takenAway("key_subvol_next", 495, 532);
expect("txt_vol_level", "text", "3");
expect(sound().subwooferLevel === 3);

takenAway("key_defeat", 459, 262);
expect("key_defeat", "checked", false);
expect(sound().defeat === false);

// The pad took the press; what follows moves nothing.
takenAway("settings::balanceFaderControl", 900, 352);
expect("txt_bal_val", "text", "0");
expect(sound().balance === 0);

// Nothing is left held.
tap("key_subvol_next");
settle();
expect("txt_vol_level", "text", "4");
