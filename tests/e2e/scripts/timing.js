// Delays set by finger reach the sound, a held key repeats, and Flat takes them away again.
var guard = 200;

function use(place) {
    tap(place);
    wait(guard);
}

open("audiosetting");
wait(guard);
use("key_timing");
use("key_fl_plus");
use("key_fl_plus");
use("key_rr_plus");
expect(sound().delay[0] === 2);
expect(sound().delay[3] === 1);
expect(sound().delay[1] === 0);
use("key_fl_minus");
expect(sound().delay[0] === 1);

press("key_sl_plus");
wait(5000);
release();
var held = sound().delay[4];
expect(held > 10, "held for 5 s, repeating after 1 s each 0.2 s: " + held);
wait(5000);
expect(sound().delay[4] === held, "released is released");

// Flat asks the Timing page only.
use("AudiosettingsTop/Key_update");
for (var i = 0; i < 6; ++i) {
    expect(sound().delay[i] === 0);
}
