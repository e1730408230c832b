// SPDX-License-Identifier: Apache-2.0
#include "statusbarcontrol.h"

#include "headunit/settings/trace.h"
#include "headunit/toolkit/statusbar.h"

namespace {

bool hidden = false;

std::function<void(bool)> &observer() {
    static std::function<void(bool)> function;
    return function;
}

}  // namespace

namespace headunit {

bool statusBarHidden() {
    return hidden;
}

void setStatusBarObserver(std::function<void(bool)> function) {
    observer() = std::move(function);
}

}  // namespace headunit

namespace cm {

StatusBarControl::StatusBarControl() : d(nullptr) {}

StatusBarControl::~StatusBarControl() = default;

StatusBarControl *StatusBarControl::instance() {
    static StatusBarControl control;
    return &control;
}

void StatusBarControl::sethide(bool hide) {
    HEADUNIT_TRACE_KIND(Window, headunit::traceCall("sethide", {hide}),
                        hide ? QStringLiteral("hide the status bar") : QStringLiteral("show the status bar"));
    if (hidden == hide) {
        return;
    }
    hidden = hide;
    if (observer()) {
        observer()(hide);
    }
}

}  // namespace cm
