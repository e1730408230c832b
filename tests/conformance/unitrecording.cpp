// SPDX-License-Identifier: Apache-2.0
// Facts for the conformance kit about the recording platform.

#include "conformance/unit.h"
#include "headunit/virtualtime/virtualtime.h"
#include "tests/platform/recorder.h"

#include <QApplication>
#include <QFont>

namespace {

void prepare() {
    new headunit::VirtualTime;
    QApplication::setAttribute(Qt::AA_Use96Dpi);
}

void setUp() {
    recording::reset();
    QApplication::setFont(QFont(QStringLiteral("Roboto"), 18));
}

void advance(int ms) {
    headunit::VirtualTime::instance()->advance(ms);
}

}  // namespace

const conformance::Unit *conformanceUnit() {
    static const conformance::Unit unit = {prepare, setUp, nullptr, nullptr, nullptr, nullptr, advance};
    return &unit;
}
