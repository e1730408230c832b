// SPDX-License-Identifier: Apache-2.0
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QXmlStreamReader>

// The kit can fail: each seeded fault of a unit is found by the check that names it, a check that does not end well is
// not ok while the others go on, and the program's options do what they say.
class TestConformance : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void findsAFault_data();
    void findsAFault();
    void aBadEndIsAResult_data();
    void aBadEndIsAResult();
    void knownDeviationsAreTold();
    void aHealedDeviationIsTold();
    void badDeviationsAreAnError_data();
    void badDeviationsAreAnError();
    void listsItsChecks();
    void runsInProcess();
    void writesJUnit();
    void withoutAPluginItsChecksAreLeftOut();
    void badOptions_data();
    void badOptions();

private:
    struct Run {
        int exitCode;
        QString output;
        QString errors;
    };
    static Run run(const QString &kit, const QStringList &arguments, const QString &fault = QString());
};

namespace {

constexpr int patience = 1200000;  // ms

const struct {
    const char *fault;
    const char *check;
} faults[] = {
    {"int-default-0", "store.int-default"},
    {"text-reads-0", "store.text-is-default"},
    {"flag-is-no-number", "store.bool-is-int"},
    {"flag-default-false", "store.bool-default"},
    {"only-1-is-true", "store.int-is-bool"},
    {"no-sign", "store.any-number"},
    {"keys-without-case", "store.keys-apart"},
    {"keys-without-group", "store.keys-apart"},
    {"store-late", "store.read-at-once"},
    {"first-write-lost", "store.read-at-once"},
    {"zero-is-lost", "store.read-at-once"},
    {"false-is-lost", "store.bool-round-trip"},
    {"store-in-memory", "store.survives-restart"},
    {"stores-the-default", "store.default-is-not-stored"},
    {"write-announces", "store.writes-are-silent"},
    {"flat-forgets-level", "flat.crossover-keys"},
    {"flat-forgets-height", "flat.crossover-keys"},
    {"flat-takes-type", "flat.crossover-keeps"},
    {"flat-takes-presets", "flat.crossover-keeps"},
    {"flat-takes-delays", "flat.crossover-keeps"},
    {"flat-not-announced", "flat.crossover-signal"},
    {"flat-announced-twice", "flat.crossover-signal"},
    {"flat-announces-first", "flat.crossover-order"},
    {"last-delay-stays", "flat.delay-keys"},
    {"delays-take-presets", "flat.delay-keeps"},
    {"delays-not-announced", "flat.delay-signal"},
    {"delays-announced-as-crossover", "flat.delay-signal"},
    {"delays-announced-first", "flat.delay-order"},
    {"clear-does-nothing", "clear.forgets"},
    {"clear-keeps-loudness", "clear.forgets"},
    {"clear-does-nothing", "clear.without-file"},
    {"clear-lowers-curve", "clear.curve-in-store"},
    {"clear-announces", "clear.is-silent"},
    {"defeat-writes", "defeat.reads-only"},
    {"shared-default-0", "shared.default"},
    {"shared-is-lost", "shared.read-at-once"},
    {"shared-is-lost", "shared.survives-restart"},
    {"shared-announces", "shared.writes-are-silent"},
    {"stores-are-one", "shared.apart"},
    {"cache-is-mute", "cache.reaches"},
    {"unnamed-curve-is-flat", "audio.curve"},
    {"curve-not-kept", "audio.curve-survives-restart"},
    {"band-and-value-swapped", "eq.band-as-sent"},
    {"band-not-below-0", "eq.band-as-sent"},
    {"band-not-in-store", "eq.band-in-store"},
    {"band-not-in-store", "eq.bands-survive-restart"},
    {"neighbour-follows", "eq.bands-apart"},
    {"band-range-open", "eq.band-range"},
    {"band-selects-curve", "eq.band-keeps-curve"},
    {"curve-takes-bands", "eq.curve-keeps-bands"},
    {"balance-swapped", "balance.as-set"},
    {"fader-turned", "balance.as-set"},
    {"balance-range-open", "balance.range"},
    {"level-and-channel-swapped", "volume.as-set"},
    {"level-not-announced", "volume.announced"},
    {"level-announced-twice", "volume.announced"},
    {"announcement-swapped", "volume.announced"},
    {"level-announced-first", "volume.announced-after"},
    {"same-level-announced", "volume.same-is-silent"},
    {"level-range-open", "volume.range"},
    {"no-such-channel-announced", "volume.no-such-channel"},
    {"levels-not-kept", "volume.survives-restart"},
    {"mcu-has-levels-of-its-own", "mcu.volume-shared"},
    {"mcu-level-swapped", "mcu.volume-shared"},
    {"mcu-announces-again", "mcu.volume-announced"},
    {"delays-are-written", "mcu.delays-only-read"},
    {"subwoofer-is-stored", "mcu.stores-nothing"},
    {"hold-1000", "hold.default-1500"},
    {"hold-2500", "hold.default-1500"},
    {"hold-interval-fixed", "hold.interval"},
    {"hold-comes-twice", "hold.once"},
    {"every-press-is-long", "hold.short-press"},
    {"hold-swallows-click", "hold.keeps-click"},
    {"hold-is-mute", "hold.again"},
    {"every-press-is-long", "hold.beside-key"},
    {"repeats-at-half-rate", "repeat.rate"},
    {"no-repeats", "repeat.rate"},
    {"repeats-go-on", "repeat.ends"},
    {"repeats-go-on", "repeat.ends-when-disabled"},
    {"label-without-id", "label.click"},
    {"group-is-0", "label.click"},
    {"label-clicks-outside", "label.leave-is-no-click"},
    {"label-without-pressed", "label.pictures"},
    {"label-without-disabled", "label.pictures"},
    {"label-takes-qrc-only", "label.paths"},
    {"slider-end-inclusive", "slider.range"},
    {"set-value-is-silent", "slider.set-value"},
    {"slider-emits-twice", "slider.set-value"},
    {"set-level-emits", "slider.set-level"},
    {"index-is-value", "slider.index"},
    {"slider-does-not-jump", "slider.jumps"},
    {"slider-emits-twice", "slider.drag"},
    {"never-moving", "slider.move-state"},
    {"level-is-clamped", "slider.out-of-range"},
    {"knob-always-shown", "slider.pictures"},
    {"track-swapped", "slider.pictures"},
    {"does-not-scroll", "scroll.finger"},
    {"does-not-scroll", "scroll.no-click"},
    {"does-not-scroll", "scroll.ends"},
    {"scroll-swallows-taps", "scroll.tap"},
    {"bar-elsewhere", "scrollbar.place"},
    {"bar-is-empty", "scrollbar.shows"},
    {"attribute-7", "window.defaults"},
    {"window-eats-keys", "window.defaults"},
    {"window-eats-back", "window.defaults"},
    {"widget-is-lost", "window.main-widget"},
    {"no-display-control", "display.control"},
    {"a-text-is-missing", "text.known"},
    {"texts-are-one", "text.apart"},
    {"unknown-text-has-one", "text.unknown"},
    {"language-stays", "text.language"},
    {"language-stays", "text.forms"},
    {"default-font-stays", "font.default"},
    {"font-for-all", "font.default"},
    {"font-changes-size", "font.default-keeps"},
    {"custom-font-for-all", "font.custom"},
    {"wide-font", "font.fits"},
    {"sheet-blackens-captions", "look.no-style-sheet"},
    {"sheet-blackens-captions", "look.captions"},
    {"sheet-frames-keys", "look.keys"},
    {"sheet-frames-keys", "look.pressed"},
    {"widget-is-lost", "plugin.opens"},
    {"curve-is-flat", "visit.eq"},
    {"hold-is-mute", "visit.eq"},
    {"flat-not-announced", "visit.crossover"},
    {"no-repeats", "visit.timing"},
    {"presets-are-lost", "visit.timing"},
    {"slider-is-mute", "visit.volume"},
    {"slider-is-mute", "visit.sourcegain"},
    {"cache-is-mute", "visit.request"},
};

}  // namespace

TestConformance::Run TestConformance::run(const QString &kit, const QStringList &arguments, const QString &fault) {
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("CONFORMANCE_FAULT", fault);
    environment.insert("QT_LOGGING_RULES", "*.debug=false");
    process.setProcessEnvironment(environment);
    process.start(kit, arguments);
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit) {
        return {-1, QString(), process.errorString()};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

void TestConformance::findsAFault_data() {
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("check");
    for (const auto &row : faults) {
        QTest::addRow("%s, %s", row.fault, row.check) << QString(row.fault) << QString(row.check);
    }
}

void TestConformance::findsAFault() {
    QFETCH(QString, fault);
    QFETCH(QString, check);
    const Run found = run(FAULTY_KIT, {"--only", check, "--plugin", PLUGIN}, fault);
    QVERIFY2(found.exitCode == 1, qPrintable(found.output + found.errors));
    QVERIFY2(found.output.contains("not ok 1 - " + check + ":"), qPrintable(found.output));
    QVERIFY2(found.output.contains("expected ") || found.output.contains("on the screen"), qPrintable(found.output));
    QVERIFY2(found.output.contains("suffers: "), qPrintable(found.output));
    QVERIFY2(!found.output.contains("crashed"), qPrintable(found.output));
}

void TestConformance::aBadEndIsAResult_data() {
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("check");
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("said");
    QTest::newRow("crash") << "beep-crashes"
                           << "audio.beep"
                           << "audio.*"
                           << "crashed (signal 6";
    QTest::newRow("exit") << "beep-exits"
                          << "audio.beep"
                          << "audio.*"
                          << "ended the process (exit code 3)";
    QTest::newRow("exception") << "beep-throws"
                               << "audio.beep"
                               << "audio.*"
                               << "threw an exception: no such sound";
    QTest::newRow("hang") << "filter-hangs"
                          << "mcu.filters-return"
                          << "mcu.*"
                          << "did not come to an end";
    QTest::newRow("crash of a service") << "loudness-crashes"
                                        << "mcu.switches-return"
                                        << "mcu.*"
                                        << "crashed";
    QTest::newRow("crash for a band") << "no-such-band-crashes"
                                      << "eq.no-such-band"
                                      << "eq.*"
                                      << "crashed";
}

void TestConformance::aBadEndIsAResult() {
    QFETCH(QString, fault);
    QFETCH(QString, check);
    QFETCH(QString, group);
    QFETCH(QString, said);
    const Run found = run(FAULTY_KIT, {"--only", group, "--cpu-limit", "3"}, fault);
    QCOMPARE(found.exitCode, 1);
    QVERIFY2(found.output.contains(QRegularExpression("\nnot ok \\d+ - " + QRegularExpression::escape(check) + ":")),
             qPrintable(found.output));
    QVERIFY2(found.output.contains(said), qPrintable(found.output));
    QVERIFY2(found.output.count("\nok ") > 2, qPrintable(found.output));
    QCOMPARE(found.output.count("not ok"), 2);  // the line and the summary
}

void TestConformance::knownDeviationsAreTold() {
    QTemporaryDir folder;
    QFile file(folder.filePath("known"));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("# what the unit lacks\n\naudio.beep: has no loudspeaker\n");
    file.close();
    const Run found = run(FAULTY_KIT, {"--only", "audio.*", "--deviations", file.fileName()}, "beep-crashes");
    QVERIFY2(found.exitCode == 0, qPrintable(found.output));
    QVERIFY2(found.output.contains("# TODO known deviation: has no loudspeaker"), qPrintable(found.output));
    QVERIFY2(found.output.contains("1 known deviations"), qPrintable(found.output));
}

void TestConformance::aHealedDeviationIsTold() {
    QTemporaryDir folder;
    QFile file(folder.filePath("known"));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write("audio.beep: has no loudspeaker\n");
    file.close();
    const Run found = run(KIT, {"--only", "audio.*", "--deviations", file.fileName()});
    QCOMPARE(found.exitCode, 0);
    QVERIFY2(found.output.contains("# audio.beep is ok now: the deviation has healed"), qPrintable(found.output));
}

void TestConformance::badDeviationsAreAnError_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("said");
    QTest::newRow("no such check") << QByteArray("audio.beeep: why\n") << ":1: audio.beeep is no check";
    QTest::newRow("no reason") << QByteArray("\naudio.beep:\n") << ":2: audio.beep gives no reason";
}

void TestConformance::badDeviationsAreAnError() {
    QFETCH(QByteArray, content);
    QFETCH(QString, said);
    QTemporaryDir folder;
    QFile file(folder.filePath("known"));
    QVERIFY(file.open(QFile::WriteOnly));
    file.write(content);
    file.close();
    const Run found = run(KIT, {"--deviations", file.fileName()});
    QCOMPARE(found.exitCode, 2);
    QVERIFY2(found.errors.contains(said), qPrintable(found.errors));
}

void TestConformance::listsItsChecks() {
    const Run found = run(KIT, {"--list"});
    QCOMPARE(found.exitCode, 0);
    const QStringList lines = found.output.split('\n', Qt::SkipEmptyParts);
    QStringList names;
    for (const QString &line : lines) {
        QVERIFY2(line.contains(QRegularExpression("^[a-z]+\\.[a-z0-9-]+: [^ ].*\\.$")), qPrintable(line));
        names << line.section(':', 0, 0);
    }
    QCOMPARE(names.removeDuplicates(), 0);
    // Every check that a fault names exists.
    for (const auto &row : faults) {
        QVERIFY2(names.contains(row.check), row.check);
    }
}

void TestConformance::runsInProcess() {
    const Run good = run(KIT, {"--in-process", "--only", "store.int-default"});
    QCOMPARE(good.exitCode, 0);
    QVERIFY2(good.output.contains("ok 1 - store.int-default"), qPrintable(good.output));
    const Run bad = run(FAULTY_KIT, {"--in-process", "--only", "store.int-default"}, "int-default-0");
    QCOMPARE(bad.exitCode, 1);
}

void TestConformance::writesJUnit() {
    QTemporaryDir folder;
    const QString file = folder.filePath("results.xml");
    const Run found = run(FAULTY_KIT, {"--only", "audio.*", "--junit", file}, "beep-crashes");
    QCOMPARE(found.exitCode, 1);
    QFile results(file);
    QVERIFY(results.open(QFile::ReadOnly));
    QXmlStreamReader xml(&results);
    int cases = 0;
    QStringList failed;
    QString name;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement) {
            if (xml.name() == QLatin1String("testcase")) {
                ++cases;
                name = xml.attributes().value("name").toString();
            } else if (xml.name() == QLatin1String("failure")) {
                failed << name;
            }
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(cases > 2);
    QCOMPARE(failed, QStringList("audio.beep"));
}

void TestConformance::withoutAPluginItsChecksAreLeftOut() {
    const Run found = run(KIT, {"--only", "plugin.*"});
    QCOMPARE(found.exitCode, 0);
    QVERIFY2(found.output.contains("# SKIP no plug-in named"), qPrintable(found.output));
}

void TestConformance::badOptions_data() {
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("said");
    QTest::newRow("unknown") << QStringList{"--all"} << "unknown option --all";
    QTest::newRow("no value") << QStringList{"--only"} << "--only takes a value";
    QTest::newRow("no such check") << QStringList{"--only", "no.such"} << "no such check: no.such";
    QTest::newRow("no number") << QStringList{"--limit", "long"} << "--limit takes a number of seconds";
    QTest::newRow("all in process") << QStringList{"--in-process"} << "--in-process takes exactly one --only";
    QTest::newRow("no such file") << QStringList{"--deviations", "/no/such"} << "/no/such: ";
}

void TestConformance::badOptions() {
    QFETCH(QStringList, arguments);
    QFETCH(QString, said);
    const Run found = run(KIT, arguments);
    QCOMPARE(found.exitCode, 2);
    QVERIFY2(found.errors.contains(said), qPrintable(found.errors));
    QCOMPARE(found.errors.count('\n'), 1);
}

QTEST_GUILESS_MAIN(TestConformance)
#include "tst_conformance.moc"
