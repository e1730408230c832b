// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/setups/setuptable.h"
#include "headunit/settings/settingsmap.h"

namespace headunit {

/// The number that \a value holds in \a settings.
int setupNumber(const SetupValue &value, const SettingsMap &settings);
/// A number as a set-up file has it: "0.5 ms".
QString setupNumberText(const SetupValue &value, int number);

/// The outcome of reading the text of a value.
struct SetupNumber {
    int number = 0;
    QString problem;  ///< why it is none; nothing of the file is to be used
    QString remark;   ///< what was taken in its place
};
SetupNumber parseSetupNumber(const SetupValue &value, const QString &text);

}  // namespace headunit
