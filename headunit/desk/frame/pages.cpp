// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/pages.h"

#include "headunit/desk/frame/desktext.h"
#include "translator.h"

#include <QWidget>

namespace headunit {

namespace {

struct PageRow {
    const char *className;
    int titleId;          ///< of the unit's texts; 0: the next
    const char *english;  ///< of the desk's
};

constexpr PageRow rows[] = {
    {"Audiosetting_right_general_widget", 1065, nullptr},
    {"Audiosetting_right_eq_widget", 1066, nullptr},
    {"Audiosetting_right_factoryeq_widget", 1067, nullptr},
    {"Audiosetting_right_crossover_widget", 1068, nullptr},
    {"Audiosetting_right_timing_widget", 1069, nullptr},
    {"AudiosettingsRoot", 1070, nullptr},
    {"Audiovolumsettings", 1071, nullptr},
    {"Audiosourcegainsettings", 1072, nullptr},
    {"Audiosourcegainsettings_b", 1072, nullptr},
    {"Audiosettingsreset", 0, DESK_TEXT("Reset")},
    {"AudiosettingsTop", 0, DESK_TEXT("Top bar")},
    {"AudiosettingsTab", 0, DESK_TEXT("Tab bar")},
    {"audiosetting::EQWidget", 20018, nullptr},
    {"headunit::HomeScreen", 0, DESK_TEXT("Home screen")},
    {"headunit::CarScreen", 20002, nullptr},
    {"headunit::CallScreen", 20010, nullptr},
    {"headunit::StatusBar", 0, DESK_TEXT("Status bar")},
    {"headunit::HardKeys", 0, DESK_TEXT("Hard keys")},
};

const PageRow *rowOf(const QLatin1String &className) {
    for (const PageRow &row : rows) {
        if (className == QLatin1String(row.className)) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace

QString pageOf(const QWidget *widget) {
    for (; widget; widget = widget->parentWidget()) {
        if (const PageRow *const row = rowOf(QLatin1String(widget->metaObject()->className()))) {
            return QString::fromLatin1(row->className);
        }
    }
    return QString();
}

QString frontPage(const QWidget *screen) {
    // In the middle of the area that every page covers.
    const QPoint place(screen->width() * 9 / 16, screen->height() * 5 / 8);
    return pageOf(screen->childAt(place));
}

QString pageTitle(const QString &page) {
    const PageRow *const row = rowOf(QLatin1String(page.toLatin1()));
    return !row ? page : row->titleId ? Translator::translate(row->titleId) : deskText(row->english);
}

}  // namespace headunit
