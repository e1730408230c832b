#pragma once

#include "settingsmap.h"

namespace headunit {

/// A factory file as it was read: its values, or none and the reason.
struct FactoryState {
    SettingsMap values;
    QString problem;  ///< empty: read; else one line that names the file
};

/// Reads a factory file: key=value lines, [group] lines, comments that begin with ; or #. Values are whole numbers,
/// true, false or text. A file with a fault anywhere gives no values at all.
FactoryState readFactoryFile(const QString &path);
/// The same for the text of a file; the problem does not name it.
FactoryState parseFactoryText(const QByteArray &text);
/// Puts the factory file that ships with this unit at \a path.
void installFactoryFile(const QString &path);

}  // namespace headunit
