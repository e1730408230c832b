// SPDX-License-Identifier: Apache-2.0
// Programs of the desk play through the unit: a device for each of its channels, on a sound server of the test's own.

#include "tests/headunit/audio/files/soundfiletest.h"
#include "tests/headunit/audio/live/soundserver.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

class TestPrograms : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void offersADeviceForEachChannel();
    void playsWhatProgramsPlay();
    void twoUnitsKeepApart();
    void removesWhatAKilledUnitLeft();
    void playsElsewhereIfItsOwnDeviceIsTheDefault();

private:
    std::unique_ptr<QProcess> start(const QString &root = QStringLiteral("root"));
    std::unique_ptr<QProcess> play(const QString &device);
    QString devices() const;
    void end(QProcess *unit);

    QTemporaryDir m_folder;
    std::unique_ptr<SoundServer> m_server;
};

namespace {

constexpr int patience = 60000;  // ms

QString devicesOf(const QString &unit) {
    QStringList names;
    for (const char *channel : {"", "_ringtone", "_phone", "_navigation", "_voice", "_announcement"}) {
        names << unit + QString::fromLatin1(channel);
    }
    return names.join(' ');
}

/// Main level 16 of 40 is 36 dB below what is played; a prompt's 20 is 30 dB below, in front.
const QRegularExpression mainOnly("FL  -4[12]\\.\\d  FR  -4[12]\\.\\d  RL  -4[12]\\.\\d  RR  -4[12]\\.\\d ");

}  // namespace

#define WAIT_FOR(what) QTRY_VERIFY_WITH_TIMEOUT(what, patience)
#define WAIT_FOR_DEVICES(expected) QTRY_COMPARE_WITH_TIMEOUT(devices(), QString(expected), patience)

void TestPrograms::init() {
    m_server = std::make_unique<SoundServer>(m_folder);
    WAIT_FOR(m_server->answers());
    m_server->plugIn("car", SoundServer::sixChannels);
    soundfiletest::write(m_folder.filePath("tone.wav").toStdString(), soundfiletest::tone(48000, 2, 1000, 120, 0.5012));
}

void TestPrograms::cleanup() {
    m_server.reset();
}

std::unique_ptr<QProcess> TestPrograms::start(const QString &root) {
    auto unit = std::make_unique<QProcess>();
    QProcessEnvironment environment = m_server->environment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("PULSE_SERVER", QString::fromLocal8Bit(SoundServer::address(m_folder)));
    unit->setProcessEnvironment(environment);
    unit->start(HEADUNIT, {"--root", m_folder.filePath(root), "--play", "desk", "--meters"});
    return unit;
}

std::unique_ptr<QProcess> TestPrograms::play(const QString &device) {
    auto player = std::make_unique<QProcess>();
    player->setProcessEnvironment(m_server->environment());
    player->start("paplay", {"--device=" + device, m_folder.filePath("tone.wav")});
    return player;
}

QString TestPrograms::devices() const {
    QStringList names = m_server->devices();
    names.removeAll("car");
    return names.join(' ');
}

void TestPrograms::end(QProcess *unit) {
    unit->terminate();
    QVERIFY(unit->waitForFinished(patience));
    QCOMPARE(unit->exitStatus(), QProcess::NormalExit);
    QCOMPARE(unit->exitCode(), 0);
    QCOMPARE(unit->readAllStandardError(), QByteArray());
}

void TestPrograms::offersADeviceForEachChannel() {
    const auto unit = start();
    WAIT_FOR_DEVICES(devicesOf("headunit"));
    end(unit.get());
    QCOMPARE(devices(), QString());
}

void TestPrograms::playsWhatProgramsPlay() {
    const auto unit = start();
    WAIT_FOR_DEVICES(devicesOf("headunit"));
    const auto player = play("headunit");
    QString said;
    const auto isHeard = [&](const QRegularExpression &line) {
        const QString more = QString::fromLatin1(unit->readAllStandardOutput());
        said = more.isEmpty() ? said : more;
        return line.match(said).hasMatch();
    };
    QTRY_VERIFY2_WITH_TIMEOUT(isHeard(mainOnly), qPrintable(said), patience);
    player->kill();
    player->waitForFinished();
    const auto prompt = play("headunit_navigation");
    static const QRegularExpression frontOnly("FL  -\\d\\d\\.\\d  FR  -\\d\\d\\.\\d  RL   -inf  RR   -inf ");
    QTRY_VERIFY2_WITH_TIMEOUT(isHeard(frontOnly), qPrintable(said), patience);
    prompt->kill();
    prompt->waitForFinished();
    end(unit.get());
}

void TestPrograms::twoUnitsKeepApart() {
    const auto first = start("first");
    WAIT_FOR_DEVICES(devicesOf("headunit"));
    const auto second = start("second");
    WAIT_FOR_DEVICES(devicesOf("headunit") + ' ' + devicesOf("headunit2"));
    const auto player = play("headunit2");
    QString said;
    const auto isHeard = [&] {
        said += QString::fromLatin1(second->readAllStandardOutput());
        return mainOnly.match(said).hasMatch();
    };
    QTRY_VERIFY2_WITH_TIMEOUT(isHeard(), qPrintable(said), patience);
    QVERIFY(!mainOnly.match(QString::fromLatin1(first->readAllStandardOutput())).hasMatch());
    player->kill();
    player->waitForFinished();
    end(first.get());
    QCOMPARE(devices(), devicesOf("headunit2"));
    end(second.get());
    QCOMPARE(devices(), QString());
}

void TestPrograms::removesWhatAKilledUnitLeft() {
    const auto other = start("other");
    WAIT_FOR_DEVICES(devicesOf("headunit"));
    const auto unit = start();
    WAIT_FOR_DEVICES(devicesOf("headunit") + ' ' + devicesOf("headunit2"));
    unit->kill();
    QVERIFY(unit->waitForFinished(patience));
    QCOMPARE(devices(), devicesOf("headunit") + ' ' + devicesOf("headunit2"));
    const auto next = start();
    // The old ones go, and new ones come under the same name.
    QByteArray said;
    const auto isHeard = [&] { return (said += next->readAllStandardOutput()).contains("peaks"); };
    WAIT_FOR(isHeard());
    WAIT_FOR_DEVICES(devicesOf("headunit") + ' ' + devicesOf("headunit2"));
    end(next.get());
    QCOMPARE(devices(), devicesOf("headunit"));
    end(other.get());
}

void TestPrograms::playsElsewhereIfItsOwnDeviceIsTheDefault() {
    const auto unit = start();
    WAIT_FOR_DEVICES(devicesOf("headunit"));
    QTRY_COMPARE_WITH_TIMEOUT(m_server->streams(), QString("6ch on car"), patience);
    m_server->makeDefault("headunit");
    const auto second = start("second");  // finds it so
    WAIT_FOR_DEVICES(devicesOf("headunit") + ' ' + devicesOf("headunit2"));
    QTRY_COMPARE_WITH_TIMEOUT(m_server->streams(), QString("6ch on car, 6ch on car"), patience);
    end(second.get());
    end(unit.get());
}

QTEST_GUILESS_MAIN(TestPrograms)
#include "tst_programs.moc"
