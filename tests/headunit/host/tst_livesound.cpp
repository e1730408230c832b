// SPDX-License-Identifier: Apache-2.0
// The running unit's sound, from the settings to what the desk's sound server gets.

#include "headunit/host/sound/livesound.h"

#include "fakelogind.h"
#include "headunit/audio/service/soundmodel.h"
#include "headunit/settings/audiokeys.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "testbus.h"
#include "tests/headunit/audio/files/soundfiletest.h"
#include "tests/headunit/audio/live/soundserver.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

using namespace headunit;
using namespace headunit::engine;

namespace {

constexpr int patience = 60000;  // ms
constexpr float amplitude = 0.25F;
constexpr float tolerance = 0.001F;  // a sampled tone misses its peak by less

using Frame = std::array<float, outputCount>;

/// The sound that a device of six channels has played since this was made.
class Recording {
public:
    Recording(const SoundServer &server, const QString &device)
        : m_process(server.record(device, SoundServer::sixChannels)) {}

    /// All that has come.
    const std::vector<Frame> &frames() {
        m_bytes += m_process->readAllStandardOutput();
        using Samples = std::array<qint16, outputCount>;
        constexpr int frameBytes = static_cast<int>(sizeof(Samples));
        int done = 0;
        for (; m_bytes.size() - done >= frameBytes; done += frameBytes) {
            Samples samples;
            std::memcpy(samples.data(), m_bytes.constData() + done, sizeof samples);
            std::transform(samples.begin(), samples.end(), m_frames.emplace_back().begin(),
                           [](qint16 sample) { return static_cast<float>(sample) / 32768; });
        }
        m_bytes.remove(0, done);
        return m_frames;
    }

    /// Highest samples of a stretch of frames.
    Frame peaks(size_t first, size_t count) {
        Frame highest{};
        for (size_t i = first; i < first + count; ++i) {
            for (size_t output = 0; output < outputCount; ++output) {
                highest[output] = std::max(highest[output], std::abs(m_frames[i][output]));
            }
        }
        return highest;
    }

    /// ... of what was played last.
    Frame peaks() {
        constexpr size_t count = 4800;
        return frames().size() < count ? Frame{} : peaks(m_frames.size() - count, count);
    }
    /// ... of everything from a frame on.
    Frame peaksSince(size_t first) { return peaks(first, frames().size() - first); }

    /// Whether, of what came from a frame on, the first 20 ms that are not silent are quiet.
    bool risesFromSilence(Output output, size_t from) {
        constexpr size_t count = 960;
        const size_t start = firstSound(output, from);
        return peaks(start, std::min(count, m_frames.size() - start))[output] < amplitude / 20;
    }
    /// Whether that is so after any tenth of a second of silence. A server that is too slow makes silence as well.
    bool risesAfterASilence(Output output, size_t from) {
        constexpr size_t silence = 4800;
        constexpr size_t longEnough = 4800;
        const size_t end = frames().size();
        for (size_t last = from; last < end; ++last) {
            const size_t next = firstSound(output, last);
            if (next > last + silence && next + longEnough < end && risesFromSilence(output, next)) {
                return true;
            }
            last = next;
        }
        return false;
    }

private:
    size_t firstSound(Output output, size_t from) {
        const auto first = std::find_if(m_frames.begin() + static_cast<ptrdiff_t>(from), m_frames.end(),
                                        [output](const Frame &frame) { return frame[output] != 0; });
        return static_cast<size_t>(first - m_frames.begin());
    }

    std::unique_ptr<QProcess> m_process;
    QByteArray m_bytes;
    std::vector<Frame> m_frames;
};

bool near(const Frame &is, const Frame &expected) {
    for (size_t output = 0; output < outputCount; ++output) {
        if (std::abs(is[output] - expected[output]) > tolerance) {
            return false;
        }
    }
    return true;
}

}  // namespace

class TestLiveSound : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void beginsAsTheStoreSaysAndWithoutABurst();
    void risesAgainAfterAnInterruption();
    void followsEveryChange();
    void volumesAndKeysAnswer();
    void whatCannotBePlayed();
    void saysWhyNothingIsHeard();
    void isSilentWhileTheDeskSleeps();

private:
    /// Touches, and listens. A short sound is lost where the machine stops the server for its whole length: then again.
    template <typename Touch> void touchUntilHeard(const Touch &touch);

    QTemporaryDir m_folder;
    std::unique_ptr<SoundServer> m_server;
    std::unique_ptr<Recording> m_recording;
    QString m_tone;
};

#define WAIT_FOR(what) QTRY_VERIFY_WITH_TIMEOUT(what, patience)

void TestLiveSound::initTestCase() {
    qputenv("PULSE_SERVER", SoundServer::address(m_folder));
    TestBus::setAddress(m_folder);
    qputenv("HOME", QFile::encodeName(m_folder.path()));  // a client keeps its cookie there
    m_tone = m_folder.filePath("tone.wav");
    soundfiletest::write(m_tone.toStdString(), soundfiletest::tone(48000, 2, 1000, 0.1, double(amplitude)));
    setUnitRoot(m_folder.filePath("root"));
    openSettings();
}

void TestLiveSound::init() {
    SoundModel &model = SoundModel::instance();
    model.setBalanceFader(0, 0);
    model.setChannelLevel(0, 40);
    m_server = std::make_unique<SoundServer>(m_folder);
    WAIT_FOR(m_server->answers());
    m_server->plugIn("car", SoundServer::sixChannels);
    m_recording = std::make_unique<Recording>(*m_server, "car");
    WAIT_FOR(!m_recording->frames().empty());
}

void TestLiveSound::cleanup() {
    m_recording.reset();
    m_server.reset();
}

void TestLiveSound::beginsAsTheStoreSaysAndWithoutABurst() {
    SoundModel::instance().setBalanceFader(15, -15);  // what is on the disk: front right
    QString problem;
    const LiveSound sound({m_tone}, &problem);
    QCOMPARE(problem, QString());
    const Frame expected = {0, amplitude, 0, 0, 0, 0};
    WAIT_FOR(near(m_recording->peaks(), expected));
    QVERIFY(m_recording->risesFromSilence(FrontRight, 0));
    QVERIFY(near(m_recording->peaksSince(0), expected));
}

void TestLiveSound::risesAgainAfterAnInterruption() {
    QString problem;
    const LiveSound sound({m_tone}, &problem);
    const Frame expected = {amplitude, amplitude, amplitude, amplitude, 0, 0};
    WAIT_FOR(near(m_recording->peaks(), expected));
    const size_t before = m_recording->frames().size();
    m_server->hangUp();
    WAIT_FOR(m_recording->risesAfterASilence(FrontLeft, before));
    WAIT_FOR(near(m_recording->peaks(), expected));
}

void TestLiveSound::followsEveryChange() {
    QString problem;
    LiveSound sound({m_tone}, &problem);
    WAIT_FOR(near(m_recording->peaks(), {amplitude, amplitude, amplitude, amplitude, 0, 0}));
    SoundModel &model = SoundModel::instance();
    model.setChannelLevel(0, 36);
    const float lower = amplitude * static_cast<float>(std::pow(10, -6 / 20.0));
    WAIT_FOR(near(m_recording->peaks(), {lower, lower, lower, lower, 0, 0}));
    // Many changes in one go are one to the sound.
    for (int fader = 0; fader <= 15; ++fader) {
        model.setBalanceFader(-fader, fader);
    }
    WAIT_FOR(near(m_recording->peaks(), {0, 0, lower, 0, 0, 0}));
    model.setChannelLevel(0, 0);
    WAIT_FOR(near(m_recording->peaks(), Frame{}));
}

template <typename Touch> void TestLiveSound::touchUntilHeard(const Touch &touch) {
    constexpr size_t longEnough = 96000;  // frames
    size_t touched = m_recording->frames().size();
    touch();
    const auto isHeard = [&] {
        if (m_recording->peaksSince(touched)[FrontLeft] > 0.05F) {
            return true;
        }
        if (m_recording->frames().size() > touched + longEnough) {
            touched = m_recording->frames().size();
            touch();
        }
        return false;
    };
    WAIT_FOR(isHeard());
}

void TestLiveSound::volumesAndKeysAnswer() {
    SoundModel &model = SoundModel::instance();
    QString problem;
    LiveSound sound({"silence"}, &problem);
    WAIT_FOR(m_server->streams() == "6ch on car");
    const std::array<int, 5> withASound = {1, 2, 3, 4, 6};
    for (const int channel : withASound) {
        WAIT_FOR(near(m_recording->peaks(), Frame{}));
        touchUntilHeard([&] { model.setChannelLevel(channel, model.channelLevel(channel) == 40 ? 39 : 40); });
        if (QTest::currentTestFailed()) {
            return;
        }
        model.setChannelLevel(channel, 0);
    }
    WAIT_FOR(near(m_recording->peaks(), Frame{}));
    touchUntilHeard([&] { model.beep(0); });
}

void TestLiveSound::whatCannotBePlayed() {
    QString problem;
    const LiveSound sound({m_folder.filePath("no such file.wav")}, &problem);
    QVERIFY(problem.contains("no such file.wav: "));
    SoundModel &model = SoundModel::instance();
    touchUntilHeard([&] { model.setChannelLevel(1, model.channelLevel(1) == 40 ? 39 : 40); });
}

void TestLiveSound::saysWhyNothingIsHeard() {
    const SoundModel &model = SoundModel::instance();
    QString problem;
    const LiveSound sound({"music"}, &problem);
    WAIT_FOR(m_server->streams() == "6ch on car");
    WAIT_FOR(model.fault() == SoundFault::None);
    m_recording.reset();
    m_server.reset();
    WAIT_FOR(model.fault() == SoundFault::NoServer);
    m_server = std::make_unique<SoundServer>(m_folder);
    WAIT_FOR(model.fault() == SoundFault::NoDevice);
    m_server->plugIn("car", SoundServer::sixChannels);
    WAIT_FOR(model.fault() == SoundFault::None);
}

void TestLiveSound::isSilentWhileTheDeskSleeps() {
    const TestBus bus(m_folder);
    FakeLogind logind;
    QString problem;
    const LiveSound sound({m_tone}, &problem);
    const Frame expected = {amplitude, amplitude, amplitude, amplitude, 0, 0};
    for (int night = 0; night < 2; ++night) {
        WAIT_FOR(near(m_recording->peaks(), expected));
        WAIT_FOR(logind.isDelayed());
        const size_t before = m_recording->frames().size();
        Q_EMIT logind.PrepareForSleep(true);
        WAIT_FOR(!logind.isDelayed());
        WAIT_FOR(m_server->streams().isEmpty());
        Q_EMIT logind.PrepareForSleep(false);
        WAIT_FOR(m_recording->risesAfterASilence(FrontLeft, before));
    }
}

QTEST_GUILESS_MAIN(TestLiveSound)
#include "tst_livesound.moc"
