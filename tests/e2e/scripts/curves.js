// SPDX-License-Identifier: Apache-2.0
// The equaliser as it is heard on a new unit, whose main volume is 16 of 40 and whose subwoofer is off.
import { hears } from "./steps.js";

export var bands = [63, 100, 160, 250, 400, 630, 1000, 1600, 2500, 4000, 6300, 10000, 16000];

// The unit's own curves by type; the other types are flat.
export var curves = {
    1: [1, 3, 5, 0, -1, 0, -2, 0, 3, 1, 0, 3, 1],
    2: [2, 4, 6, 4, 0, 0, 1, 1, 0, 0, 2, 3, 4],
    3: [5, 2, 2, 2, -2, -4, -3, -3, 0, 2, 4, 2, 4],
    4: [1, 2, 2, 1, 0, -1, 1, 1, 2, 2, 1, 2, 2],
    5: [6, 4, 6, 0, 2, 0, 0, 1, 2, 4, 6, 2, 4],
    7: [6, 2, 6, 0, -4, -1, 0, -1, 4, 0, -2, -2, 4],
    8: [10, 6, 0, 0, 6, 2, -2, -1, -4, 2, 6, 2, 4]
};

export function flat() {
    return bands.map(function () {
        return 0;
    });
}

export function hearsCurve(what, gains) {
    var main = -36;
    bands.forEach(function (hz, band) {
        var there = main + gains[band];
        hears(what, hz, [there, there, there, there, -Infinity, -Infinity]);
    });
}
