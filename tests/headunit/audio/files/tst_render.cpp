// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/files/render.h"

#include "soundfiletest.h"
#include "tests/headunit/audio/engine/rendering.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace headunit;
using soundfiletest::SoundFile;

class TestRender : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sameAsTheEngine_data();
    void sameAsTheEngine();
    void loudUpToTheEnd();
    void sameFileEveryTime();
    void saysHowLoudItBecame();
    void whatCannotBePlayedLeavesNothing();
    void nothingCanBeReadOfIt();
    void whatCannotBeWrittenIsSaid();

private:
    std::string path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)).toStdString(); }
    QByteArray contents(const char *name) const {
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    engine::Meters m_meters;
    std::string m_error;
};

namespace {

SoundState busy() {
    SoundState state = rendering::neutral();
    state.eqType = 3;
    state.loudness = true;
    state.channelLevel[0] = 36;
    state.front = {5, 3, 10};
    state.delay = {0, 10, 20, 30, 40, 99};
    return state;
}

/// Beyond full scale, so that the limiter looks ahead at what comes.
SoundState loud() {
    SoundState state = rendering::neutral();
    state.sourceGain[0] = 20;
    return state;
}

SoundFile noise(size_t frames, float amplitude = 0.25F) {
    SoundFile file;
    file.sampleRate = 48000;
    file.channels = 2;
    file.samples = rendering::noise(frames, amplitude);
    return file;
}

}  // namespace

void TestRender::sameAsTheEngine_data() {
    QTest::addColumn<int>("frames");
    // Around the latency and around the size of a block.
    for (const int frames : {1, 62, 63, 64, 4095, 4096, 4097, 20000}) {
        QTest::newRow(qPrintable(QString::number(frames))) << frames;
    }
}

void TestRender::sameAsTheEngine() {
    QFETCH(int, frames);
    const SoundFile in = noise(static_cast<size_t>(frames));
    soundfiletest::write(path("in.wav"), in);
    QVERIFY(renderFile(path("in.wav"), path("out.wav"), busy(), &m_meters, &m_error));
    const SoundFile out = soundfiletest::read(path("out.wav"));
    const rendering::Sound expected = rendering::render(busy(), in.samples);
    QCOMPARE(out.channels, 6);
    QCOMPARE(out.samples.size(), static_cast<size_t>(frames) * 6);
    for (size_t i = 0; i < out.samples.size(); ++i) {
        QVERIFY(out.samples[i] == expected[i % 6][i / 6]);
    }
}

/// Behind the end comes silence, whatever was there before in the block.
void TestRender::loudUpToTheEnd() {
    for (const size_t frames : {1000, 4096, 6000}) {
        SoundFile in = noise(frames, 1);
        std::fill(in.samples.end() - 1000, in.samples.end(), 0.1F);
        soundfiletest::write(path("in.wav"), in);
        QVERIFY(renderFile(path("in.wav"), path("out.wav"), loud(), &m_meters, &m_error));
        const SoundFile out = soundfiletest::read(path("out.wav"));
        const rendering::Sound expected = rendering::render(loud(), in.samples);
        for (size_t i = 0; i < out.samples.size(); ++i) {
            QVERIFY(out.samples[i] == expected[i % 6][i / 6]);
        }
    }
}

void TestRender::sameFileEveryTime() {
    soundfiletest::write(path("in.wav"), noise(10000));
    QVERIFY(renderFile(path("in.wav"), path("one.wav"), busy(), &m_meters, &m_error));
    QVERIFY(renderFile(path("in.wav"), path("two.wav"), busy(), &m_meters, &m_error));
    QVERIFY(contents("one.wav") == contents("two.wav"));
    QVERIFY(!contents("one.wav").isEmpty());
}

void TestRender::saysHowLoudItBecame() {
    SoundFile in;
    in.sampleRate = 48000;
    in.channels = 2;
    in.samples = std::vector<float>(2 * 10000, 0.5F);
    in.samples.back() = 0.75F;  // right; it comes out after the file's end has been reached
    soundfiletest::write(path("in.wav"), in);
    SoundState state = rendering::neutral();
    state.fader = 15;
    state.subwooferLevel = 0;
    const auto render = [&] { return renderFile(path("in.wav"), path("out.wav"), state, &m_meters, &m_error); };
    QVERIFY(render());
    const std::array<float, engine::outputCount> peaks = {0, 0, 0.5F, 0.75F, 0, 0};
    QVERIFY(m_meters.peak == peaks);
    QVERIFY((m_meters.limiterGain == std::array<double, engine::pairCount>{1, 1, 1}));
    state.sourceGain[0] = 20;  // 10 dB
    QVERIFY(render());
    const double needed = 1 / (0.75 * engine::fromDecibels(10));
    QVERIFY(m_meters.limiterGain[0] == 1 && m_meters.limiterGain[2] == 1);
    QVERIFY(m_meters.limiterGain[1] < needed && m_meters.limiterGain[1] > 0.8 * needed);
    QVERIFY(m_meters.peak[engine::RearRight] > 0.8F && m_meters.peak[engine::RearRight] <= 1);
    QCOMPARE(m_meters.peak[engine::FrontRight], 0.0F);
}

void TestRender::whatCannotBePlayedLeavesNothing() {
    QTemporaryDir folder;
    const std::string out = folder.filePath("out.wav").toStdString();
    QVERIFY(!renderFile(path("missing.wav"), out, busy(), &m_meters, &m_error));
    QVERIFY(m_error.find(path("missing.wav")) == 0);
    QVERIFY(QDir(folder.path()).isEmpty());
}

/// Its header promises samples, but none of them comes.
void TestRender::nothingCanBeReadOfIt() {
    QTemporaryDir folder;
    soundfiletest::writeCompressed(path("cut.flac"), noise(10000));
    QVERIFY(QFile::resize(m_folder.filePath("cut.flac"), 1000));
    const std::string out = folder.filePath("out.wav").toStdString();
    QVERIFY(!renderFile(path("cut.flac"), out, busy(), &m_meters, &m_error));
    QCOMPARE(m_error, path("cut.flac") + ": nothing can be read of the file");
    QVERIFY(QDir(folder.path()).isEmpty());
}

void TestRender::whatCannotBeWrittenIsSaid() {
    soundfiletest::write(path("in.wav"), noise(100));
    for (const std::string &out : {m_folder.path().toStdString(), path("in.wav") + "/out.wav"}) {
        m_error.clear();
        QVERIFY(!renderFile(path("in.wav"), out, busy(), &m_meters, &m_error));
        QVERIFY(m_error.find(out + ": ") == 0);
    }
}

QTEST_APPLESS_MAIN(TestRender)
#include "tst_render.moc"
