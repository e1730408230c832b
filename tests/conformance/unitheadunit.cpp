// SPDX-License-Identifier: Apache-2.0
// Facts for the conformance kit about the reference head unit.

#include "conformance/unit.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/unitapplication.h"
#include "headunit/virtualtime/virtualtime.h"

namespace {

void prepare() {
    headunit::prepareUnitApplication();
    new headunit::VirtualTime;
}

void setRoot(const char *folder) {
    headunit::setUnitRoot(QString::fromLocal8Bit(folder));
    headunit::openSettings();
}

void flush() {
    headunit::flushSettings();
}

void setLanguage(const char *code) {
    headunit::Language::set(QLatin1String(code));
}

void advance(int ms) {
    headunit::VirtualTime::instance()->advance(ms);
}

}  // namespace

const conformance::Unit *conformanceUnit() {
    static const conformance::Unit unit = {prepare, headunit::setUpUnitApplication, setRoot, flush, setLanguage, "de",
                                           advance};
    return &unit;
}
