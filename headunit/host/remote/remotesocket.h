// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <sys/types.h>

namespace headunit {

/// The file of the socket by which the unit below the present root is controlled: in the folder of the user's session,
/// which is made where it is missing. Empty, with the reason in \a problem, where there is none that belongs to the
/// user alone.
QString remoteSocket(QString *problem);

/// Whether the folder belongs to \a user and nobody else may look into it.
bool belongsToAlone(const QString &folder, uid_t user);

/// Whether the process at the other end of a socket runs for \a user.
bool peerIs(qintptr socket, uid_t user);

}  // namespace headunit
