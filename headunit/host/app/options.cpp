// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/options.h"

#include "headunit/audio/live/outputmap.h"

#include <QCommandLineParser>

namespace headunit {

namespace {

constexpr double smallestScale = 0.25;
constexpr double largestScale = 8;
constexpr double shortestWatch = 0.01;  // s
constexpr double longestWatch = 3600;
constexpr char defaultPlay[] = "music";

struct OptionRow {
    const char *name;
    const char *value;  ///< what the value is called in the help; null for a flag
    const char *description;
    const char *letter = nullptr;  ///< a shorter name
};

constexpr OptionRow optionRows[] = {
    {"help", nullptr, "Print this help.", "h"},
    {"version", nullptr, "Print the version.", "v"},
    {"root", "DIR", "Folder that stands for the unit's file system. Default: a folder below your user data."},
    {"scale", "N", "Size of the screen on dense displays. Default: as the desk's own, full screen as large as fits."},
    {"fullscreen", nullptr, "Fill the display."},
    {"language", "xx", "Language: en, de, fr, es or ja. Default: the one last chosen, at first English."},
    {"open", "NAME", "Open an application at once, for example audiosetting."},
    {"script", "FILE.js", "Run a script (JavaScript) and end with its result."},
    {"tour", "DIR", "Visit every screen, leave a picture of each in a folder, and end."},
    {"play", "WHAT",
     "Sound source: music, noise, sweep, loudspeakers (one by one), silence, a file, or desk: what other programs play "
     "on the sound devices that the unit then offers. Default: music."},
    {"device", "NAME", "Sound device to play on, as the sound server calls it. Default: the server's own default."},
    {"map", "FL=CHANNEL,...",
     "Device's channel for each of FL, FR, RL, RR, SL and SR, like FL=aux0. Default: as usual for the device."},
    {"meters", nullptr, "Print what the loudspeakers and the limiter do, once a second, while the unit plays."},
    {"render", "IN", "Play a sound file under the current settings into another, --render IN.wav OUT.wav, and end."},
    {"measure", "OUT", "Write the response of each output under the current settings to a .csv or .png, and end."},
    {"export", "FILE",
     "Write the present set-up into a text file (.frd: the response of each output; .peq: the curve as filters), and "
     "end."},
    {"import", "FILE",
     "Put the set-up of a text file, or the curve of a filter list of Equalizer APO or REW, in force, print what it "
     "changes, and end."},
    {"remote", nullptr, "Let a program of yours control the unit, see --control."},
    {"control", "COMMAND",
     "Have the unit that runs with --remote do a command of scripts, like 'tap(\"key_eq\")', print what it yields, and "
     "end; - takes commands from standard input, one a line."},
    {"desk", nullptr, "Open the tuner's desk at once: what each touch does, set-ups, undo. Later: F12."},
    {"watchdog", "SECONDS",
     "Name an application that blocks the unit for so long. Default: 5; in a script that runs offscreen, never."},
    {"trace", nullptr, "Print every call between an application and the unit, with its meaning."},
    {"verbose", nullptr, "Print debug lines."},
    {"exit-when-shown", nullptr, "End once the first screen is painted; for measuring the start."},
};

void setUp(QCommandLineParser &parser) {
    parser.setApplicationDescription(
        QStringLiteral("A car's head unit on the desk: loads applications and shows them on a 1024 x 600 screen."));
    for (const OptionRow &row : optionRows) {
        QStringList names(QString::fromLatin1(row.name));
        if (row.letter) {
            names.prepend(QString::fromLatin1(row.letter));
        }
        parser.addOption(
            QCommandLineOption(names, QString::fromLatin1(row.description), QString::fromLatin1(row.value)));
    }
    parser.addPositionalArgument(QStringLiteral("plugins"),
                                 QStringLiteral("Applications to load. Default: the one built beside this program."),
                                 QStringLiteral("[plugin.so...]"));
}

/// Why the values cannot be used, or an empty text.
QString problem(const QCommandLineParser &parser) {
    for (const OptionRow &row : optionRows) {
        if (!row.value) {
            continue;
        }
        const QString name = QString::fromLatin1(row.name);
        const QStringList values = parser.values(name);
        if (values.size() > 1) {
            return QStringLiteral("--%1 is given more than once").arg(name);
        }
        if (!values.isEmpty() && values.first().isEmpty()) {
            return QStringLiteral("--%1 needs a value (%2)").arg(name, QString::fromLatin1(row.value));
        }
    }
    const struct {
        const char *name;
        double low;
        double high;
    } numbers[] = {{"scale", smallestScale, largestScale}, {"watchdog", shortestWatch, longestWatch}};
    for (const auto &row : numbers) {
        const QString name = QString::fromLatin1(row.name);
        bool isNumber = false;
        const double number = parser.value(name).toDouble(&isNumber);
        // Written so that "nan" fails too.
        if (parser.isSet(name) && (!isNumber || !(number >= row.low && number <= row.high))) {
            return QStringLiteral("--%1 %2: a number from %3 to %4 is needed")
                .arg(name, parser.value(name))
                .arg(row.low)
                .arg(row.high);
        }
    }
    OutputMap map;
    std::string reason;
    const QString mapText = parser.value(QStringLiteral("map"));
    if (parser.isSet(QStringLiteral("map")) && !parseOutputMap(mapText.toStdString(), &map, &reason)) {
        return QStringLiteral("--map %1: %2").arg(mapText, QString::fromStdString(reason));
    }
    QStringList given;
    for (const char *name : {"script", "tour", "render", "measure", "export", "import", "control"}) {
        if (parser.isSet(QString::fromLatin1(name))) {
            given << QStringLiteral("--") + QString::fromLatin1(name);
        }
    }
    if (given.size() > 1) {
        return QStringLiteral("%1 do not go together").arg(given.join(QStringLiteral(" and ")));
    }
    // A script that is seen is heard as well; the others show nothing, or in no time at all.
    for (const char *name : {"play", "meters"}) {
        if (parser.isSet(QString::fromLatin1(name)) && !given.isEmpty() && given.first() != QLatin1String("--script")) {
            return QStringLiteral("--%1 and %2 do not go together").arg(QLatin1String(name), given.first());
        }
    }
    if (parser.isSet(QStringLiteral("remote")) && !given.isEmpty()) {
        return QStringLiteral("--remote and %1 do not go together").arg(given.first());
    }
    const QStringList files = parser.positionalArguments();
    if (parser.isSet(QStringLiteral("render")) && (files.size() != 1 || files.first().isEmpty())) {
        return QStringLiteral("--render needs two files: the one to play, and the one to write");
    }
    if (parser.isSet(QStringLiteral("measure")) && !files.isEmpty()) {
        return QStringLiteral("--measure writes one file, so %1 is one too many").arg(files.first());
    }
    return QString();
}

}  // namespace

ParsedOptions parseOptions(const QStringList &arguments) {
    QCommandLineParser parser;
    setUp(parser);
    ParsedOptions parsed;
    if (!parser.parse(arguments)) {
        parsed.error = parser.errorText();
        return parsed;
    }
    parsed.error = problem(parser);
    if (!parsed.error.isEmpty()) {
        return parsed;
    }
    Options &options = parsed.options;
    options.plugins = parser.positionalArguments();
    options.root = parser.value(QStringLiteral("root"));
    if (parser.isSet(QStringLiteral("scale"))) {
        options.scale = parser.value(QStringLiteral("scale")).toDouble();
    }
    options.fullscreen = parser.isSet(QStringLiteral("fullscreen"));
    options.language = parser.value(QStringLiteral("language"));
    options.open = parser.value(QStringLiteral("open"));
    options.script = parser.value(QStringLiteral("script"));
    options.tour = parser.value(QStringLiteral("tour"));
    options.playJob.what =
        parser.isSet(QStringLiteral("play")) ? parser.value(QStringLiteral("play")) : QString::fromLatin1(defaultPlay);
    options.playJob.device = parser.value(QStringLiteral("device"));
    options.playJob.map = parser.value(QStringLiteral("map"));
    options.playJob.meters = parser.isSet(QStringLiteral("meters"));
    options.sounds = parser.isSet(QStringLiteral("play")) || options.playJob.meters;
    options.soundJob.renderFrom = parser.value(QStringLiteral("render"));
    if (!options.soundJob.renderFrom.isEmpty()) {
        options.soundJob.renderTo = options.plugins.takeFirst();
    }
    options.soundJob.measureTo = parser.value(QStringLiteral("measure"));
    options.exportTo = parser.value(QStringLiteral("export"));
    options.importFrom = parser.value(QStringLiteral("import"));
    options.remote = parser.isSet(QStringLiteral("remote"));
    options.control = parser.value(QStringLiteral("control"));
    if (parser.isSet(QStringLiteral("watchdog"))) {
        options.watchdog = parser.value(QStringLiteral("watchdog")).toDouble();
    }
    options.desk = parser.isSet(QStringLiteral("desk"));
    options.trace = parser.isSet(QStringLiteral("trace"));
    options.verbose = parser.isSet(QStringLiteral("verbose"));
    options.exitWhenShown = parser.isSet(QStringLiteral("exit-when-shown"));
    options.help = parser.isSet(QStringLiteral("help"));
    options.version = parser.isSet(QStringLiteral("version"));
    return parsed;
}

QString optionsHelp() {
    QCommandLineParser parser;
    setUp(parser);
    return parser.helpText();
}

}  // namespace headunit
