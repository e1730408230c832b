// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/host/remote/remotecontrol.h"

namespace headunit {

// Remote control, from the library that is loaded for it.

/// See StartRemoteEntry.
QObject *startRemote(ScriptTarget &target, QString *problem);
/// See ControlEntry.
int doControl(const QString &command);

}  // namespace headunit
