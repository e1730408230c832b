// SPDX-License-Identifier: Apache-2.0
// The unit was switched off and on: everything is as it was left, before any page was opened, and on the page.
expect(sound().subwooferLevel === 5);
expect(sound().subwooferPhase === 1);
expect(sound().balance === 7);
expect(sound().fader === 5);
expect(sound().loudness === true);
expect(sound().defeat === true);
expect(sound().channelLevel[3] === 33);

open("audiosetting");
wait(200);
expect("Txt_title", "text", "Allgemein");
expect("key_defeat", "checked", true);
expect("txt_vol_level", "text", "5");
expect("key_Subwoofer", "checked", true);
expect("key_Subwoofer", "enabled", false);
tap("key_defeat");
expect("key_Subwoofer", "enabled", true);
expect("key_Phase_180", "checked", true);
expect("txt_bal_val", "text", "7");
expect("txt_fad_val", "text", "-5");
tap("key_advanced");
expect("Key_001_loudness", "checked", true);
