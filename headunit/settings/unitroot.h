// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace headunit {

/// Sets the folder that stands for the unit's file system. Before openSettings(); empty: the default, a folder below
/// the user's data folder.
void setUnitRoot(const QString &folder);
QString unitRoot();
/// Where a path of the unit ("/media/flash/nvm/...") is on this machine; never outside the root.
QString resolveUnitPath(const QString &path);

}  // namespace headunit
