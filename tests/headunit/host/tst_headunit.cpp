// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr int patience = 240000;  // ms

}  // namespace

// The built program, as a person starts it: exit codes, and what it prints.
class TestHeadunit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void help();
    void version();
    void wrongCommandLine_data();
    void wrongCommandLine();
    void measures();
    void measuresOntoAFullDisk_data();
    void measuresOntoAFullDisk();
    void measuresIntoFilesOnly();
    void pluginsThatFail();
    void openWithAFailedPlugin();
    void exitWhenShown();
    void scale();
    void densePictures();
    void fullscreen();
    void keysThatCarryText();
    void whatIsNotDoneLightly();
    void backgroundIsThatOfThePages();
    void scriptResults_data();
    void scriptResults();
    void scriptsImportOthers();
    void scriptsAreInstant();
    void trace();
    void traceOfTheCar();
    void traceOfAVisit();
    void debugLines();
    void tourThatCannotKeepAPicture();
    void tourWithoutADisplay_data();
    void tourWithoutADisplay();
    void damagedSettings();
    void signalsEndTheUnitInOrder_data();
    void signalsEndTheUnitInOrder();
    void signalsEndAScript();

private:
    struct Result {
        int code;
        QString out;
        QString err;
        QStringList errLines() const { return err.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
    };
    Result run(const QStringList &arguments, const QStringList &unset = {}, const QString &display = {});
    /// Writes a file into the test's folder.
    QString write(const QString &name, const QByteArray &content);

    QScopedPointer<QTemporaryDir> m_folder;
};

void TestHeadunit::init() {
    m_folder.reset(new QTemporaryDir);
}

QString TestHeadunit::write(const QString &name, const QByteArray &content) {
    const QString path = m_folder->filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
    return path;
}

TestHeadunit::Result TestHeadunit::run(const QStringList &arguments, const QStringList &unset, const QString &display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.remove("XDG_RUNTIME_DIR");
    environment.insert("XDG_DATA_HOME", m_folder->filePath("data"));
    environment.insert("TMPDIR", m_folder->path());
    for (const QString &name : unset) {
        environment.remove(name);
    }
    if (!display.isEmpty()) {
        environment.insert("DISPLAY", display);
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(HEADUNIT, arguments);
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit) {
        process.kill();
        process.waitForFinished();
        return {-1, QString(), QString::fromUtf8(process.readAllStandardError())};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void TestHeadunit::help() {
    for (const char *option : {"--help", "-h"}) {
        const Result result = run({option});
        QCOMPARE(result.code, 0);
        QVERIFY(result.out.contains("--script"));
        QCOMPARE(result.err, QString());
    }
}

void TestHeadunit::version() {
    for (const char *option : {"--version", "-v"}) {
        const Result result = run({option});
        QCOMPARE(result.code, 0);
        QCOMPARE(result.out, QStringLiteral("headunit " HEADUNIT_VERSION "\n"));
    }
}

void TestHeadunit::wrongCommandLine_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    QTest::newRow("option") << QStringList{"--nonsense"} << "nonsense";
    QTest::newRow("script missing") << QStringList{"--script", "gone.js"} << "gone.js";
    QTest::newRow("script a folder") << QStringList{"--script", "."} << "--script .";
    QTest::newRow("language") << QStringList{"--language", "xx"} << "--language xx";
    QTest::newRow("application") << QStringList{"--open", "nothing"} << "--open nothing";
    QTest::newRow("scale") << QStringList{"--scale", "huge"} << "--scale huge";
    QTest::newRow("root is a file") << QStringList{"--root", "/dev/null/x"} << "/dev/null/x";
    QTest::newRow("nothing to render") << QStringList{"--render", "gone.wav", "out.wav"} << "gone.wav";
    QTest::newRow("no sound file") << QStringList{"--render", QCoreApplication::applicationFilePath(), "out.wav"}
                                   << "tst_headunit";
    QTest::newRow("one file to render") << QStringList{"--render", "in.wav"} << "--render";
    QTest::newRow("measure into text") << QStringList{"--measure", "out.txt"} << "out.txt";
    QTest::newRow("measure into no folder") << QStringList{"--measure", "/dev/null/x.csv"} << "/dev/null/x.csv";
    QTest::newRow("tour into a file") << QStringList{"--tour", "/dev/null/x"} << "/dev/null/x";
}

void TestHeadunit::wrongCommandLine() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const Result result = run(arguments);
    QCOMPARE(result.code, 2);
    QCOMPARE(result.errLines().size(), 1);
    QVERIFY2(result.err.startsWith("headunit: ") && result.err.contains(named), qPrintable(result.err));
    QCOMPARE(result.out, QString());
}

void TestHeadunit::measures() {
    const QString picture = m_folder->filePath("response.png");
    const QString table = m_folder->filePath("response.CSV");
    QCOMPARE(run({"--measure", picture}).code, 0);
    QVERIFY(!QImage(picture).isNull());
    QCOMPARE(run({"--measure", table}).code, 0);
    QFile file(table);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = file.readAll().trimmed().split('\n');
    QCOMPARE(lines.size(), 897);
    QCOMPARE(lines.first().split(',').size(), 15);
    QVERIFY(lines.first().startsWith("Hz,FL dB,FL deg,FR dB"));
    // A new unit plays at -36 dB, its subwoofer is off, and the four others add up.
    QCOMPARE(lines.at(120).split(',').mid(1),
             (QList<QByteArray>{"-36.0000", "0.0000", "-36.0000", "0.0000", "-36.0000", "0.0000", "-36.0000", "0.0000",
                                "-inf", "0.0000", "-inf", "0.0000", "-23.9588", "0.0000"}));
}

void TestHeadunit::measuresOntoAFullDisk_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("table") << "response.csv";
    QTest::newRow("picture") << "response.png";
}

void TestHeadunit::measuresOntoAFullDisk() {
    QFETCH(QString, name);
    QFile file(write(name, "what was there"));
    // A limit on the size of files stands for the full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit small = {8192, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const Result result = run({"--measure", name});
    setrlimit(RLIMIT_FSIZE, &usual);
    QCOMPARE(result.err, "headunit: " + name + ": File too large\n");
    QCOMPARE(result.code, 2);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("what was there"));
}

void TestHeadunit::measuresIntoFilesOnly() {
    const QByteArray pipe = QFile::encodeName(m_folder->filePath("pipe.csv"));
    QCOMPARE(mkfifo(pipe.constData(), S_IRUSR | S_IWUSR), 0);
    const Result result = run({"--measure", "pipe.csv"});
    QCOMPARE(result.err, QString("headunit: pipe.csv: this is no file that could be replaced\n"));
    QCOMPARE(result.code, 2);
    struct stat now = {};
    QCOMPARE(stat(pipe.constData(), &now), 0);
    QVERIFY(S_ISFIFO(now.st_mode));
}

void TestHeadunit::pluginsThatFail() {
    const QString script = write("s.js",
                                 "shot('home.png'); expect('tile_audiosetting', 'visible', true);"
                                 "expect('tile_second', 'visible', false);");
    const Result result = run({"--script", script, "gone.so", FIXTURES "/noapplication.so", FIXTURES "/wrongiid.so",
                               FIXTURES "/application.so"});
    QVERIFY2(result.code == 0, qPrintable(result.err));
    QCOMPARE(result.errLines().size(), 3);
    QVERIFY(result.errLines().at(0).startsWith("headunit: gone.so: there is no such file"));
    QVERIFY(result.errLines().at(1).startsWith("headunit: noapplication.so: "));
    QVERIFY(result.errLines().at(2).startsWith("headunit: wrongiid.so: "));
    // The same lines stand on the home screen, in the warm colour at its foot.
    const QImage home(m_folder->filePath("home.png"));
    QCOMPARE(home.size(), QSize(1024, 600));
    int warm = 0;
    for (int y = 440; y < 600; ++y) {
        for (int x = 0; x < 1024; ++x) {
            warm += home.pixel(x, y) == qRgb(0xFF, 0xB4, 0x54);
        }
    }
    QVERIFY2(warm > 500, qPrintable(QString::number(warm)));
}

void TestHeadunit::openWithAFailedPlugin() {
    const QString script = write("s.js", "expect('home', 'visible', true);");
    const Result result = run({"--open", "audiosetting", "--script", script, "gone.so"});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.errLines().size(), 1);
}

void TestHeadunit::exitWhenShown() {
    const Result result = run({"--open", "audiosetting", "--exit-when-shown"});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.err, QString());
}

void TestHeadunit::scale() {
    // Places are the unit's pixels, whatever the desk's are.
    const QString script = write("s.js",
                                 "tap(816, 320); expect('car', 'visible', true); shot('car.png');"
                                 "tap('hardkey_home'); expect('home', 'visible', true);");
    for (const char *scale : {"1", "1.5", "2"}) {
        const Result result = run({"--scale", scale, "--script", script});
        QVERIFY2(result.code == 0, qPrintable(result.err));
        QCOMPARE(QImage(m_folder->filePath("car.png")).size(), QSize(1024, 600) * QByteArray(scale).toDouble());
    }
}

namespace {

// Every screen with pictures that no icon shows.
const char visitPictures[] =
    "function use(place) { tap(place); wait(400); }\n"
    "shot('home.png'); use('hardkey_mute'); shot('muted.png'); use('hardkey_mute'); use('tile_car');"
    "use('car_call'); shot('call.png'); use('call_end'); open('audiosetting'); wait(400);"
    "use('key_timing'); shot('timing.png'); use('key_crossover'); shot('crossover.png');";

struct PicturePlace {
    const char *what;
    const char *screen;
    QRect place;
};
const PicturePlace picturePlaces[] = {
    {"tile", "home.png", {136, 208, 144, 144}},
    {"crossed loudspeaker", "muted.png", {32, 8, 32, 32}},
    {"mute beside the level", "muted.png", {740, 40, 48, 64}},
    {"telephone", "call.png", {452, 148, 120, 120}},
    {"call sign", "call.png", {496, 8, 32, 32}},
    {"cabin", "timing.png", {500, 236, 152, 180}},
    {"horn", "timing.png", {418, 234, 38, 34}},
    {"subwoofer", "timing.png", {696, 524, 38, 32}},
    {"plate of a value", "timing.png", {164, 212, 14, 14}},
    {"plate of the units", "timing.png", {434, 140, 14, 14}},
    {"sweep", "crossover.png", {330, 402, 530, 26}},
    {"plate of the channels", "crossover.png", {136, 136, 14, 14}},
    {"plate of the slope", "crossover.png", {156, 496, 14, 14}},
};

/// Whether each pixel of a picture became two equal ones side by side, but for the grain of the background.
bool isPixelDoubled(const QImage &image) {
    constexpr int grain = 8;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x + 1 < image.width(); x += 2) {
            if (std::abs(qGray(image.pixel(x, y)) - qGray(image.pixel(x + 1, y))) > grain) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

void TestHeadunit::densePictures() {
    const Result result = run({"--scale", "2", "--script", write("s.js", visitPictures)});
    QVERIFY2(result.code == 0, qPrintable(result.err));
    for (const PicturePlace &row : picturePlaces) {
        const QImage screen(m_folder->filePath(QString::fromLatin1(row.screen)));
        QVERIFY2(!isPixelDoubled(screen.copy(QRect(row.place.topLeft() * 2, row.place.size() * 2))), row.what);
    }
}

void TestHeadunit::fullscreen() {
    // The display of this platform has 800 x 800 pixels: 0.704 of the unit's width.
    const QString script = write("s.js", "tap('tile_car'); expect('car', 'visible', true); shot('car.png');");
    Result result = run({"--fullscreen", "--script", script});
    QVERIFY2(result.code == 0, qPrintable(result.err));
    QCOMPARE(QImage(m_folder->filePath("car.png")).size(), QSize(721, 422));
    // A scale that was asked for holds.
    result = run({"--fullscreen", "--scale", "0.5", "--script", script});
    QVERIFY2(result.code == 0, qPrintable(result.err));
    QCOMPARE(QImage(m_folder->filePath("car.png")).size(), QSize(512, 300));
}

void TestHeadunit::keysThatCarryText() {
    // Pressed, the host's look like the applications': white text on a tint that is dark enough for it.
    const Result result = run(
        {"--open", "audiosetting", "--script",
         write("s.js",
               "press('key_advanced'); wait(100); shot('page.png'); move(600, 560); release(); home(); tap('tile_car');"
               "wait(400); press('car_call'); wait(100); shot('host.png');")});
    QVERIFY2(result.code == 0, qPrintable(result.err));
    const QRgb page = QImage(m_folder->filePath("page.png")).pixel(QPoint(400, 172));
    const QRgb host = QImage(m_folder->filePath("host.png")).pixel(QPoint(560, 545));
    QVERIFY2(qAbs(qRed(page) - qRed(host)) <= 4 && qAbs(qGreen(page) - qGreen(host)) <= 8 &&
                 qAbs(qBlue(page) - qBlue(host)) <= 8,
             qPrintable(QStringLiteral("%1 and %2").arg(page, 0, 16).arg(host, 0, 16)));
}

void TestHeadunit::whatIsNotDoneLightly() {
    const QRgb warm = qRgb(0xFF, 0xB4, 0x54);
    const Result result =
        run({"--open", "audiosetting", "--script",
             write("s.js",
                   "home(); tap('tile_car'); wait(400); shot('before.png'); tap('car_call'); wait(400);"
                   "shot('call.png'); tap('hardkey_home'); tap('tile_car'); wait(400); shot('car.png');")});
    QVERIFY2(result.code == 0, qPrintable(result.err));
    // The left edge of the key, half way down.
    const auto edge = [this](const char *file, const QPoint &place) {
        return QImage(m_folder->filePath(QString::fromLatin1(file))).pixel(place);
    };
    QVERIFY(edge("before.png", {520, 545}) != warm);
    QCOMPARE(edge("call.png", {364, 472}), warm);
    QCOMPARE(edge("car.png", {520, 545}), warm);
}

void TestHeadunit::backgroundIsThatOfThePages() {
    const Result result = run({"--open", "audiosetting", "--script",
                               write("s.js", "shot('page.png'); call(true); wait(400); shot('call.png');")});
    QVERIFY2(result.code == 0, qPrintable(result.err));
    const QImage page(m_folder->filePath("page.png"));
    const QImage call(m_folder->filePath("call.png"));
    // Left of everything, and below the status bar: on average of a row the same, and no row is of one colour alone
    // where the gradient steps.
    int mixedRows = 0;
    for (int y = 60; y < page.height(); ++y) {
        double sums[2] = {0, 0};
        bool mixed = false;
        for (int x = 0; x < 24; ++x) {
            sums[0] += qGray(page.pixel(x, y));
            sums[1] += qGray(call.pixel(x, y));
            mixed = mixed || call.pixel(x, y) != call.pixel(0, y);
        }
        QVERIFY2(std::abs(sums[0] - sums[1]) / 24 < 2, qPrintable(QString::number(y)));
        mixedRows += mixed;
    }
    QVERIFY2(mixedRows > 400, qPrintable(QString::number(mixedRows)));
}

void TestHeadunit::scriptResults_data() {
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("error");  // after the file's name
    QTest::newRow("good") << QByteArray("log('yes');") << 0 << "";
    QTest::newRow("failed expectation") << QByteArray("\n\nexpect(1 == 2, 'sums');") << 1 << ":3: Error: sums";
    QTest::newRow("failed expectation without words")
        << QByteArray("expect(false);") << 1 << ":1: Error: expectation failed";
    QTest::newRow("failed property") << QByteArray("\nexpect('home', 'width', 5);") << 1
                                     << ":2: Error: home.width is 1024, expected 5";
    QTest::newRow("wrong type") << QByteArray("expect('home', 'width', '1024');") << 1
                                << ":1: Error: home.width is 1024, expected 1024";
    QTest::newRow("no such property") << QByteArray("expect('home', 'colour', 5);") << 1
                                      << ":1: Error: \"home\" has no property \"colour\"";
    QTest::newRow("nothing there") << QByteArray("tap('nothing');") << 1
                                   << ":1: Error: nothing named \"nothing\" is visible";
    QTest::newRow("outside") << QByteArray("tap(2000, 5);") << 1 << ":1: Error: 2000, 5 is outside the screen";
    QTest::newRow("no place") << QByteArray("tap({});") << 1 << ":1: Error: a place is a name, or x and y";
    QTest::newRow("syntax") << QByteArray("tap('home'") << 1 << ":1: SyntaxError: ";
    QTest::newRow("unknown function") << QByteArray("\nhammer();") << 1 << ":2: ReferenceError: hammer is not defined";
    QTest::newRow("picture") << QByteArray("shot('/dev/null/x.png');") << 1
                             << ":1: Error: cannot write /dev/null/x.png";
    QTest::newRow("release without press") << QByteArray("release();") << 1 << ":1: Error: the finger is not down";
    QTest::newRow("pressed twice") << QByteArray("press(5, 5); press(6, 6);") << 1
                                   << ":1: Error: the finger is down already";
    QTest::newRow("language") << QByteArray("language('xx');") << 1 << ":1: Error: there is no language \"xx\"";
    QTest::newRow("source") << QByteArray("source(7);") << 1 << ":1: Error: there is no source 7";
    QTest::newRow("application") << QByteArray("open('x');") << 1 << ":1: Error: there is no application \"x\"";
    QTest::newRow("a value thrown") << QByteArray("throw 'it';") << 1 << ": it";
    QTest::newRow("undefined thrown") << QByteArray("throw undefined;") << 1 << ": undefined";
    QTest::newRow("null thrown") << QByteArray("throw null;") << 1 << ": null";
    QTest::newRow("nothing but a prototype thrown") << QByteArray("throw Object.create(null);") << 1 << ": TypeError: ";
    QTest::newRow("a symbol thrown") << QByteArray("throw Symbol('it');") << 1 << ": Symbol(it)";
    QTest::newRow("what throws itself thrown")
        << QByteArray("throw { toString: function () { throw 'it'; } };") << 1 << ": it";
    QTest::newRow("an error of two lines") << QByteArray("throw new Error('a\\nb');") << 1 << ":1: Error: a b\n";
    QTest::newRow("promise") << QByteArray("\nPromise.reject(1);") << 1 << ":2: ReferenceError: Promise is not defined";
    QTest::newRow("import of nothing") << QByteArray("import './none.js';") << 1 << ": Error: Could not open module ";
    QTest::newRow("a place far away") << QByteArray("press(10, 10); move(2000000000, 0);") << 1
                                      << ":1: Error: 2000000000, 0 is outside the screen\n";
    QTest::newRow("a drag to a place far away")
        << QByteArray("drag('tile_car', 1, 1, 2000000000, 2000000000);") << 1 << ":1: Error: 2000000";
    QTest::newRow("no place") << QByteArray("tap(NaN, 1);") << 1 << ":1: Error: nan, 1 is outside the screen\n";
    QTest::newRow("the past") << QByteArray("wait(-1);") << 1 << ":1: Error: cannot wait -1 ms\n";
    QTest::newRow("no time") << QByteArray("wait('x');") << 1 << ":1: Error: cannot wait x ms\n";
    QTest::newRow("first error ends it") << QByteArray("tap('nothing'); shot('late.png');") << 1
                                         << ":1: Error: nothing named";
}

void TestHeadunit::scriptResults() {
    QFETCH(QByteArray, script);
    QFETCH(int, code);
    QFETCH(QString, error);
    const QString file = write("s.js", script);
    const Result result = run({"--script", file});
    QCOMPARE(result.code, code);
    if (code == 0) {
        QCOMPARE(result.err, QString());
        QCOMPARE(result.out, QStringLiteral("yes\n"));
    } else {
        QCOMPARE(result.errLines().size(), 1);
        QVERIFY2(result.err.startsWith(file + error), qPrintable(result.err));
    }
    QVERIFY(!QFile::exists(m_folder->filePath("late.png")));
}

void TestHeadunit::scriptsImportOthers() {
    const QString steps = write("steps.js", "export function use(place) {\n    tap(place);\n}\n");
    const QString good = write("good.js", "import { use } from './steps.js';\nuse('tile_car');\nlog('yes');");
    Result result = run({"--script", good});
    QCOMPARE(result.err, QString());
    QCOMPARE(result.out, QStringLiteral("yes\n"));
    // Whatever is thrown in the other file ends the script as well.
    write("throws.js", "throw undefined;");
    const QString importing = write("importing.js", "import './throws.js';");
    result = run({"--script", importing});
    QCOMPARE(result.code, 1);
    QCOMPARE(result.err, importing + ": undefined\n");
    // Two that import each other, and one that is imported twice
    write("one.js", "import './two.js';\nlog('one');");
    result = run({"--script", write("two.js", "import './one.js';\nimport * as one from './one.js';\nlog('two');")});
    QCOMPARE(result.err, QString());
    QCOMPARE(result.out, QStringLiteral("one\ntwo\n"));
    const QString bad = write("b %20 d.js", "import { use } from './steps.js';\n\nuse('nothing');");
    result = run({"--script", bad});
    QCOMPARE(result.code, 1);
    QCOMPARE(result.err,
             steps + ":2: Error: nothing named \"nothing\" is visible, called from " + bad + QStringLiteral(":3\n"));
}

void TestHeadunit::scriptsAreInstant() {
    // A day on the unit's clock; it ends within the time limit of run().
    const Result result = run({"--script", write("s.js", "wait(24 * 3600 * 1000); log('yes');")});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.out, QStringLiteral("yes\n"));
}

void TestHeadunit::trace() {
    const QString script = write("s.js", "volume(0, 21); log('between'); volume(2, 7);");
    const QStringList lines = run({"--trace", "--script", script}).out.split('\n', Qt::SkipEmptyParts);
    const QStringList calls = lines.filter(QRegularExpression("^(setVolumeLevel|between)"));
    QCOMPARE(calls.size(), 3);
    QVERIFY2(calls.at(0).startsWith("setVolumeLevel(21, 0) -> "), qPrintable(calls.at(0)));
    QCOMPARE(calls.at(1), QStringLiteral("between"));
    QVERIFY2(calls.at(2).startsWith("setVolumeLevel(7, 2) -> "), qPrintable(calls.at(2)));
    QVERIFY(calls.at(0).size() > int(qstrlen("setVolumeLevel(21, 0) -> ")));
    QCOMPARE(run({"--script", script}).out, QStringLiteral("between\n"));
}

void TestHeadunit::traceOfTheCar() {
    const QString script = write("s.js",
                                 "prompt('navigation', true); prompt('navigation', false); mute(true);"
                                 "call(true); call(false); car(); tap('car_prompt_announcement');");
    const QStringList lines = run({"--trace", "--script", script}).out.split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.filter(QRegularExpression("^(prompt|mute)")),
             QStringList({"prompt(\"navigation\", true) -> navigation begins, what plays steps back by 12 dB",
                          "prompt(\"navigation\", false) -> navigation ends",
                          "mute(true) -> what plays falls silent, prompts do not",
                          "prompt(\"phone\", true) -> phone begins, what plays falls silent",
                          "prompt(\"phone\", false) -> phone ends",
                          "prompt(\"announcement\", true) -> announcement begins, in place of what plays"}));
}

void TestHeadunit::traceOfAVisit() {
    // Calls in both directions, readers included, in their order.
    const QString script =
        write("s.js", "open('audiosetting'); wait(200); tap('key_Subwoofer'); tap('key_return'); wait(0);");
    const QStringList lines = run({"--trace", "--script", script}).out.split('\n', Qt::SkipEmptyParts);
    int at = -1;
    for (const char *call :
         {"onCreate() -> ", "SettingsFunc::getValue(\"SettingTouchPageType\", 0) -> ", "onShow() -> ",
          "getValue(\"subwooferLevel\", 3) -> ", "onEnter() -> ", "doBeep(0) -> key click", "setSubwooferValue(3) -> ",
          "TouchEvent(15, -1, -1) -> leave by Back", "onExit() -> ", "onHide() -> ", "onDestroy() -> "}) {
        const int next = lines.indexOf(QRegularExpression('^' + QRegularExpression::escape(call) + ".*"), at + 1);
        QVERIFY2(next > at, qPrintable(QLatin1String(call) + QLatin1Char('\n') + lines.join('\n')));
        at = next;
    }
}

void TestHeadunit::debugLines() {
    const QString script = write("s.js", "open('audiosetting');");
    QCOMPARE(run({"--script", script}).err, QString());
    const Result verbose = run({"--verbose", "--script", script});
    QCOMPARE(verbose.code, 0);
    QVERIFY2(verbose.err.contains("[DBG]") && verbose.err.contains("audioSettingsPage: "), qPrintable(verbose.err));
}

void TestHeadunit::tourThatCannotKeepAPicture() {
    QVERIFY(QDir().mkpath(m_folder->filePath("pictures/home.png")));
    const Result result = run({"--tour", "pictures"});
    QCOMPARE(result.code, 1);
    const QRegularExpression line("^:/headunit/tour\\.js:\\d+: Error: cannot write .*home\\.png\n$");
    QVERIFY2(line.match(result.err).hasMatch(), qPrintable(result.err));
}

void TestHeadunit::tourWithoutADisplay_data() {
    QTest::addColumn<QString>("display");
    QTest::newRow("none") << QString();
    QTest::newRow("one that does not answer") << QStringLiteral(":59000");  // asks no name server
}

void TestHeadunit::tourWithoutADisplay() {
    QFETCH(QString, display);
    const Result result = run({}, {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}, display);
    QVERIFY2(result.code == 0, qPrintable(result.err));
    // Messages of Qt about the display may come before.
    QVERIFY(display.isEmpty() ? result.errLines().size() == 1 : !result.errLines().isEmpty());
    const QString folder = m_folder->filePath("headunit-tour");
    QVERIFY2(result.errLines().last().contains("no display") && result.errLines().last().contains(folder),
             qPrintable(result.err));
    // One line of the index for each picture, and each picture is of the screen's size.
    const QStringList pictures = QDir(folder).entryList({"*.png"}, QDir::Files);
    const QStringList index = result.out.split('\n', Qt::SkipEmptyParts);
    QVERIFY(pictures.size() >= 10);
    QCOMPARE(index.size(), pictures.size());
    for (const QString &line : index) {
        const QString name = line.section(' ', 0, 0);
        QVERIFY2(QImage(folder + '/' + name).size() == QSize(1024, 600), qPrintable(name));
    }
    // The user's own settings were left alone.
    QVERIFY(!QDir(m_folder->filePath("data")).exists());
}

void TestHeadunit::damagedSettings() {
    // The store's answer is tested with the store; here, that the program runs on and says so once.
    const QString script = write("s.js", "setStore('subwooferLevel', 9); wait(200);");
    const QString root = m_folder->filePath("root");
    QCOMPARE(run({"--root", root, "--script", script}).code, 0);
    const QString settings = root + "/media/flash/nvm/settings/audiosettings.json";
    QVERIFY(QFile::exists(settings));
    write(QDir(m_folder->path()).relativeFilePath(settings), QByteArray("\0\1\2 no settings", 15));
    const Result result = run({"--root", root, "--script", write("t.js", "expect('home', 'visible', true);")});
    QCOMPARE(result.code, 0);
    QCOMPARE(result.errLines().size(), 1);
    QVERIFY2(result.err.contains(settings), qPrintable(result.err));
}

void TestHeadunit::signalsEndTheUnitInOrder_data() {
    QTest::addColumn<int>("number");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
    QTest::newRow("SIGHUP") << SIGHUP;
}

void TestHeadunit::signalsEndTheUnitInOrder() {
    QFETCH(int, number);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("HOME", m_folder->path());
    environment.insert("PULSE_SERVER", "unix:" + m_folder->filePath("nothing"));
    environment.insert("TMPDIR", m_folder->path());
    QProcess unit;
    unit.setProcessEnvironment(environment);
    unit.setReadChannel(QProcess::StandardError);
    unit.start(HEADUNIT, {"--root", m_folder->filePath("root")});
    // Its line once everything runs
    QByteArray said;
    while (!said.contains("no sound server") && unit.waitForReadyRead(patience)) {
        said += unit.readAll();
    }
    QCOMPARE(::kill(static_cast<pid_t>(unit.processId()), number), 0);
    QVERIFY(unit.waitForFinished(patience));
    QCOMPARE(unit.exitStatus(), QProcess::NormalExit);
    QCOMPARE(unit.exitCode(), 0);
}

/// A script that does not end by itself: what it set is kept, and its exit code says that it was cut short.
void TestHeadunit::signalsEndAScript() {
    const QString script = write("endless.js", "setStore('kept', 5);\nlog('runs');\nwhile (true) {}\n");
    const QStringList root = {"--root", m_folder->filePath("root")};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    QProcess unit;
    unit.setProcessEnvironment(environment);
    unit.start(HEADUNIT, root + QStringList{"--script", script});
    QVERIFY(unit.waitForReadyRead(patience));
    QCOMPARE(unit.readAllStandardOutput(), QByteArray("runs\n"));
    unit.terminate();
    QVERIFY(unit.waitForFinished(patience));
    QCOMPARE(unit.exitStatus(), QProcess::NormalExit);
    QCOMPARE(unit.exitCode(), 128 + SIGTERM);
    const Result after = run(root + QStringList{"--script", write("look.js", "log(store('kept'));\n")});
    QCOMPARE(after.out, QStringLiteral("5\n"));
}

QTEST_GUILESS_MAIN(TestHeadunit)
#include "tst_headunit.moc"
