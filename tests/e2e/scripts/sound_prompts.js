// SPDX-License-Identifier: Apache-2.0
// Prompts beside the source that plays, begun and ended on the Car screen, heard at the loudspeakers.
import { hears, settle, use } from "./steps.js";

var silent = -Infinity;

function everywhere(db) {
    return [db, db, db, db, silent, silent];
}

// Neither equaliser, loudness, balance nor fader touches prompts, and they are heard in front.
function inFront(db) {
    return [db, db, silent, silent, silent, silent];
}

volume(0, 40);
for (var type = 1; type < 8; ++type) {
    volume(type, 40);
}
car();
hears("nothing", 1000, everywhere(0));

// Each with what it does to the source that plays, and to an announcement
var prompts = [["ringtone", 1, silent, silent], ["phone", 2, silent, silent], ["navigation", 3, -12, -12],
               ["voice", 4, -12, -12], ["announcement", 5, silent, 0], ["beep", 6, 0, 0]];
prompts.forEach(function (prompt, number) {
    var name = prompt[0];
    use("car_prompt_" + name);
    expect("car_prompt_" + name, "checked", true);
    sound().activePrompts.forEach(function (active, other) {
        expect(active === (other === number), name + ": prompt " + other);
    });
    hears(name + ", what plays", 1000, everywhere(prompt[2]));
    hears(name + ", an announcement", 1000, inFront(prompt[3]), 5);
    prompts.forEach(function (other) {
        if (other[0] !== "announcement") {
            hears(name + ", " + other[0], 1000, inFront(0), other[1]);
        }
    });
    use("car_prompt_" + name);
    expect("car_prompt_" + name, "checked", false);
    hears("no " + name, 1000, everywhere(0));
});

// Several at once: the one that takes most counts, and comes back as they end.
prompt("navigation", true);
prompt("phone", true);
expect("car_prompt_phone", "checked", true);
hears("guidance during a call", 1000, everywhere(silent));
hears("guidance during a call", 1000, inFront(0), 3);
prompt("phone", false);
hears("guidance after a call", 1000, everywhere(-12));
prompt("announcement", true);
hears("an announcement during guidance", 1000, inFront(-12), 5);
hears("an announcement during guidance, what plays", 1000, everywhere(silent));
prompt("announcement", false);

// Mute silences what plays alone, and is still there when the prompt has ended.
mute(true);
expect("status_bar", "silent", true);
hears("muted", 1000, everywhere(silent));
hears("muted, guidance", 1000, inFront(0), 3);
prompt("navigation", false);
hears("muted, no guidance", 1000, everywhere(silent));
mute(false);
expect("status_bar", "silent", false);
hears("heard again", 1000, everywhere(0));

// A call silences what plays as long as it lasts.
call(true);
expect(sound().activePrompts[1] === true);
hears("a call", 1000, everywhere(silent));
call(false);
hears("after a call", 1000, everywhere(0));

// The driver's taste, set by finger, colours what plays and no prompt.
open("audiosetting");
settle();
drag("settings::balanceFaderControl", [[130, 130], [5, 255]]);
settle();
var placed = sound();
expect(placed.balance < 0 && placed.fader > 0);
use("key_factoryeq");
use("key_Rock");
var main = heard(63).db;
expect(main[0] < -5, "what plays is far from the right and from the front: " + main);
[1, 2, 3, 4, 5, 6].forEach(function (input) {
    [63, 1000, 10000].forEach(function (hz) {
        hears("placed and coloured, input " + input, hz, inFront(0), input);
    });
});

// The crossover of the front pair protects its loudspeakers from prompts, too; Defeat opens it for them as for the rest.
use("key_crossover");
for (var i = 0; i < 4; ++i) {
    use("key_freq_plus");
}
use("key_level_minus");
var filtered = sound().front;
expect(filtered.freq === 4 && filtered.level === 11);
hears("at the high-pass's corner", 80, inFront(-1 - 3.01), 3);
expect(heard(1000, 3).db[0] < -0.9 && heard(1000, 3).db[0] > -1.1);
use("key_general");
use("key_defeat");
hears("Defeat, guidance", 80, inFront(0), 3);
prompt("navigation", true);
hears("Defeat, what plays steps back all the same", 80, everywhere(-12));
prompt("navigation", false);
hears("Defeat", 80, everywhere(0));
