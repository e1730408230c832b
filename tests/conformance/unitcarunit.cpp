// SPDX-License-Identifier: Apache-2.0
// Facts for the conformance kit about the example unit.

#include "conformance/unit.h"
#include "examples/carunit/unit.h"
#include "headunit/virtualtime/virtualtime.h"

#include <QApplication>

namespace {

void prepare() {
    new headunit::VirtualTime;
    QApplication::setAttribute(Qt::AA_Use96Dpi);
}

void setUp() {
    carunit::setUpApplication();
    carunit::powerUp();
}

void setRoot(const char *folder) {
    carunit::setRootFolder(QString::fromLocal8Bit(folder));
}

void setLanguage(const char *code) {
    carunit::setLanguage(QLatin1String(code));
}

void advance(int ms) {
    headunit::VirtualTime::instance()->advance(ms);
}

}  // namespace

const conformance::Unit *conformanceUnit() {
    static const conformance::Unit unit = {prepare, setUp, setRoot, nullptr, setLanguage, "de", advance};
    return &unit;
}
