#pragma once

#include "headunit/desk/frame/deskhost.h"
#include "headunit/desk/frame/touchlog.h"

namespace headunit {

/// What the panels share: the unit that they work on, and what is touched there.
class DeskContext {
public:
    explicit DeskContext(DeskHost &theHost) : host(theHost), touches(theHost.window()) {}

    DeskHost &host;
    TouchLog touches;
};

}  // namespace headunit
