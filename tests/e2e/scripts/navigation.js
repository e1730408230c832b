// SPDX-License-Identifier: Apache-2.0
// Every way between the pages, and out.
import { settle, use } from "./steps.js";

function title(text) {
    expect("Txt_title", "text", text);
}

use("tile_audiosetting");
title("General");
use("key_eq");
title("Equalizer");
use("key_crossover");
title("Crossover");
expect("AudiosettingsTop/Key_update", "visible", true);
use("key_timing");
title("Timing");
use("key_factoryeq");
title("Factory EQ");
expect("AudiosettingsTop/Key_update", "visible", false);

// A second tap within the guard is undone.
tap("key_general");
wait(100);
tap("key_eq");
title("General");
expect("key_general", "checked", true);
expect("key_eq", "checked", false);
settle();

use("key_advanced");
title("Audio Settings");
use("Key_003_source_gain");
title("Source Gain");
expect("key_general", "visible", false);
use("key_return");
title("Audio Settings");
use("Key_004_vol_settings");
title("Volume Settings");
use("key_return");
title("Audio Settings");
use("Key_005_res_audio");
expect("Key_Reject", "visible", true);
use("Key_Reject");
title("Audio Settings");
use("key_return");
title("General");

// Back leaves, and the page stays the one to come back to.
use("key_timing");
use("key_return");
expect("home", "visible", true);
expect("status_bar", "visible", true);
use("tile_audiosetting");
title("Timing");
// Close leaves from every depth.
use("key_general");
use("key_advanced");
use("Key_close");
expect("home", "visible", true);
use("tile_audiosetting");
title("Audio Settings");

// Back returns to where the application was opened from.
home();
tap("tile_car");
tap("hardkey_back");
expect("home", "visible", true);
