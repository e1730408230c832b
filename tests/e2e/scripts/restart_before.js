// SPDX-License-Identifier: Apache-2.0
// Leaves a unit that is unlike the factory's; restart_after.js finds it again.
import { settle, use } from "./steps.js";

tap("tile_car");
tap("car_language_de");
open("audiosetting");
settle();
use("key_Subwoofer");
use("key_subvol_next");
use("key_subvol_next");
use("key_Phase_180");
drag("settings::balanceFaderControl", 132, 130, 132 + 42, 130 + 30);
settle();
use("key_advanced");
use("Key_001_loudness");
volume(3, 33);
use("key_return");
use("key_defeat");
