// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/settings/settingsmap.h"

#include <QString>
#include <QVector>

namespace headunit {

/// How a value of a set-up is written.
enum class SetupUnit {
    Number,          ///< 3
    Switch,          ///< on, off
    Steps,           ///< 4 steps
    Decibels,        ///< -3 dB
    BandDecibels,    ///< the same of a value that counts from 12
    SlotDecibels,    ///< the same of a slider's level, which counts down from 12
    Slope,           ///< 12 dB/oct of 2
    Milliseconds,    ///< 0.5 ms of 5
    Degrees,         ///< 180 deg of 1
    Pixels,          ///< 506 px
    FrontFrequency,  ///< 63 Hz of an index; off
    RearFrequency,
    SubwooferFrequency,
};

/// One value of a set-up.
struct SetupValue {
    QString name;  ///< in a set-up file: delay.front_left
    QString key;   ///< in the store: timing/DATA_TYPE0
    SetupUnit unit;
    int low;
    int high;
    int defaultValue;  ///< of the key's readers
};

/// All of them, in the order of a set-up file.
const QVector<SetupValue> &setupValues();
/// The value behind a key of the store; null for a key that is no part of a set-up.
const SetupValue *setupValueOfKey(const QString &key);

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
