// SPDX-License-Identifier: Apache-2.0
// Another application asks for Volume Settings.
// At the very first opening.
import { settle, use } from "./steps.js";

use("tile_car");
use("car_request");
expect("Txt_title", "text", "Volume Settings");
expect("key_general", "visible", false);
expect(store("SettingTouchPageType") === 3);
use("key_return");
expect("car", "visible", true);
expect(store("SettingTouchPageType") === 0);

// Later, with another page shown last: that page is the one to come back to.
home();
use("tile_audiosetting");
expect("Txt_title", "text", "General");
use("key_timing");
use("Key_close");
use("tile_car");
use("car_request");
expect("Txt_title", "text", "Volume Settings");
use("key_return");
expect("car", "visible", true);
home();
use("tile_audiosetting");
expect("Txt_title", "text", "Timing");

// While it is in front: Back returns to the page, and stays.
request();
expect("Txt_title", "text", "Volume Settings");
use("key_return");
expect("Txt_title", "text", "Timing");
expect("home", "visible", false);
use("key_return");
expect("home", "visible", true);

// Asked for while it is in front, the application still returns to where it was opened from.
use("tile_car");
use("car_request");
request();
settle();
use("key_return");
expect("Txt_title", "text", "Volume Settings");
use("key_return");
use("key_return");
use("key_return");
expect("car", "visible", true);

// Left from Volume Settings by the home key: the next request returns to the one that asked all the same.
home();
use("tile_audiosetting");
use("key_advanced");
use("Key_004_vol_settings");
expect("Txt_title", "text", "Volume Settings");
home();
use("tile_car");
use("car_request");
expect("Txt_title", "text", "Volume Settings");
expect(store("SettingTouchPageType") === 3);
use("key_return");
expect("car", "visible", true);
expect(store("SettingTouchPageType") === 0);
