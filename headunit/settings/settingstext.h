// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "settingsmap.h"

#include <QByteArray>

namespace headunit {

/// All settings at one moment.
struct Snapshot {
    SettingsMap values;
    qint64 number = 0;  ///< counts the changes ever made; of two snapshots, the one with more is the newer
};

/// The text of a settings file: JSON with the values by key, in key order, and a checksum over everything else. Without
/// it a file is damaged like any other; what people edit are set-ups.
QByteArray settingsToText(const Snapshot &snapshot);
/// The settings of such a text. False with the reason in \a problem if it is none.
bool settingsFromText(const QByteArray &text, Snapshot *snapshot, QString *problem);

}  // namespace headunit
