// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "settingsfunc.h"

namespace audiosetting {

/// The key with which another application asks for a page; shared with other applications.
inline QString touchPageKey() {
    return QStringLiteral("SettingTouchPageType");
}

/// The request for Volume Settings; 0 is no request.
const int touchPageVolume = 3;

inline int touchPageRequest() {
    return mem::SettingsFunc::instance()->getValue(touchPageKey(), 0);
}

inline void clearTouchPageRequest() {
    mem::SettingsFunc::instance()->setValue(touchPageKey(), 0, 0, true);
}

}  // namespace audiosetting
