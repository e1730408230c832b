// SPDX-License-Identifier: Apache-2.0
// Levels changed on the page, by the keys beside the screen, and by another application.
import { settle, use } from "./steps.js";

open("audiosetting");
settle();
use("key_advanced");
use("Key_004_vol_settings");
use("key_main_plus");
expect(sound().channelLevel[0] === 17);
use("key_main_minus");
use("key_main_minus");
expect(sound().channelLevel[0] === 15);
// From outside, while the page is shown: the next step goes on from there.
volume(0, 30);
use("key_main_plus");
expect(sound().channelLevel[0] === 31);
use("hardkey_volume_down");
expect(sound().channelLevel[0] === 30);
use("key_main_plus");
expect(sound().channelLevel[0] === 31);
expect(store("inputgain0") === 31);
