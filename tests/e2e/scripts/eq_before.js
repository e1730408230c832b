// A curve drawn by finger and kept by holding a key; eq_after.js finds it after a restart.
var guard = 400;

function use(place) {
    tap(place);
    wait(guard);
}

open("audiosetting");
wait(guard);
use("key_eq");
var before = sound().customEq[0];
press(177, 283);
move(177, 230);
release();
wait(guard);
expect(sound().customEq[0] !== before, "the finger moves the band");
expect(sound().customEq[1] === sound().customEq[12], "and no other");
press("key_custom1");
wait(2000);
release();
wait(guard);
expect(store("customeq1_0") !== undefined);
setStore("test/band", sound().customEq[0]);
