// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tests/platform/finger.h"
#include "tests/platform/recorder.h"

#include <QObject>
#include <QStringList>

class QWidget;

/// Base of the tests of what the plug-in shows: a new platform before each test function, and no warning of Qt's
/// (a signal that does not exist, a picture that cannot be read) during it. Coarse timers are late: what the product
/// promises to the millisecond needs a precise one.
///
/// A test that has an init() or a cleanup() of its own calls this one's.
class PageTest : public QObject {
    Q_OBJECT
protected slots:
    void init();
    void cleanup();

protected:
    /// Moves virtual time.
    static void advance(int ms);
    /// The debug lines since the start of the test function.
    static QStringList debugLines();
    /// Shows \a widget as a window of its own size, and delivers what that posts.
    static void show(QWidget *widget);
    /// The class's own signals and slots in the order of declaration: "signal backClicked()".
    static QStringList methods(const QMetaObject &meta);
};

/// The descendant of that name and type; ends the test function where there is none.
#define CHILD(Type, variable, parent, name)                                   \
    Type *const variable = (parent)->findChild<Type *>(QStringLiteral(name)); \
    QVERIFY2(variable, name)
