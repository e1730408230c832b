// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/options.h"

#include <QTest>

using headunit::parseOptions;

class TestOptions : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void defaults();
    void values();
    void sound();
    void letters();
    void fullscreen();
    void soundJobs();
    void refuses_data();
    void refuses();
    void helpNamesEveryOption();
};

void TestOptions::defaults() {
    const headunit::ParsedOptions parsed = parseOptions({QStringLiteral("headunit")});
    QCOMPARE(parsed.error, QString());
    QCOMPARE(parsed.options.plugins, QStringList());
    QCOMPARE(parsed.options.root, QString());
    QCOMPARE(parsed.options.scale, 0.0);  // as the display asks
    QCOMPARE(parsed.options.language, QString());
    QCOMPARE(parsed.options.open, QString());
    QVERIFY(!parsed.options.scripted());
    QVERIFY(!parsed.options.trace);
    QVERIFY(!parsed.options.verbose);
    QVERIFY(!parsed.options.exitWhenShown);
    QVERIFY(!parsed.options.help);
    QVERIFY(!parsed.options.version);
}

void TestOptions::values() {
    const headunit::ParsedOptions parsed = parseOptions(
        {QStringLiteral("headunit"), QStringLiteral("a.so"), QStringLiteral("--root"), QStringLiteral("/r"),
         QStringLiteral("--scale=1.5"), QStringLiteral("--language"), QStringLiteral("de"), QStringLiteral("--open"),
         QStringLiteral("x"), QStringLiteral("--script"), QStringLiteral("s.js"), QStringLiteral("--trace"),
         QStringLiteral("--verbose"), QStringLiteral("--exit-when-shown"), QStringLiteral("b.so")});
    QCOMPARE(parsed.error, QString());
    QCOMPARE(parsed.options.plugins, QStringList({QStringLiteral("a.so"), QStringLiteral("b.so")}));
    QCOMPARE(parsed.options.root, QStringLiteral("/r"));
    QCOMPARE(parsed.options.scale, 1.5);
    QCOMPARE(parsed.options.language, QStringLiteral("de"));
    QCOMPARE(parsed.options.open, QStringLiteral("x"));
    QCOMPARE(parsed.options.script, QStringLiteral("s.js"));
    QVERIFY(parsed.options.scripted());
    QVERIFY(parsed.options.trace);
    QVERIFY(parsed.options.verbose);
    QVERIFY(parsed.options.exitWhenShown);
}

void TestOptions::sound() {
    headunit::PlayJob job = parseOptions({QStringLiteral("headunit")}).options.playJob;
    QCOMPARE(job.what, QStringLiteral("music"));
    QCOMPARE(job.device + job.map, QString());
    QVERIFY(!job.meters);
    const headunit::ParsedOptions parsed =
        parseOptions({QStringLiteral("headunit"), QStringLiteral("--play=noise"), QStringLiteral("--device=car"),
                      QStringLiteral("--map=FL=aux0,SR=lfe"), QStringLiteral("--meters")});
    QCOMPARE(parsed.error, QString());
    job = parsed.options.playJob;
    QCOMPARE(job.what, QStringLiteral("noise"));
    QCOMPARE(job.device, QStringLiteral("car"));
    QCOMPARE(job.map, QStringLiteral("FL=aux0,SR=lfe"));
    QVERIFY(job.meters);
}

void TestOptions::letters() {
    QVERIFY(parseOptions({QStringLiteral("headunit"), QStringLiteral("-h")}).options.help);
    QVERIFY(parseOptions({QStringLiteral("headunit"), QStringLiteral("-v")}).options.version);
}

void TestOptions::fullscreen() {
    const headunit::Options options =
        parseOptions({QStringLiteral("headunit"), QStringLiteral("--fullscreen")}).options;
    QVERIFY(options.fullscreen);
    QCOMPARE(options.scale, 0.0);  // as large as fits
    QVERIFY(!parseOptions({QStringLiteral("headunit")}).options.fullscreen);
}

void TestOptions::soundJobs() {
    QVERIFY(parseOptions({QStringLiteral("headunit")}).options.soundJob.isEmpty());
    headunit::ParsedOptions parsed = parseOptions(
        {QStringLiteral("headunit"), QStringLiteral("--render"), QStringLiteral("in.wav"), QStringLiteral("out.wav")});
    QCOMPARE(parsed.error, QString());
    QVERIFY(!parsed.options.soundJob.isEmpty());
    QCOMPARE(parsed.options.soundJob.renderFrom, QStringLiteral("in.wav"));
    QCOMPARE(parsed.options.soundJob.renderTo, QStringLiteral("out.wav"));
    QCOMPARE(parsed.options.plugins, QStringList());
    parsed = parseOptions({QStringLiteral("headunit"), QStringLiteral("--measure=a.csv")});
    QCOMPARE(parsed.error, QString());
    QVERIFY(!parsed.options.soundJob.isEmpty());
    QCOMPARE(parsed.options.soundJob.measureTo, QStringLiteral("a.csv"));
    QVERIFY(!parsed.options.setupJob() && !parsed.options.desk && !parsed.options.remote);
    parsed = parseOptions({QStringLiteral("headunit"), QStringLiteral("--remote")});
    QVERIFY(parsed.options.remote);
    QCOMPARE(parsed.options.control, QString());
    parsed = parseOptions({QStringLiteral("headunit"), QStringLiteral("--control"), QStringLiteral("tap(1, 2)")});
    QCOMPARE(parsed.options.control, QStringLiteral("tap(1, 2)"));
    QVERIFY(!parsed.options.remote);
    parsed = parseOptions({QStringLiteral("headunit"), QStringLiteral("--export=a.txt")});
    QVERIFY(parsed.options.setupJob());
    QCOMPARE(parsed.options.exportTo, QStringLiteral("a.txt"));
    parsed = parseOptions({QStringLiteral("headunit"), QStringLiteral("--import=b.txt"), QStringLiteral("--desk")});
    QVERIFY(parsed.options.setupJob() && parsed.options.desk);
    QCOMPARE(parsed.options.importFrom, QStringLiteral("b.txt"));
}

void TestOptions::refuses_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");
    const auto row = [](const char *name, const char *arguments, const char *named) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' ')) << QString::fromLatin1(named);
    };
    row("unknown option", "--nonsense", "nonsense");
    row("unknown short option", "-q", "q");
    row("value missing", "--root", "root");
    row("value empty", "--root=", "--root");
    row("value for a flag", "--trace=1", "trace");
    row("map that is none", "--map FL", "--map FL: \"FL\" is not like");
    row("map of an unknown output", "--map FX=aux0", "\"FX\"");
    row("given twice", "--open a --open b", "--open");
    row("scale no number", "--scale big", "--scale big");
    row("scale zero", "--scale 0", "--scale 0");
    row("scale negative", "--scale=-1", "--scale -1");
    row("scale too large", "--scale 9", "--scale 9");
    row("scale nan", "--scale nan", "--scale nan");
    row("watchdog no number", "--watchdog soon", "--watchdog soon");
    row("watchdog zero", "--watchdog 0", "--watchdog 0");
    row("watchdog too long", "--watchdog 3601", "--watchdog 3601");
    row("watchdog nan", "--watchdog nan", "--watchdog nan");
    row("script and tour", "--script a --tour b", "--tour");
    row("export and import", "--export a --import b", "--export and --import");
    row("import and script", "--import a --script b", "--script and --import");
    row("control and script", "--control a --script b", "--script and --control");
    row("control without a command", "--control", "--control");
    row("tour and play", "--tour a --play music", "--play and --tour");
    row("measure and meters", "--measure a.csv --meters", "--meters and --measure");
    row("remote and script", "--remote --script b", "--remote and --script");
    row("export without a file", "--export", "--export");
    row("render and measure", "--render a --measure b c", "--render and --measure");
    row("render without a second file", "--render a", "--render");
    row("render with a third file", "--render a b c", "--render");
    row("render into a file without a name", "--render a ", "--render");
    row("measure into two files", "--measure a.csv b.png", "b.png");
}

void TestOptions::refuses() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    arguments.prepend(QStringLiteral("headunit"));
    const QString error = parseOptions(arguments).error;
    QVERIFY2(error.contains(named), qPrintable(error));
    QVERIFY2(!error.contains(QLatin1Char('\n')), qPrintable(error));
}

void TestOptions::helpNamesEveryOption() {
    const QString help = headunit::optionsHelp();
    for (const char *name : {"--help",
                             "--version",
                             "--root <DIR>",
                             "--scale <N>",
                             "--fullscreen",
                             "--language <xx>",
                             "--open <NAME>",
                             "--script <FILE.js>",
                             "--tour <DIR>",
                             "--play <WHAT>",
                             "--device <NAME>",
                             "--map <FL=CHANNEL,...>",
                             "--meters",
                             "--render <IN>",
                             "--measure <OUT>",
                             "--export <FILE>",
                             "--import <FILE>",
                             "--remote",
                             "--control <COMMAND>",
                             "--desk",
                             "--watchdog <SECONDS>",
                             "--trace",
                             "--verbose",
                             "--exit-when-shown"}) {
        QVERIFY2(help.contains(QLatin1String(name)), name);
    }
}

QTEST_GUILESS_MAIN(TestOptions)
#include "tst_options.moc"
