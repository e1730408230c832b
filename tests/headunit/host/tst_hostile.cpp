// SPDX-License-Identifier: Apache-2.0
#include "builthost.h"

#include <QTest>

namespace {

const char plugin[] = FIXTURES "/hostile.so";
const char good[] = FIXTURES "/../../lib/plugins/libaudiosetting.so";

// Everything that a unit does to an application, then to the one beside it, which still works.
const char useBoth[] = R"(
try { open("hostile"); } catch (error) {}
wait(200);
tap(512, 300);
tap("hardkey_volume_up");
volume(0, 20);
language("de");
wait(50);
try { open("hostile"); } catch (error) {}
wait(200);
tap("hardkey_back");
wait(200);
home();
wait(200);
open("audiosetting");
wait(200);
tap("key_Subwoofer");
tap("key_subvol_next");
expect(store("subwooferLevel") === 4, "the good one works");
shot("good.png");
home();
)";

}  // namespace

/// An exception that passes through Qt leaves behind what Qt's frames had made; that is no leak of the unit's.
struct HostWithExceptions : BuiltHost {
    HostWithExceptions() { environment.insert("LSAN_OPTIONS", "detect_leaks=0"); }
};

// The built program with an application that fails in each place where it can, beside one that works.
class TestHostile : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void failsInOnePlace_data();
    void failsInOnePlace();
    void goneInOnShow();
    void homeSaysWhatFailed();
    void blocks();
    void isNotNamedWithoutReason();
};

void TestHostile::failsInOnePlace_data() {
    QTest::addColumn<QString>("place");
    QTest::addColumn<QString>("reason");
    const QString twoLines = QStringLiteral("made to fail in two lines");
    for (const char *place : {"create", "requestWindowInterface", "onCreate", "mainWidget", "onShow", "onEnter",
                              "onExit", "onHide", "onDestroy", "keyEvent", "backEvent"}) {
        QTest::newRow(place) << place << QStringLiteral("%1 (%2)").arg(place, twoLines);
    }
    QTest::newRow("library") << "library"
                             << "its library's start (" + twoLines + ")";
    QTest::newRow("constructor") << "constructor"
                                 << "its constructor (" + twoLines + ")";
    QTest::newRow("windowInterfaceID") << "windowInterfaceID"
                                       << "requestWindowInterface (" + twoLines + ")";
    QTest::newRow("number") << "number"
                            << "onCreate (int)";
    QTest::newRow("standard") << "standard"
                              << "onCreate (vector::_M_range_check: __n (which is 1) >= this->size() (which is 0))";
    for (const char *place : {"language", "paint", "show", "hide", "press", "release", "timer", "queued"}) {
        QTest::newRow(place) << place << "an event of QWidget (" + twoLines + ")";
    }
    QTest::newRow("shot") << "shot"
                          << "an event of QSingleShotTimer (" + twoLines + ")";
    // The event is the unit's own: a tap on its hard key changes the volume.
    QTest::newRow("signal") << "signal"
                            << "an event of headunit::Key (" + twoLines + ")";
}

void TestHostile::failsInOnePlace() {
    QFETCH(QString, place);
    QFETCH(QString, reason);
    HostWithExceptions host;
    host.environment.insert("HOSTILE", place);
    const BuiltHost::Result result = host.run({"--script", host.write("s.js", useBoth), good, plugin});
    QCOMPARE(result.err, "headunit: hostile.so: an exception in " + reason + "\n");
    QCOMPARE(result.code, 0);
}

void TestHostile::goneInOnShow() {
    HostWithExceptions host;
    host.environment.insert("HOSTILE", "gone");
    const BuiltHost::Result result = host.run({"--script", host.write("s.js", useBoth), good, plugin});
    QCOMPARE(result.errLines().first(), QStringLiteral("hostile: the application has nothing to show"));
    QCOMPARE(result.code, 0);
}

void TestHostile::homeSaysWhatFailed() {
    HostWithExceptions host;
    host.environment.insert("HOSTILE", "press");
    const QString script = host.write("s.js", R"(
        expect("tile_hostile", "visible", true);
        tap("tile_hostile"); wait(200); expect("hostile", "visible", true);
        tap(512, 300); wait(0);
        expect("home", "visible", true);
        expect("tile_hostile", "visible", false);
        tap("tile_audiosetting"); wait(200); expect("key_Subwoofer", "visible", true);
    )");
    const BuiltHost::Result result = host.run({"--script", script, good, plugin});
    QCOMPARE(result.err,
             QStringLiteral("headunit: hostile.so: an exception in an event of QWidget (made to fail in two "
                            "lines)\n"));
    QCOMPARE(result.code, 0);
}

void TestHostile::blocks() {
    HostWithExceptions host;
    host.environment.insert("HOSTILE", "block");
    host.environment.insert("HOSTILE_RELEASED", host.file("released"));
    QProcess process;
    process.setReadChannel(QProcess::StandardError);
    host.start(process, {"--watchdog", "0.05", "--script", host.write("s.js", useBoth), good, plugin});
    QByteArray said;
    while (!said.contains('\n') && process.waitForReadyRead(BuiltHost::patience)) {
        said += process.readAllStandardError();
    }
    // It is named while it blocks; then it goes on.
    host.write("released", QByteArray());
    QCOMPARE(said, QByteArray("headunit: hostile.so: has blocked the unit for 0.05 s (onShow)\n"));
    QCOMPARE(BuiltHost::end(process).code, 0);
}

void TestHostile::isNotNamedWithoutReason() {
    HostWithExceptions host;
    const QStringList arguments = {"--watchdog", "3600", "--script", host.write("s.js", useBoth), good, plugin};
    const BuiltHost::Result result = host.run(arguments);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.code, 0);
}

QTEST_GUILESS_MAIN(TestHostile)
#include "tst_hostile.moc"
