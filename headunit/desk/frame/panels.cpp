// The table of the desk's windows. A new one: a folder beside frame/, a class derived from Panel, a row here.

#include "headunit/desk/console/consolepanel.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/panel.h"

#include <iterator>

namespace headunit {

namespace {

template <typename Class> Panel *make(DeskContext &context, QWidget *parent) {
    return new Class(context, parent);
}

constexpr PanelRow rows[] = {
    {"console", DESK_TEXT("Service console"), DESK_TEXT("What happens between the applications and the unit"), "Ctrl+1",
     true, make<ConsolePanel>},
};

}  // namespace

const PanelRow *panelsBegin() {
    return std::begin(rows);
}

const PanelRow *panelsEnd() {
    return std::end(rows);
}

}  // namespace headunit
