// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace headunit {

/// Moves what stands at \a path and cannot be used (a damaged file, a folder, a link) out of the way, kept for
/// inspection as NAME.damaged-N: a larger N is newer, and the newest three stay. False with the \a reason if it
/// cannot be moved; nothing at \a path is no failure.
bool setDamagedFileAside(const QString &path, QString *newName, QString *reason);

}  // namespace headunit
