// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1String>

namespace headunit {

/// The request of another application to have Audio Settings open its Volume Settings page.
const QLatin1String pageRequestKey("SettingTouchPageType");
constexpr int volumePageRequest = 3;

}  // namespace headunit
