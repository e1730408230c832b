#include "eventhandler.h"

#include "srcdsplctrl.h"

struct EventHandler::Private {};

EventHandler::EventHandler() : d(nullptr) {}

EventHandler::~EventHandler() = default;

EventHandler *EventHandler::instance() {
    static EventHandler handler;
    return &handler;
}

SrcDsplCtrl *EventHandler::control() {
    static SrcDsplCtrl controller;
    return &controller;
}
