// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/service/soundmodel.h"
#include "headunit/host/app/deskscripttarget.h"
#include "headunit/host/app/deskwindow.h"
#include "headunit/host/app/display.h"
#include "headunit/host/app/endsignals.h"
#include "headunit/host/app/hostapplication.h"
#include "headunit/host/app/hostlibrary.h"
#include "headunit/host/app/livescripttarget.h"
#include "headunit/host/app/options.h"
#include "headunit/host/app/plugincatalog.h"
#include "headunit/host/app/remotelibrary.h"
#include "headunit/host/app/soundlibrary.h"
#include "headunit/host/app/tunersdesk.h"
#include "headunit/host/app/unit.h"
#include "headunit/host/app/watchdog.h"
#include "headunit/host/screens/hardkeys.h"
#include "headunit/settings/lines.h"
#include "headunit/settings/trace.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "headunit/toolkit/unitapplication.h"
#include "headunit/toolkit/unitfolder.h"
#include "headunit/virtualtime/virtualtimelibrary.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTime>
#include <QTimer>

#include <memory>

using namespace headunit;

namespace {

constexpr int exitGood = 0;
constexpr int exitUnusable = 2;
constexpr int exitSignal = 128;   // plus the number of the signal that cut a script short
constexpr int mostFailures = 10;  // lines of plug-ins that cannot be used
constexpr double usualWatch = 5;  // s that an application may block the unit before it is named

// The time that the status bar shows wherever pictures must be the same at every run.
const char fixedTime[] = "10:08";

int refuse(const QString &reason) {
    say(reason);
    return exitUnusable;
}

/// The command line as texts, before there is an application object.
QStringList texts(int argc, char **argv) {
    QStringList list;
    for (int i = 0; i < argc; ++i) {
        list << QString::fromLocal8Bit(argv[i]);
    }
    return list;
}

int printHelpOrVersion(const Options &options, int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    if (options.help) {
        print(optionsHelp().trimmed());
    } else {
        print(QStringLiteral("headunit " HEADUNIT_VERSION));
    }
    return exitGood;
}

/// Hands a command to the unit that runs; this process shows nothing.
int runControl(const Options &options, int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    setUnitRoot(options.root);
    return doControl(options.control);
}

/// Why the files that the options name cannot be used, or an empty text.
QString fileProblem(const Options &options) {
    if (!options.script.isEmpty()) {
        QFile script(options.script);
        if (!QFileInfo(options.script).isFile() || !script.open(QIODevice::ReadOnly)) {
            return QStringLiteral("--script %1: there is no such file, or it cannot be read").arg(options.script);
        }
    }
    for (const QString &folder : {options.root, options.tour}) {
        if (!folder.isEmpty() && !QDir().mkpath(folder)) {
            return QStringLiteral("%1: the folder cannot be made").arg(folder);
        }
    }
    return QString();
}

void printTrace(const TraceEntry &entry) {
    print(oneLine(entry.call + QStringLiteral(" -> ") + entry.meaning));
}

int runSoundJob(const SoundJob &job) {
    const QString reason = doSoundJob(job);
    return reason.isEmpty() ? exitGood : refuse(reason);
}

/// What plays while the unit is shown; why nothing does is a line on standard error.
std::unique_ptr<QObject> soundOf(const Options &options, SoundMonitor **monitor) {
    QString silentBecause;
    std::unique_ptr<QObject> sound(startSound(options.playJob, &silentBecause, monitor));
    if (!silentBecause.isEmpty()) {
        say(silentBecause);
    }
    if (!sound) {
        SoundModel::instance().setFault(SoundFault::NoLibrary);
    }
    return sound;
}

int runUnit(const Options &options, HostApplication &application, MoveTime moveTime) {
    Watchdog watchdog(
        std::chrono::milliseconds(qRound64(1000 * (options.watchdog < 0 ? usualWatch : options.watchdog))),
        [](const std::string &line) { say(QString::fromStdString(line)); });
    PluginCatalog catalog;
    application.setGuard(&catalog.guard());
    const auto unguarded = qScopeGuard([&application] { application.setGuard(nullptr); });
    if (options.watchdog >= 0 || !moveTime) {
        catalog.guard().setWatchdog(&watchdog);
        if (!watchdog.start()) {
            sayNoThread();
        }
    }
    const QStringList files = options.plugins.isEmpty()
                                  ? QStringList(unitFolder() + QStringLiteral("/plugins/libaudiosetting.so"))
                                  : options.plugins;
    for (const QString &file : files) {
        catalog.load(file);
    }
    for (const QString &failure : catalog.failures().mid(0, mostFailures)) {
        say(failure);
    }
    if (catalog.failures().size() > mostFailures) {
        say(QStringLiteral("%1 more plug-ins cannot be used").arg(catalog.failures().size() - mostFailures));
    }
    QObject::connect(&catalog.guard(), &ApplicationGuard::failed, &application, say);
    // With a plug-in that failed the name may well be right; the home screen then says what is wrong.
    if (!options.open.isEmpty() && !catalog.find(options.open) && catalog.failures().isEmpty()) {
        return refuse(QStringLiteral("--open %1: there is no application of that name").arg(options.open));
    }

    DeskWindow window(options.fullscreen ? DeskWindow::Size::Any : DeskWindow::Size::Fixed);
    const bool fixed = moveTime != nullptr;
    Unit unit(catalog, window.screen(), [fixed] {
        return fixed ? QString::fromLatin1(fixedTime) : QTime::currentTime().toString(QStringLiteral("HH:mm"));
    });
    QObject::connect(&application, &HostApplication::touched, &unit, &Unit::touch);
    QObject::connect(window.hardKeys(), &HardKeys::keyPressed, &unit, &Unit::pressHardKey);
    QObject::connect(window.hardKeys(), &HardKeys::keyReleased, &unit, &Unit::releaseHardKey);
    limitMainVolume();
    if (options.language.isEmpty()) {
        unit.restoreLanguage();
    } else if (!unit.setLanguage(options.language)) {
        return refuse(QStringLiteral("--language %1: there is no such language").arg(options.language));
    }
    if (options.open.isEmpty() || !unit.openApplication(options.open, Unit::Home)) {
        unit.showHome();
    }
    if (options.exitWhenShown) {
        QObject::connect(&window, &DeskWindow::exposed, &application, &QCoreApplication::quit, Qt::QueuedConnection);
    }
    if (options.fullscreen) {
        window.showFullScreen();
    } else {
        window.show();
    }
    TunersDesk desk(window, unit);
    if (options.desk) {
        QTimer::singleShot(0, &desk, [&desk] { desk.open(); });  // after the first screen
    }
    if (!options.scripted()) {
        // Whoever asks the unit to end gets what closing its window gives: settings kept, sound faded, exit code 0.
        const EndSignals endSignals([](int) { QMetaObject::invokeMethod(qApp, "quit", Qt::QueuedConnection); });
        LiveScriptTarget target(window, unit);
        std::unique_ptr<QObject> remote;
        if (options.remote) {
            QString reason;
            remote.reset(startRemote(target, &reason));
            if (!remote) {
                return refuse(QStringLiteral("--remote: %1").arg(reason));
            }
        }
        std::unique_ptr<QObject> sound;
        if (!options.exitWhenShown) {
            // After the first screen
            QTimer::singleShot(0, &application, [&sound, &target, &desk, &options] {
                SoundMonitor *monitor = nullptr;
                sound = soundOf(options, &monitor);
                target.setSound(sound.get());
                desk.setSound(sound.get(), monitor);
            });
        }
        return application.exec();
    }
    SoundMonitor *monitor = nullptr;
    const std::unique_ptr<QObject> sound = options.sounds ? soundOf(options, &monitor) : nullptr;
    DeskScriptTarget target(window, unit, moveTime);
    target.wait(0);
    const int result = runScript(target, options.script, options.tour);
    return receivedEndSignal() == 0 ? result : exitSignal + receivedEndSignal();
}

int runProgram(int argc, char **argv) {
    const ParsedOptions parsed = parseOptions(texts(argc, argv));
    if (!parsed.error.isEmpty()) {
        return refuse(parsed.error);
    }
    Options options = parsed.options;
    if (options.help || options.version) {
        return printHelpOrVersion(options, argc, argv);
    }
    if (!options.control.isEmpty()) {
        return runControl(options, argc, argv);
    }
    if (options.soundJob.isEmpty() && !options.setupJob()) {
        fallBackToTour(&options);
    } else {
        useNoDisplay();
    }
    const QString problem = fileProblem(options);
    if (!problem.isEmpty()) {
        return refuse(problem);
    }
    if (options.scripted() && options.sounds && usesNoDisplay()) {
        return refuse(
            QStringLiteral("--script plays on a display only, for offscreen its time is not the clock's; "
                           "--remote plays and takes a script's commands"));
    }

    // A script is read to its end; a unit that runs waits for no reader.
    setLinesWait(options.scripted() || options.setupJob() || !options.soundJob.isEmpty());
    QLoggingCategory::defaultCategory()->setEnabled(QtDebugMsg, options.verbose);
    auto runtimeFolder = std::make_unique<RuntimeFolder>();
    prepareUnitApplication();
    const bool measuresDisplay = setScale(options);
    MoveTime moveTime = nullptr;
    if (options.scripted() && usesNoDisplay() && !measuresDisplay) {
        QString reason;
        const auto start =
            reinterpret_cast<StartVirtualTime>(hostFunction("virtualtime", startVirtualTimeName, &reason));
        if (!start) {
            return refuse(reason);
        }
        moveTime = start();
    }
    auto application = std::make_unique<HostApplication>(argc, argv);
    runtimeFolder.reset();
    if (displayFailed()) {
        return refuse(restartWithoutDisplay(argv));
    }
    const double scale = measuresDisplay ? missingScale(options) : 0;
    if (scale != 0) {
        application.reset();  // the display is free again
        return refuse(restartScaled(scale, argc, argv));
    }
    QGuiApplication::setDesktopFileName(QStringLiteral("com.norvale.headunit"));
    setUpUnitApplication();

    // The tour shows the unit as it leaves the factory, and leaves the user's settings alone.
    std::unique_ptr<QTemporaryDir> tourRoot;
    if (!options.tour.isEmpty() && options.root.isEmpty()) {
        tourRoot = std::make_unique<QTemporaryDir>();
        options.root = tourRoot->path();
    }
    setUnitRoot(options.root);
    openSettings();
    std::unique_ptr<TraceListener> tracePrinter;
    if (options.trace) {
        tracePrinter = std::make_unique<TraceListener>(printTrace, TraceListener::WithReads);
    }
    const int result = options.setupJob()           ? doSetupJob(options.exportTo, options.importFrom)
                       : options.soundJob.isEmpty() ? runUnit(options, *application, moveTime)
                                                    : runSoundJob(options.soundJob);
    tracePrinter.reset();
    closeSettings();
    return result;
}

}  // namespace

int main(int argc, char **argv) {
    keepStandardDescriptors();
    takeMessages();
    const int result = runProgram(argc, argv);
    const QString problem = printingProblem();
    return result == exitGood && !problem.isEmpty() ? refuse(problem) : result;
}
