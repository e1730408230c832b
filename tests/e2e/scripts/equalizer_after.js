// SPDX-License-Identifier: Apache-2.0
// After a restart the curve sounds before any page exists, and its preset is selected.
expect(sound().eqType === 16);
expect(sound().customEq[0] === 0);
expect(sound().customEq[1] === 14);
expect(sound().customEq[12] === 16);
open("audiosetting");
wait(400);
tap("key_eq");
wait(400);
expect("key_custom2", "checked", true);
expect("Txt_custom2", "visible", true);
