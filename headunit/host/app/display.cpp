// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/display.h"
#include "headunit/settings/lines.h"

#include "headunit/host/app/deskwindow.h"
#include "headunit/host/app/displayscale.h"
#include "headunit/host/app/options.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QScreen>

#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace headunit {

namespace {

constexpr double unitDotsPerInch = 96;
const char platform[] = "QT_QPA_PLATFORM";
const char offscreen[] = "offscreen";
const char scaleFactor[] = "QT_SCALE_FACTOR";
const char runtimeFolder[] = "XDG_RUNTIME_DIR";

}  // namespace

void useNoDisplay() {
    qputenv(platform, offscreen);
}

bool usesNoDisplay() {
    return qgetenv(platform) == offscreen;
}

void fallBackToTour(Options *options) {
    if (!qEnvironmentVariableIsEmpty(platform)) {
        return;
    }
    if (!qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) {
        // Without a second choice Qt ends the process where the display does not answer.
        const bool x11 = !qEnvironmentVariableIsEmpty("DISPLAY");
        qputenv(platform, QByteArray(x11 ? "xcb" : "wayland") + ';' + offscreen);
        return;
    }
    useNoDisplay();
    if (options->scripted() || options->exitWhenShown) {
        return;
    }
    options->tour = QDir::temp().filePath(QStringLiteral("headunit-tour"));
    say(QStringLiteral("there is no display; a picture of every screen goes to ") + options->tour);
}

bool setScale(const Options &options) {
    if (options.scale != 0) {
        qputenv(scaleFactor, QByteArray::number(options.scale));
        return false;
    }
    if (!options.fullscreen && (usesNoDisplay() || !qEnvironmentVariableIsEmpty(scaleFactor))) {
        return false;
    }
    qunsetenv(scaleFactor);
    qunsetenv("QT_FONT_DPI");  // it would be taken for the desk's
    return true;
}

bool displayFailed() {
    return QGuiApplication::platformName() == QLatin1String(offscreen) && !usesNoDisplay();
}

double missingScale(const Options &options) {
    const QScreen *const display = QGuiApplication::primaryScreen();
    double scale = 1;
    if (display) {
        scale = options.fullscreen ? fittingScale(display->size(), DeskWindow::unitSize())
                                   : deskScale(display->logicalDotsPerInch());
    }
    const bool otherDensity = display && display->logicalDotsPerInch() != unitDotsPerInch;
    return scale != 1 || usesNoDisplay() || otherDensity ? scale : 0;
}

QString restartScaled(double scale, int argc, char **argv) {
    QByteArray option = "--scale=" + QByteArray::number(scale);
    std::vector<char *> arguments(argv, argv + argc);
    arguments.insert(arguments.begin() + 1, option.data());
    arguments.push_back(nullptr);
    execv("/proc/self/exe", arguments.data());
    return QStringLiteral("the program cannot be started again");
}

QString restartWithoutDisplay(char **argv) {
    for (const char *name : {platform, "DISPLAY", "WAYLAND_DISPLAY"}) {
        qunsetenv(name);
    }
    execv("/proc/self/exe", argv);
    return QStringLiteral("the display does not answer");
}

RuntimeFolder::RuntimeFolder() : m_provided(qEnvironmentVariableIsEmpty(runtimeFolder)) {
    if (m_provided) {
        const QByteArray folder =
            QFile::encodeName(QDir::tempPath()) + "/headunit-runtime-" + QByteArray::number(getuid());
        mkdir(folder.constData(), S_IRWXU);
        qputenv(runtimeFolder, folder);
    }
}

RuntimeFolder::~RuntimeFolder() {
    if (m_provided) {
        qunsetenv(runtimeFolder);
    }
}

}  // namespace headunit
