// A finger that rests on something while another application's request takes the page away.
var blink = 200;

open("audiosetting");
wait(blink);
tap("key_Subwoofer");
wait(blink);

function takenAway(place, x, y) {
    press(place);
    request();
    expect("Txt_title", "text", "Volume Settings");
    move(x, y);
    wait(blink);
    release();
    wait(blink);
    expect("Txt_title", "text", "Volume Settings");
    tap("key_return");
    wait(blink);
    expect("Txt_title", "text", "General");
}

takenAway("key_subvol_next", 495, 532);
expect("txt_vol_level", "text", "3");
expect(sound().subwooferLevel === 3);

takenAway("key_defeat", 459, 262);
expect("key_defeat", "checked", false);
expect(sound().defeat === false);

// The pad took the press; what follows moves nothing.
takenAway("settings::balanceFaderControl", 900, 352);
expect("txt_bal_val", "text", "0");
expect(sound().balance === 0);

// Nothing is left held.
tap("key_subvol_next");
wait(blink);
expect("txt_vol_level", "text", "4");
