// SPDX-License-Identifier: Apache-2.0
// The table of the desk's windows. A new one: a folder beside frame/, a class derived from Panel, a row here.

#include "headunit/desk/bridges/curvespanel.h"
#include "headunit/desk/console/consolepanel.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/desk/meters/meterspanel.h"
#include "headunit/desk/recording/recordingpanel.h"
#include "headunit/desk/response/responsepanel.h"
#include "headunit/desk/setups/setupspanel.h"
#include "headunit/desk/tape/tapepanel.h"

#include <iterator>

namespace headunit {

namespace {

template <typename Class> Panel *make(DeskContext &context, QWidget *parent) {
    return new Class(context, parent);
}

constexpr PanelRow rows[] = {
    {"console", DESK_TEXT("Service console"), DESK_TEXT("Calls between the applications and the unit"), "Ctrl+1", true,
     make<ConsolePanel>},
    {"setups", DESK_TEXT("Set-ups"), DESK_TEXT("Keep, compare, undo: what is set, and what was"), "Ctrl+2", true,
     make<SetupsPanel>},
    {"response", DESK_TEXT("Response"), DESK_TEXT("What the loudspeakers and their sum make of every frequency"),
     "Ctrl+3", false, make<ResponsePanel>},
    {"meters", DESK_TEXT("Meters"), DESK_TEXT("How loud each loudspeaker is, and what its limiter takes away"),
     "Ctrl+4", false, make<MetersPanel>},
    {"recording", DESK_TEXT("Recording"), DESK_TEXT("What is touched as a script, and reports of problems"), "Ctrl+6",
     false, make<RecordingPanel>},
    {"curves", DESK_TEXT("Curves of other programs"), DESK_TEXT("Filter lists in, responses and the curve out"),
     "Ctrl+7", false, make<CurvesPanel>},
    {"tape", DESK_TEXT("Tape measure"), DESK_TEXT("Distances of the loudspeakers become their delays"), "Ctrl+8", false,
     make<TapePanel>},
};

}  // namespace

const PanelRow *panelsBegin() {
    return std::begin(rows);
}

const PanelRow *panelsEnd() {
    return std::end(rows);
}

}  // namespace headunit
