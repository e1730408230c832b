// Filters set by finger reach the sound; Flat takes them away again.
var guard = 200;

function use(place) {
    tap(place);
    wait(guard);
}

open("audiosetting");
wait(guard);
use("key_crossover");
use("key_front");
use("key_freq_plus");
use("key_freq_plus");
use("key_slope_plus");
use("key_level_minus");
expect(sound().front.freq === 2);
expect(sound().front.slope === 2);
expect(sound().front.level === 11);
use("key_sub");
use("key_freq_plus");
expect(sound().subwoofer.freq === 1);
expect(sound().rear.freq === 0);
expect(store("crossover/frontfreq") === 2);

// The other pages leave it alone.
use("key_timing");
use("key_general");
use("key_crossover");
expect(sound().front.freq === 2);

use("AudiosettingsTop/Key_update");
expect(sound().front.freq === 0);
expect(sound().front.slope === 1);
expect(sound().front.level === 12);
expect(sound().subwoofer.freq === 0);
