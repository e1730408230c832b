// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Equaliser curves of the audio service, exchanged as plain integers.
///
/// Values below AudioEQCustom are presets, AudioEQCustom and above are curves of the user. Every integer may
/// cross the boundary: a caller that steps through the curves also passes values that have no name here.
enum AudioEQType : int {
    AudioEQFlat = 0,
    AudioEQPop = 2,
    AudioEQRock = 3,
    AudioEQElectronic = 5,
    AudioEQJazz = 7,
    AudioEQHipHop = 8,
    AudioEQCustom = 16,  ///< the live custom curve; 16 to 20 also name the stored curves 1 to 5
};
