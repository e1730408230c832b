// SPDX-License-Identifier: Apache-2.0
// Programs of the desk that play through the unit.

#include "headunit/audio/live/player.h"
#include "headunit/audio/live/pulseoutput.h"
#include "soundserver.h"
#include "standarderror.h"
#include "tests/headunit/audio/engine/rendering.h"

#include <QTest>

#include <limits>

using namespace headunit;
using namespace headunit::engine;

namespace {

constexpr int patience = 60000;  // ms

QStringList devicesOf(const QString &unit) {
    QStringList names = {unit};
    for (const char *channel : {"ringtone", "phone", "navigation", "voice", "announcement"}) {
        names << unit + '_' + channel;
    }
    names.sort();
    return names;
}

/// A unit that programs play through.
struct DeskUnit {
    DeskUnit() {
        std::string error;
        player.choose("desk", &error);
        player.setState(rendering::neutral());
        PulseOutput::Settings settings;
        settings.desk = true;
        settings.retryAfter = std::chrono::milliseconds(5);
        output = std::make_unique<PulseOutput>(player, settings);
    }

    /// The highest sample of an output since forget().
    float peak(Output place) {
        if (const Meters *const meters = player.takeMeters()) {
            played.add(*meters);
        }
        return played.peak[place];
    }
    void forget() {
        player.takeMeters();
        played = Meters();
    }

    Player player;
    Meters played;
    std::unique_ptr<PulseOutput> output;
};

}  // namespace

class TestDeskSinks : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_server.reset(); }
    void offersDevicesAsLongAsItRuns();
    void unitsKeepApart();
    void whatAKilledUnitLeftGoes();
    void doesNotHearItself();
    void programsAreHeard_data();
    void programsAreHeard();
    void whatIsNoNumberIsSilenceAndALine();

private:
    QStringList units();

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<SoundServer> m_server;
};

#define WAIT_FOR(what) QTRY_VERIFY_WITH_TIMEOUT(what, patience)

void TestDeskSinks::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    qputenv("PULSE_SERVER", SoundServer::address(*m_folder));
    qputenv("HOME", QFile::encodeName(m_folder->path()));  // a client keeps its cookie there
    m_server = std::make_unique<SoundServer>(*m_folder);
    WAIT_FOR(m_server->answers());
    m_server->plugIn("car", SoundServer::sixChannels);
}

/// All devices but the loudspeakers'.
QStringList TestDeskSinks::units() {
    QStringList names = m_server->devices();
    names.removeAll("car");
    names.sort();
    return names;
}

void TestDeskSinks::offersDevicesAsLongAsItRuns() {
    {
        const DeskUnit unit;
        WAIT_FOR(units() == devicesOf("headunit"));
        WAIT_FOR(m_server->streams() == "6ch on car");
    }
    QCOMPARE(units(), QStringList());
}

void TestDeskSinks::unitsKeepApart() {
    const DeskUnit second;
    {
        const DeskUnit first;
        WAIT_FOR(units().count() == 12);
        QStringList both = devicesOf("headunit") + devicesOf("headunit2");
        both.sort();
        QCOMPARE(units(), both);
    }
    WAIT_FOR(units().count() == 6);
}

void TestDeskSinks::whatAKilledUnitLeftGoes() {
    m_server->plugIn("somebodys", SoundServer::stereo);
    // As a unit leaves it behind: its mark belongs to nobody.
    m_server->plugIn("headunit", SoundServer::stereo, 48000, "float32le",
                     "headunit.unit=0123456789abcdef headunit.number=1");
    QCOMPARE(units(), QStringList({"headunit", "somebodys"}));
    const DeskUnit unit;
    QStringList expected = devicesOf("headunit") + QStringList("somebodys");
    expected.sort();
    WAIT_FOR(units() == expected);
}

/// Its device may be the default one, so that everything is heard through it.
void TestDeskSinks::doesNotHearItself() {
    const DeskUnit unit;
    WAIT_FOR(units() == devicesOf("headunit"));
    WAIT_FOR(m_server->streams() == "6ch on car");
    m_server->makeDefault("headunit");
    m_server->plugIn("headphones", SoundServer::stereo);
    QCOMPARE(m_server->streams(), QString("6ch on car"));
    m_server->unplug("car");
    WAIT_FOR(m_server->streams() == "2ch on headphones");
}

void TestDeskSinks::programsAreHeard_data() {
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("rate");
    QTest::addColumn<bool>("rear");
    QTest::newRow("music") << "headunit" << 48000 << true;
    QTest::newRow("192 kHz") << "headunit" << 192000 << true;
    QTest::newRow("phone") << "headunit_phone" << 48000 << false;
    QTest::newRow("navigation") << "headunit_navigation" << 48000 << false;
}

/// A steady level far beyond full scale is nothing that the loudspeakers get.
void TestDeskSinks::programsAreHeard() {
    QFETCH(QString, device);
    QFETCH(int, rate);
    QFETCH(bool, rear);
    DeskUnit unit;
    WAIT_FOR(units() == devicesOf("headunit"));
    std::vector<float> square(static_cast<size_t>(rate) / 10);
    for (size_t i = 0; i < square.size(); ++i) {
        square[i] = i % 480 < 240 ? 4.0F : -4.0F;
    }
    const auto program = m_server->play(device, square, rate);
    for (int time = 0; time < 3; ++time) {
        unit.forget();
        WAIT_FOR(unit.peak(FrontLeft) > 0.5F);
        QVERIFY(unit.peak(FrontLeft) <= 1);
        QVERIFY(unit.peak(RearLeft) <= 1);
        QCOMPARE(unit.peak(RearLeft) > 0, rear);
    }
}

void TestDeskSinks::whatIsNoNumberIsSilenceAndALine() {
    StandardError said(m_folder->filePath("log"));
    DeskUnit unit;
    WAIT_FOR(units() == devicesOf("headunit"));
    const QByteArray line =
        "headunit: a program plays samples that are no numbers on \"Head unit phone\"; they are silence\n";
    {
        const auto program =
            m_server->play("headunit_phone", std::vector<float>(4800, std::numeric_limits<float>::quiet_NaN()));
        WAIT_FOR(said.text().contains(line));
    }
    // Whoever plays next is heard as ever.
    const auto program = m_server->play("headunit_phone", std::vector<float>(4800, 0.5F));
    WAIT_FOR(unit.peak(FrontLeft) > 0.4F);
    QVERIFY(unit.peak(FrontLeft) <= 1);
    QCOMPARE(said.text().count(line), 1);
}

QTEST_GUILESS_MAIN(TestDeskSinks)
#include "tst_desksinks.moc"
