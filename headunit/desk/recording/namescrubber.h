// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace headunit {

/// What tells who somebody is, as far as a machine knows.
struct PersonalNames {
    QString home;      ///< folder
    QString user;      ///< account
    QString fullName;  ///< that the account belongs to
    QString host;
};

PersonalNames personalNames();

/// \a text without them: in their place stand ~, user, somebody and host. A name that is part of a longer word stays.
QString withoutNames(QString text, const PersonalNames &names);

}  // namespace headunit
