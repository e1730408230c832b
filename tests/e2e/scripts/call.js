// SPDX-License-Identifier: Apache-2.0
// A call takes the screen in the middle of things.
open("audiosetting");
wait(200);
tap("key_Subwoofer");

// A finger on a key when the screen goes away is no tap.
press("key_subvol_next");
call(true);
expect("call", "visible", true);
expect("Txt_title", "visible", false);
release();
wait(2000);
expect(sound().subwooferLevel === 3);
tap("call_end");
expect("Txt_title", "text", "General");
expect("txt_vol_level", "text", "3");
tap("key_subvol_next");
expect(sound().subwooferLevel === 4);

// The same on the pad: what was reached is sent, and the next touch starts anew.
press("key_subvol_next");
release();
drag("settings::balanceFaderControl", 132, 130, 132 + 60, 130);
call(true);
wait(500);
expect(sound().balance === 10);
tap("hardkey_volume_up");
expect(sound().channelLevel[2] === 17, "the phone is what plays");
expect(sound().channelLevel[0] === 16);
tap("hardkey_home");
expect("home", "visible", true);
call(false);
expect("home", "visible", true);
tap("hardkey_volume_up");
expect(sound().channelLevel[0] === 17);
