// SPDX-License-Identifier: Apache-2.0
// The band-adjust panel: opened from the home screen, heard at once, closed by its back key.
tap("tile_bandadjust");
expect("bandadjust", "visible", true);
expect("home", "visible", false);
expect("txt_name", "text", "Flat");

// Three steps to the left are Rock.
tap("key_left");
tap("key_left");
tap("key_left");
expect("txt_name", "text", "Rock");
expect("val_1", "text", "+4");
expect(sound().eqType === 3);

// The first band: x 38 to 98 and y 60 to 431 of the page area, which starts at y 130.
press(68, 330);
expect("txt_name", "text", "Custom");
expect(sound().eqType === 16);
move(68, 195);
release();
expect("val_0", "text", "+12");
expect(sound().customEq[0] === 12);
expect(store("eq0") === 12);

language("de");
expect("txt_name", "text", "Individuell");
language("en");
tap("key_back");
wait(0);
expect("home", "visible", true);
expect("bandadjust", "visible", false);

// Opened again it shows what is played.
tap("tile_bandadjust");
expect("val_0", "text", "+12");
home();
expect("home", "visible", true);
