// SPDX-License-Identifier: Apache-2.0
#include "eventhandler.h"

#include "srcdsplctrl.h"

struct EventHandler::Private {
    SrcDsplCtrl control;
};

EventHandler::EventHandler() : d(new Private) {}

EventHandler::~EventHandler() {
    delete d;
}

EventHandler *EventHandler::instance() {
    static EventHandler handler;
    return &handler;
}

SrcDsplCtrl *EventHandler::control() {
    return &d->control;
}
