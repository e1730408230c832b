// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "settingsmap.h"

namespace headunit {

/// A factory file as it was read: its values, or those that this unit ships with and the reason.
struct FactoryState {
    SettingsMap values;
    QString problem;  ///< empty: read; else one line that names the file
    bool missing = false;
};

/// Reads a factory file: key=value lines, [group] lines, comments that begin with ; or #. Values are whole numbers,
/// true, false or text. Of a file that is empty or has a fault anywhere, nothing is used.
FactoryState readFactoryFile(const QString &path);
/// The same for the text of a file: a fault gives no values at all, and the problem does not name the file.
FactoryState parseFactoryText(const QByteArray &text);
/// The values of the factory file that ships with this unit.
SettingsMap shippedFactoryValues();
/// Puts that file at \a path, whole or not at all. Returns what went wrong, one line.
QString installFactoryFile(const QString &path);

}  // namespace headunit
