// SPDX-License-Identifier: Apache-2.0
#include <QDir>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// The example unit: its screens beside those of the reference unit, and what it keeps.
class TestCarUnit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void looksLikeTheReferenceUnit_data();
    void looksLikeTheReferenceUnit();
    void whatIsSetSurvivesAPageChangeAndARestart_data();
    void whatIsSetSurvivesAPageChangeAndARestart();
    void flat_data();
    void flat();
    void resetRestoresTheFactoryState();
    void theLanguageIsKept();
    void keysOfTheUnitLeaveTheApplication();
    void badArgumentsAreOneLine();
    void itIsSmall();

private:
    using Shots = QHash<QString, QImage>;
    /// Runs steps on the unit whose files lie in \a root; the pictures that they take.
    static Shots drive(const QString &root, const QStringList &steps);

    Shots m_example;
    Shots m_reference;
};

namespace {

constexpr int patience = 600000;  // ms

// The two units draw scroll bars in their own ways, and may hint fonts by other rules.
constexpr int channelTolerance = 24;
constexpr double differingShare = 0.005;

// Every page in a state that is not the first one; the same touches on both units.
const QStringList visit = {
    "wait 400",
    "tap key_Subwoofer",
    "tap key_subvol_next",
    "tap key_Phase_180",
    "wait 400",
    "shot general",
    "tap key_defeat",
    "wait 400",
    "shot general_defeat",
    "tap key_defeat",
    "tap key_factoryeq",
    "wait 400",
    "tap key_Rock",
    "wait 400",
    "shot factoryeq",
    "tap key_eq",
    "wait 400",
    "drag 177 345 177 240",
    "wait 400",
    "hold key_custom2 1600",
    "wait 3000",
    "shot eq",
    "tap key_crossover",
    "wait 400",
    "tap key_freq_plus",
    "tap key_freq_plus",
    "tap key_slope_plus",
    "wait 400",
    "shot crossover",
    "tap key_timing",
    "wait 400",
    "tap key_fl_plus",
    "tap key_rr_plus",
    "wait 3000",
    "shot timing",
    "tap key_general",
    "wait 400",
    "tap key_advanced",
    "wait 400",
    "tap Key_001_loudness",
    "wait 400",
    "shot settings",
    "tap Key_003_source_gain",
    "wait 400",
    "shot sourcegain",
    "tap key_return",
    "wait 400",
    "tap Key_004_vol_settings",
    "wait 400",
    "shot volume",
    "tap key_return",
    "wait 400",
    "tap Key_005_res_audio",
    "wait 400",
    "shot reset",
};

QString scriptOf(const QStringList &steps) {
    QString script = QStringLiteral("open(\"audiosetting\");\n");
    for (const QString &step : steps) {
        const QStringList words = step.split(' ');
        if (words[0] == "drag") {
            script += QStringLiteral("press(%1, %2);\nmove(%3, %4);\nrelease();\n")
                          .arg(words[1], words[2], words[3], words[4]);
        } else if (words[0] == "hold") {
            script += QStringLiteral("press(\"%1\");\nwait(%2);\nrelease();\n").arg(words[1], words[2]);
        } else if (words[0] == "wait") {
            script += QStringLiteral("wait(%1);\n").arg(words[1]);
        } else if (words[0] == "shot") {
            script += QStringLiteral("shot(\"%1.png\");\n").arg(words[1]);
        } else {
            script += QStringLiteral("tap(\"%1\");\n").arg(words[1]);
        }
    }
    return script;
}

void runProgram(const QString &program, const QStringList &arguments, const QString &folder) {
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    QVERIFY2(process.waitForFinished(patience), qPrintable(process.errorString()));
    QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0, process.readAllStandardError());
}

QHash<QString, QImage> picturesIn(const QString &folder) {
    QHash<QString, QImage> pictures;
    for (const QFileInfo &file : QDir(folder).entryInfoList({"*.png"})) {
        pictures.insert(file.baseName(), QImage(file.filePath()).convertToFormat(QImage::Format_RGB32));
    }
    return pictures;
}

int differingPixels(const QImage &a, const QImage &b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            count += qAbs(qRed(p) - qRed(q)) > channelTolerance || qAbs(qGreen(p) - qGreen(q)) > channelTolerance ||
                     qAbs(qBlue(p) - qBlue(q)) > channelTolerance;
        }
    }
    return count;
}

}  // namespace

TestCarUnit::Shots TestCarUnit::drive(const QString &root, const QStringList &steps) {
    QTemporaryDir folder;
    runProgram(DRIVE, QStringList{root, PLUGIN, folder.path()} + steps, folder.path());
    return picturesIn(folder.path());
}

void TestCarUnit::initTestCase() {
    QTemporaryDir root;
    m_example = drive(root.path(), visit + QStringList{"key 16777232", "tap home_german", "tap home_audio", "wait 400",
                                                       "tap key_general", "wait 400", "shot general_de"});
    QTemporaryDir folder;
    QFile script(folder.filePath("visit.js"));
    QVERIFY(script.open(QFile::WriteOnly));
    script.write(scriptOf(visit).toUtf8());
    script.write(
        "home();\nlanguage(\"de\");\nopen(\"audiosetting\");\nwait(400);\ntap(\"key_general\");\nwait(400);\n"
        "shot(\"general_de.png\");\n");
    script.close();
    runProgram(HEADUNIT, {"--root", folder.filePath("root"), "--script", script.fileName()}, folder.path());
    m_reference = picturesIn(folder.path());
}

void TestCarUnit::looksLikeTheReferenceUnit_data() {
    QTest::addColumn<QString>("name");
    for (const QString &step : visit) {
        if (step.startsWith("shot ")) {
            QTest::newRow(qPrintable(step.mid(5))) << step.mid(5);
        }
    }
    QTest::newRow("general_de") << "general_de";
}

void TestCarUnit::looksLikeTheReferenceUnit() {
    QFETCH(QString, name);
    const QImage example = m_example.value(name);
    const QImage reference = m_reference.value(name);
    QCOMPARE(example.size(), QSize(1024, 600));
    QCOMPARE(reference.size(), QSize(1024, 600));
    const int count = differingPixels(example, reference);
    if (count > example.width() * example.height() * differingShare) {
        example.save(QStringLiteral("carunit_%1.png").arg(name));
        reference.save(QStringLiteral("carunit_%1_reference.png").arg(name));
        QFAIL(qPrintable(
            QStringLiteral("%1 pixels differ; see carunit_%2.png in %3").arg(count).arg(name, QDir::currentPath())));
    }
}

void TestCarUnit::whatIsSetSurvivesAPageChangeAndARestart_data() {
    QTest::addColumn<QStringList>("open");
    QTest::addColumn<QStringList>("change");
    const QStringList settings = {"wait 400", "tap key_advanced", "wait 400"};
    QTest::newRow("General") << QStringList{"wait 400"}
                             << QStringList{"tap key_Subwoofer", "tap key_subvol_next", "tap key_Phase_180"};
    QTest::newRow("EQ") << QStringList{"wait 400", "tap key_eq", "wait 400"}
                        << QStringList{"drag 177 345 177 240", "wait 400", "drag 313 345 313 400"};
    QTest::newRow("Factory EQ") << QStringList{"wait 400", "tap key_factoryeq", "wait 400"}
                                << QStringList{"tap key_Rock"};
    QTest::newRow("Crossover") << QStringList{"wait 400", "tap key_crossover", "wait 400"}
                               << QStringList{"tap key_freq_plus", "tap key_slope_plus", "tap key_level_minus"};
    QTest::newRow("Timing") << QStringList{"wait 400", "tap key_timing", "wait 400"}
                            << QStringList{"tap key_fl_plus", "tap key_rr_plus"};
    QTest::newRow("Source gain") << settings + QStringList{"tap Key_003_source_gain", "wait 400"}
                                 << QStringList{"drag 520 260 700 260"};
    QTest::newRow("Volume settings") << settings + QStringList{"tap Key_004_vol_settings", "wait 400"}
                                     << QStringList{"drag 600 256 760 256"};
}

void TestCarUnit::whatIsSetSurvivesAPageChangeAndARestart() {
    QFETCH(QStringList, open);
    QFETCH(QStringList, change);
    QTemporaryDir root;
    // Leaving and entering the application takes the page away and brings it back.
    const Shots first = drive(root.path(), open + QStringList{"shot before"} + change +
                                               QStringList{"wait 3000", "shot changed", "key 16777232",
                                                           "tap home_audio", "wait 400", "shot again"});
    QVERIFY(differingPixels(first["before"], first["changed"]) > 0);
    QCOMPARE(first["again"], first["changed"]);
    const Shots restarted = drive(root.path(), open + QStringList{"wait 3000", "shot restarted"});
    QCOMPARE(restarted["restarted"], first["changed"]);
}

void TestCarUnit::flat_data() {
    QTest::addColumn<QString>("tab");
    QTest::addColumn<QStringList>("change");
    QTest::addColumn<QString>("flatKey");
    QTest::newRow("EQ") << "key_eq" << QStringList{"drag 177 345 177 240"} << "key_flat";
    QTest::newRow("Crossover") << "key_crossover" << QStringList{"tap key_freq_plus", "tap key_level_minus"}
                               << "Key_update";
    QTest::newRow("Timing") << "key_timing" << QStringList{"tap key_fl_plus", "tap key_rr_plus"} << "Key_update";
}

void TestCarUnit::flat() {
    QFETCH(QString, tab);
    QFETCH(QStringList, change);
    QFETCH(QString, flatKey);
    QTemporaryDir root;
    const QStringList open = {"wait 400", "tap " + tab, "wait 400"};
    const Shots shots =
        drive(root.path(), open + QStringList{"shot before"} + change +
                               QStringList{"wait 3000", "shot changed", "tap " + flatKey, "wait 3000", "shot flat"});
    QVERIFY(differingPixels(shots["before"], shots["changed"]) > 0);
    QCOMPARE(shots["flat"], shots["before"]);
    QCOMPARE(drive(root.path(), open + QStringList{"shot restarted"})["restarted"], shots["flat"]);
}

void TestCarUnit::resetRestoresTheFactoryState() {
    const QStringList reset = {"wait 400",         "tap key_general", "wait 400",
                               "tap key_advanced", "wait 400",        "tap Key_005_res_audio",
                               "wait 400",         "tap Key_accept",  "wait 6000"};
    QStringList pages;
    const QStringList tabs = {"general", "eq", "crossover", "timing"};
    for (const QString &tab : tabs) {
        pages += QStringList{"tap key_" + tab, "wait 3000", "shot " + tab};
    }
    // A unit that was never touched, and one on which everything was changed; both are reset and started anew.
    QTemporaryDir untouched;
    drive(untouched.path(), reset);
    const Shots expected = drive(untouched.path(), pages);
    QTemporaryDir used;
    drive(used.path(), visit.mid(0, visit.indexOf("tap Key_003_source_gain")) + reset);
    const Shots actual = drive(used.path(), pages);
    for (const QString &page : tabs) {
        QVERIFY2(!expected[page].isNull() && actual[page] == expected[page], qPrintable(page));
    }
}

void TestCarUnit::theLanguageIsKept() {
    QTemporaryDir root;
    const Shots german = drive(root.path(), {"wait 400", "shot en", "key 16777232", "tap home_german", "tap home_audio",
                                             "wait 400", "shot de"});
    QVERIFY(differingPixels(german["en"], german["de"]) > 0);
    QCOMPARE(drive(root.path(), {"wait 400", "shot de"})["de"], german["de"]);
    const Shots english =
        drive(root.path(), {"key 16777232", "tap home_english", "tap home_audio", "wait 400", "shot en"});
    QCOMPARE(english["en"], german["en"]);
}

void TestCarUnit::keysOfTheUnitLeaveTheApplication() {
    QTemporaryDir root;
    const Shots shots = drive(root.path(), {"wait 400", "key 16777232", "shot home", "tap home_volumes", "wait 400",
                                            "shot volumes", "tap Key_close", "wait 400", "shot closed"});
    QCOMPARE(shots["closed"], shots["home"]);
    QVERIFY(differingPixels(shots["volumes"], shots["home"]) > 0);
}

void TestCarUnit::badArgumentsAreOneLine() {
    QProcess unit;
    QTemporaryDir root;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_LOGGING_RULES", "*.debug=false");
    environment.insert("XDG_RUNTIME_DIR", root.path());
    unit.setProcessEnvironment(environment);
    unit.start(CARUNIT, QStringList());
    QVERIFY(unit.waitForFinished(patience));
    QCOMPARE(unit.exitCode(), 2);
    QCOMPARE(unit.readAllStandardError().count('\n'), 1);
    unit.start(CARUNIT, {root.path(), CARUNIT});
    QVERIFY(unit.waitForFinished(patience));
    QCOMPARE(unit.exitCode(), 1);
    const QByteArray output = unit.readAllStandardError();
    QVERIFY2(output.count('\n') == 1, output);
}

void TestCarUnit::itIsSmall() {
    int lines = 0;
    for (const QFileInfo &file : QDir(CARUNIT_SOURCES).entryInfoList({"*.cpp", "*.h"})) {
        QFile source(file.filePath());
        QVERIFY(source.open(QFile::ReadOnly));
        while (!source.atEnd()) {
            const QByteArray line = source.readLine().trimmed();
            lines += !line.isEmpty() && !line.startsWith("//");
        }
    }
    QVERIFY2(lines < 725, qPrintable(QString::number(lines)));
}

QTEST_GUILESS_MAIN(TestCarUnit)
#include "tst_carunit.moc"
