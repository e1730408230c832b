// SPDX-License-Identifier: Apache-2.0
#pragma once

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
    SliderDecibels,  ///< the same of a slider's level, which counts down from 12
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

}  // namespace headunit
