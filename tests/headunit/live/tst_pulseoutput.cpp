#include "headunit/audio/live/pulseoutput.h"

#include "headunit/audio/live/player.h"
#include "tests/headunit/engine/rendering.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <cstdio>

#include <unistd.h>

using namespace headunit;

/// Without a sound server; one would play what the tests do.
class TestPulseOutput : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void saysOnceThatItIsSilent();
    void endsAtOnce();

private:
    QTemporaryDir m_folder;
    Player m_player;
};

void TestPulseOutput::saysOnceThatItIsSilent() {
    qputenv("PULSE_SERVER", "unix:" + m_folder.filePath("nobody").toLocal8Bit());
    const QString log = m_folder.filePath("log");
    std::fflush(stderr);
    const int usual = dup(STDERR_FILENO);
    QVERIFY(std::freopen(qPrintable(log), "w", stderr));
    std::setvbuf(stderr, nullptr, _IONBF, 0);
    {
        const PulseOutput output(m_player);
        QTRY_VERIFY(QFile(log).size() > 0);
        QTest::qWait(5000);  // two more tries
    }
    std::fflush(stderr);
    dup2(usual, STDERR_FILENO);
    close(usual);
    QFile file(log);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("headunit: no sound server answers, so the unit is silent until one does\n"));
}

void TestPulseOutput::endsAtOnce() {
    qputenv("PULSE_SERVER", "unix:" + m_folder.filePath("nobody").toLocal8Bit());
    for (int i = 0; i < 20; ++i) {
        const PulseOutput output(m_player);
    }
}

QTEST_GUILESS_MAIN(TestPulseOutput)
#include "tst_pulseoutput.moc"
