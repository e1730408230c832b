// SPDX-License-Identifier: Apache-2.0
// A small head unit: carunit ROOT PLUGIN.so

#include "unit.h"

#include <QApplication>
#include <QFile>

int main(int argc, char **argv) {
    if (argc != 3) {
        qCritical("usage: carunit ROOT PLUGIN.so");
        return 2;
    }
    qputenv("QT_FONT_DPI", "96");  // the screens are laid out for 96 dots per inch
    QApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication application(argc, argv);
    carunit::setRootFolder(QFile::decodeName(argv[1]));
    carunit::setUpApplication();
    carunit::powerUp();
    carunit::Host host;
    const QString problem = host.load(QFile::decodeName(argv[2]));
    if (!problem.isEmpty()) {
        qCritical("%s: %s", argv[2], qPrintable(problem));
        return 1;
    }
    host.show();
    host.open();
    return application.exec();
}
