// SPDX-License-Identifier: Apache-2.0
// The rest of the car: sources and channels go round, levels stop at their ends.
tap("tile_car");
tap("car_source_next");
expect(sound().activeSource === 1);
tap("car_source_prev");
tap("car_source_prev");
expect(sound().activeSource === 6);

tap("car_level_plus");
expect(sound().channelLevel[0] === 17);
// Five steps on is traffic announcements; channel 5 has no name and is left out.
for (var i = 0; i < 5; ++i) {
    tap("car_channel_next");
}
tap("car_level_minus");
expect(sound().channelLevel[6] === 15);
expect(sound().channelLevel[5] === 16);
tap("car_channel_next");
for (i = 0; i < 30; ++i) {
    tap("car_level_plus");
}
expect(sound().channelLevel[0] === 40);
tap("car_channel_prev");
for (i = 0; i < 20; ++i) {
    tap("car_level_minus");
}
expect(sound().channelLevel[6] === 0);
