// SPDX-License-Identifier: Apache-2.0
#include "soundlistener.h"

#include <utility>

namespace headunit {

namespace {

SoundListener &installed() {
    static SoundListener listener;
    return listener;
}

}  // namespace

void setSoundListener(SoundListener listener) {
    installed() = std::move(listener);
}

void notifySound(SoundPart part) {
    if (installed()) {
        installed()(part);
    }
}

}  // namespace headunit
