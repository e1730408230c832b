// SPDX-License-Identifier: Apache-2.0
#include "tests/platform/pagetest.h"

#include "headunit/virtualtime/virtualtime.h"

#include <QMetaMethod>
#include <QTest>
#include <QWidget>

namespace {

QStringList s_debugLines;
QStringList s_warnings;
QtMessageHandler s_previous = nullptr;

void handle(QtMsgType type, const QMessageLogContext &context, const QString &message) {
    if (type == QtDebugMsg) {
        s_debugLines << message;
        return;
    }
    // The offscreen platform says this of every window of a fixed size.
    if (message != QLatin1String("This plugin does not support propagateSizeHints()")) {
        if (type == QtWarningMsg || type == QtCriticalMsg) {
            s_warnings << message;
        }
        s_previous(type, context, message);
    }
}

}  // namespace

void PageTest::init() {
    s_debugLines.clear();
    s_warnings.clear();
    s_previous = qInstallMessageHandler(handle);
    recording::reset();
    headunit::VirtualTime::instance()->setCoarseTimersLate(true);
}

void PageTest::cleanup() {
    qInstallMessageHandler(s_previous);
    QCOMPARE(s_warnings, QStringList());
}

void PageTest::advance(int ms) {
    headunit::VirtualTime::instance()->advance(ms);
}

QStringList PageTest::debugLines() {
    return s_debugLines;
}

void PageTest::show(QWidget *widget) {
    widget->show();
    QVERIFY(QTest::qWaitForWindowExposed(widget));
    advance(0);
}

QStringList PageTest::methods(const QMetaObject &meta) {
    QStringList list;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        list << QLatin1String(method.methodType() == QMetaMethod::Signal ? "signal " : "slot ") +
                    QString::fromLatin1(method.methodSignature());
    }
    return list;
}
