// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/virtualtime/virtualtime.h"

#include <QApplication>
#include <QTest>

/// The main function of a test that runs in virtual time.
#define PAGE_TEST_MAIN(Class)                              \
    int main(int argc, char **argv) {                      \
        new headunit::VirtualTime; /* Qt's from here on */ \
        QApplication application(argc, argv);              \
        Class test;                                        \
        return QTest::qExec(&test, argc, argv);            \
    }
