// SPDX-License-Identifier: Apache-2.0
// The equaliser: a curve, a change of it, saved in a preset; the next start plays and shows the same.
import { settle, use } from "./steps.js";

open("audiosetting");
settle();
use("key_factoryeq");
use("key_Rock");
expect(sound().eqType === 3);
use("key_eq");

// The first slider: x 159 to 195; its lowest level is touched at y 135 of 164, from 204 on the screen.
press(177, 345);
expect(sound().eqType === 3, "nothing is sent before the timer");
wait(80);
expect(sound().eqType === 16);
expect(sound().customEq[0] === 0);
expect(sound().customEq[1] === 14, "the rest of the curve is Rock");
release();

press("key_custom2");
wait(1500);
release();
expect("key_custom2", "checked", true);
expect("Txt_custom2", "visible", true);
expect(store("EqPresetSwitch1") === true);
expect(store("customeq2_0") === 24);

use("key_flat");
expect(sound().eqType === 0);
expect("key_custom2", "checked", false);
use("key_custom2");
expect(sound().eqType === 16);
expect(sound().customEq[0] === 0);
expect(sound().customEq[12] === 16);
wait(500);
