// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace audiosetting {

/// Ids of the pages, as the container counts them. The tab bar's button ids are those of the tab pages.
enum PageId {
    PageGeneral = 0,
    PageEq = 1,
    PageCrossover = 2,
    PageTiming = 3,
    PageFactoryEq = 4,
    PageVolume = 5,
    PageSourceGain = 6,
    PageSettingsRoot = 7,  ///< also while the reset dialog lies over it
};

/// Settings that the top bar's Flat key resets.
enum FlatType {
    FlatNone = 0,
    FlatCrossover = 1,
    FlatTimeDelay = 2,
};

}  // namespace audiosetting
