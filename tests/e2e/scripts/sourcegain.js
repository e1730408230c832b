// SPDX-License-Identifier: Apache-2.0
// Gains of the sources, and that they are the sound's again after the page was left.
import { settle, use } from "./steps.js";

open("audiosetting");
settle();
use("key_advanced");
use("Key_003_source_gain");
use("key_radio_plus");
use("key_radio_plus");
expect(sound().sourceGain[0] === 12);
expect(store("audioinputgain0") === 2);
use("key_androidauto_minus");
expect(sound().sourceGain[4] === 9);
use("key_return");
use("Key_003_source_gain");
use("key_radio_minus");
expect(sound().sourceGain[0] === 11);
expect(store("audioinputgain0") === 1);
