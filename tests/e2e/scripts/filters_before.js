// SPDX-License-Identifier: Apache-2.0
// Leaves filters and delays that are unlike the factory's; filters_after.js finds them again.
import { use } from "./steps.js";

open("audiosetting");
use("key_crossover");
use("key_freq_plus");
use("key_sub");
use("key_slope_plus");
use("key_level_minus");
press("key_preset_1");
wait(1600);
release();
use("key_timing");
use("key_fr_plus");
use("key_sr_plus");
use("key_inches");
// A value out of range in the store is within it in the sound.
setStore("timing/DATA_TYPE2", 4711);
setStore("crossover/rearslope", -7);
setStore("crossover/rearfreq", 6);
