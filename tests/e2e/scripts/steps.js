// SPDX-License-Identifier: Apache-2.0
// The common parts of the scripts.

// Lets a touch come to its end: longer than a key blinks, and than the tabs ignore a second tap.
export function settle() {
    wait(200);
}

export function use(place, y) {
    tap(place, y);
    settle();
}

// The level at each loudspeaker (front left and right, rear, subwoofer) gives of a tone, in dB, is as expected.
export function hears(what, hz, expected, input) {
    var is = heard(hz, input || 0).db;
    for (var i = 0; i < 6; ++i) {
        var same = is[i] === expected[i] || Math.abs(is[i] - expected[i]) < 0.05;
        expect(same, what + ": loudspeaker " + i + " gives " + is[i] + " dB at " + hz + " Hz, not " + expected[i]);
    }
}
