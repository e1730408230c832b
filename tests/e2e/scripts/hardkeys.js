// SPDX-License-Identifier: Apache-2.0
// The keys beside the screen.
tap("hardkey_volume_up");
expect("level_overlay", "visible", true);
expect(sound().channelLevel[0] === 17);
wait(1999);
expect("level_overlay", "visible", true);
wait(2);
expect("level_overlay", "visible", false);

// Held, it repeats.
press("hardkey_volume_down");
wait(2000);
release();
expect(sound().channelLevel[0] < 10);
expect(sound().channelLevel[0] >= 0);

// Mute is shown, keeps the level, and ends when the volume is turned.
var level = sound().channelLevel[0];
tap("hardkey_mute");
expect(sound().muted === true);
expect("level_overlay", "visible", true);
expect("status_bar", "silent", true);
expect("home", "silence", "Muted");
expect(sound().channelLevel[0] === level);
tap("hardkey_mute");
expect(sound().muted === false);
expect("status_bar", "silent", false);
expect("home", "silence", "");
tap("hardkey_mute");
tap("hardkey_volume_up");
expect(sound().muted === false);
expect(sound().channelLevel[0] === level + 1);
// In an application that hides the status bar the key says it itself.
open("audiosetting");
wait(3000);
tap("hardkey_mute");
expect(sound().muted === true);
expect("level_overlay", "visible", true);
home();
expect("status_bar", "silent", true);
mute(false);
expect("status_bar", "silent", false);

// An application answers Back itself: the hard key does nothing. Home goes home.
open("audiosetting");
wait(200);
tap("hardkey_back");
wait(200);
expect("Txt_title", "text", "General");
tap("hardkey_volume_up");
expect("level_overlay", "visible", true);
// A finger goes through the level to the page below.
tap("key_return");
expect("home", "visible", true);
tap("hardkey_back");
expect("home", "visible", true);
open("audiosetting");
tap("hardkey_home");
expect("home", "visible", true);
