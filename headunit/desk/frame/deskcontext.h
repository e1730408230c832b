// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/deskhost.h"
#include "headunit/desk/frame/touchlog.h"
#include "headunit/desk/setups/changehistory.h"

namespace headunit {

/// The panels' common context: the unit that they work on, and what is touched there, and what was changed.
class DeskContext {
public:
    explicit DeskContext(DeskHost &theHost) : host(theHost), touches(theHost.window()), history(theHost, touches) {}

    DeskHost &host;
    TouchLog touches;
    ChangeHistory history;
};

}  // namespace headunit
