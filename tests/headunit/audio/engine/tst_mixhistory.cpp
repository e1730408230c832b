// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/mixhistory.h"

#include <QTest>

#include <memory>
#include <vector>

using namespace headunit::engine;

namespace {

constexpr size_t frames = 3 * MixHistory::length + 1000;

/// Tells which frame and which side it is.
double sampleAt(size_t frame, size_t side) {
    return static_cast<double>(frame * stereo + side + 1);
}

}  // namespace

class TestMixHistory : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void silentAtFirst();
    void whatWasWritten_data();
    void whatWasWritten();
};

void TestMixHistory::silentAtFirst() {
    const auto history = std::make_unique<MixHistory>();
    std::vector<double> program(MixHistory::length * stereo, 1);
    std::vector<double> prompts(MixHistory::length * stereo, 1);
    history->read(program.data(), prompts.data(), MixHistory::length, MixHistory::length);
    const std::vector<double> silence(MixHistory::length * stereo);
    QVERIFY(program == silence && prompts == silence);
}

void TestMixHistory::whatWasWritten_data() {
    QTest::addColumn<int>("block");
    for (const int block : {1, 64, 100, 4096}) {
        QTest::addRow("in blocks of %d", block) << block;
    }
}

/// Prompts sound in every other thousand of frames only.
void TestMixHistory::whatWasWritten() {
    QFETCH(int, block);
    const auto history = std::make_unique<MixHistory>();
    const auto promptAt = [](size_t frame, size_t side) { return frame / 1000 % 2 ? -sampleAt(frame, side) : 0; };
    for (size_t done = 0; done < frames;) {
        const size_t count = std::min({static_cast<size_t>(block), frames - done, 1000 - done % 1000});
        std::vector<double> program;
        std::vector<double> prompts;
        for (size_t i = 0; i < count * stereo; ++i) {
            program.push_back(sampleAt(done + i / stereo, i % stereo));
            prompts.push_back(promptAt(done + i / stereo, i % stereo));
        }
        history->write(program.data(), done / 1000 % 2 ? prompts.data() : nullptr, count);
        done += count;
    }
    for (const size_t age : {MixHistory::length, size_t(100), size_t(64)}) {
        std::vector<double> program(64 * stereo);
        std::vector<double> prompts(64 * stereo);
        history->read(program.data(), prompts.data(), age, 64);
        for (size_t i = 0; i < 64 * stereo; ++i) {
            const size_t frame = frames - age + i / stereo;
            QCOMPARE(program[i], sampleAt(frame, i % stereo));
            QCOMPARE(prompts[i], promptAt(frame, i % stereo));
        }
    }
}

QTEST_APPLESS_MAIN(TestMixHistory)
#include "tst_mixhistory.moc"
