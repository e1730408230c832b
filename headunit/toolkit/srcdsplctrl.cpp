// SPDX-License-Identifier: Apache-2.0
#include "srcdsplctrl.h"

#include "headunit/toolkit/sourcedisplay.h"

namespace {

int currentDisplay = 0;

}  // namespace

namespace headunit {

void setCurrentSourceDisplay(int number) {
    currentDisplay = number;
}

}  // namespace headunit

SrcDsplCtrl::SrcDsplCtrl() : d(nullptr) {}

SrcDsplCtrl::~SrcDsplCtrl() = default;

int SrcDsplCtrl::currentDspl() {
    return currentDisplay;
}
