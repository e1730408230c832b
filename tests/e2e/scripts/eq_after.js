// The curve of eq_before.js: in the sound before any page is opened.
expect(sound().customEq[0] === store("test/band"));
expect(sound().eqType >= 16);
