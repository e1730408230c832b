// SPDX-License-Identifier: Apache-2.0
// Drives the example unit in virtual time: carunit_drive ROOT PLUGIN FOLDER STEP... A step is
//   tap NAME        touches and lets go
//   hold NAME MS    touches, lets time pass, lets go
//   drag X Y X Y    draws from one position of the screen to another
//   wait MS         lets time pass
//   shot NAME       saves FOLDER/NAME.png
//   key NUMBER      presses a key of the desk's keyboard (Qt::Key)

#include "headunit/virtualtime/virtualtime.h"
#include "tests/platform/finger.h"
#include "unit.h"

#include <QApplication>
#include <QTest>

namespace {

QWidget *visible(QWidget *root, const QString &name) {
    for (QWidget *widget : root->findChildren<QWidget *>(name)) {
        if (widget->isVisible()) {
            return widget;
        }
    }
    qFatal("%s is not on the screen", qPrintable(name));
}

bool run(carunit::Host &host, const QStringList &step, const QString &folder) {
    const QString verb = step[0];
    const auto number = [&](int i) { return step[i].toInt(); };
    if (verb == "tap") {
        finger::tap(visible(&host, step[1]));
    } else if (verb == "hold") {
        finger::hold(visible(&host, step[1]), number(2));
    } else if (verb == "drag") {
        finger::press(&host, QPoint(number(1), number(2)));
        finger::move(&host, QPoint(number(3), number(4)));
        finger::release(&host, QPoint(number(3), number(4)));
    } else if (verb == "wait") {
        headunit::VirtualTime::instance()->advance(number(1));
    } else if (verb == "key") {
        QTest::keyClick(&host, Qt::Key(number(1)));
    } else if (verb == "shot") {
        return host.grab().save(QStringLiteral("%1/%2.png").arg(folder, step[1]));
    } else {
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char **argv) {
    new headunit::VirtualTime;
    QApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    carunit::setRootFolder(arguments[1]);
    carunit::setUpApplication();
    carunit::powerUp();
    carunit::Host host;
    const QString problem = host.load(arguments[2]);
    if (!problem.isEmpty()) {
        qFatal("%s", qPrintable(problem));
    }
    host.show();
    if (!QTest::qWaitForWindowExposed(&host)) {
        qFatal("not shown");
    }
    host.open();
    for (const QString &step : arguments.mid(4)) {
        if (!run(host, step.split(' '), arguments[3])) {
            qFatal("not a step: %s", qPrintable(step));
        }
    }
    return 0;
}
