// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/toolkit/unitapplication.h"
#include "headunit/virtualtime/virtualtime.h"
#include "tests/platform/finger.h"

#include <QApplication>
#include <QTest>

/// Moves time; no test waits.
inline void advance(int ms) {
    headunit::VirtualTime::instance()->advance(ms);
}

/// Makes the pictures ":/test/red.xpm", green and blue, 8 x 8 pixels each, available.
inline void initTestPictures() {
    Q_INIT_RESOURCE(pictures);
}

/// The main function of a toolkit test: the application as the unit sets it up, in virtual time.
#define UNIT_TEST_MAIN(Class)                              \
    int main(int argc, char **argv) {                      \
        new headunit::VirtualTime; /* Qt's from here on */ \
        headunit::prepareUnitApplication();                \
        QApplication application(argc, argv);              \
        headunit::setUpUnitApplication();                  \
        initTestPictures();                                \
        Class test;                                        \
        return QTest::qExec(&test, argc, argv);            \
    }
