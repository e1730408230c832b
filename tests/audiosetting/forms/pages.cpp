// SPDX-License-Identifier: Apache-2.0
#include "tests/audiosetting/forms/pages.h"

#include "crossover/audiosetting_right_crossover_widget.h"
#include "eq/audiosetting_right_eq_widget.h"
#include "eq/audiosetting_right_factoryeq_widget.h"
#include "eq/eqwidget.h"
#include "general/audiosetting_right_general_widget.h"
#include "navigation/audiosettingsroot.h"
#include "navigation/audiosettingstab.h"
#include "navigation/audiosettingstop.h"
#include "navigation/c20_060_audiosetting_container_widget.h"
#include "timing/audiosetting_right_timing_widget.h"
#include "ui_c20_060_setup_container.h"
#include "volume/audiosettingsreset.h"
#include "volume/audiosourcegainsettings.h"
#include "volume/audiosourcegainsettings_b.h"
#include "volume/audiovolumsettings.h"

#include <QHash>

#include <functional>

namespace {

/// The container with the form object that it borrows.
class Container : private Ui::c20_060_setup_container, public c20_060_audiosetting_container_widget {
public:
    Container() : c20_060_audiosetting_container_widget(nullptr, this) {}
};

template <typename Page> std::unique_ptr<QWidget> page() {
    return std::make_unique<Page>(nullptr);
}

}  // namespace

std::unique_ptr<QWidget> pageOf(const QString &form) {
    using Make = std::function<std::unique_ptr<QWidget>()>;
    static const QHash<QString, Make> pages{
        {"Audiosetting_right_crossover_widget", page<Audiosetting_right_crossover_widget>},
        {"Audiosetting_right_eq_widget", page<Audiosetting_right_eq_widget>},
        {"Audiosetting_right_factoryeq_widget", page<Audiosetting_right_factoryeq_widget>},
        {"Audiosetting_right_general_widget", page<Audiosetting_right_general_widget>},
        {"Audiosetting_right_timing_widget", page<Audiosetting_right_timing_widget>},
        {"AudiosettingsRoot", page<AudiosettingsRoot>},
        {"AudiosettingsTab", page<AudiosettingsTab>},
        {"AudiosettingsTop", page<AudiosettingsTop>},
        {"Audiosettingsreset", page<Audiosettingsreset>},
        {"Audiosourcegainsettings", page<Audiosourcegainsettings>},
        {"Audiosourcegainsettings_b", page<Audiosourcegainsettings_b>},
        {"Audiovolumsettings", page<Audiovolumsettings>},
        {"c20_060_setup_container", [] { return std::make_unique<Container>(); }},
        {"eq_adjust_fragment", page<audiosetting::EQWidget>},
    };
    const Make make = pages.value(form);
    return make ? make() : nullptr;
}
