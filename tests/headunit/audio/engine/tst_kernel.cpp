// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/engine/kernel.h"

#include "headunit/audio/engine/engine.h"
#include "rendering.h"

#include <QTest>

#include <algorithm>
#include <cstring>

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

std::vector<float> renderWith(const Kernel &kernel) {
    Engine engine(kernel);
    SoundState state = neutral();
    state.eqType = 8;
    state.loudness = true;
    state.channelLevel[0] = 40;  // which is too loud: the limiter reads peaks all the time
    state.balance = 3;
    state.front = {5, 3, 10};
    state.rear = {4, 2, 12};
    state.subwoofer = {3, 1, 11};
    state.delay = {1, 22, 13, 44, 5, 76};
    engine.setParameters(designParameters(state));
    const Stereo signal = noise(48000, 0.9F);
    std::vector<float> out(signal.size() / stereo * outputCount);
    Inputs inputs{};
    inputs[MainInput] = signal.data();
    engine.process(inputs, out.data(), 24000);
    state.eqType = 3;
    state.front = {3, 1, 12};
    engine.setParameters(designParameters(state));
    inputs[MainInput] += 24000 * stereo;
    engine.process(inputs, out.data() + 24000 * outputCount, 24000);
    return out;
}

}  // namespace

class TestKernel : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void allGiveTheSameBits();
    void bestOneRuns();
    void statesCarryOver();
};

void TestKernel::allGiveTheSameBits() {
    if (!hasAvx2()) {
        QSKIP("this processor has no AVX2");
    }
    QVERIFY(qstrcmp(plainKernel.name, avx2Kernel.name) != 0);
    const std::vector<float> plain = renderWith(plainKernel);
    const std::vector<float> wide = renderWith(avx2Kernel);
    QVERIFY(std::memcmp(plain.data(), wide.data(), plain.size() * sizeof(float)) == 0);
}

void TestKernel::bestOneRuns() {
    QCOMPARE(bestKernel().name, hasAvx2() ? avx2Kernel.name : plainKernel.name);
    QVERIFY(!renderWith(bestKernel()).empty());
}

void TestKernel::statesCarryOver() {
    // A section that adds the sample before, and one of the other half that adds the one before that, to what comes in.
    for (const Kernel *kernel : {&plainKernel, &bestKernel()}) {
        for (size_t cut = 0; cut <= 8; ++cut) {
            ToneGroup group{};
            for (auto &section : group.coefficients) {
                std::fill_n(section[0], groupLanes, 1.0);
            }
            std::fill_n(group.coefficients[0][1], stereo, 1.0);
            std::fill_n(&group.coefficients[4][2][stereo], stereo, 1.0);
            double samples[16] = {1, 10};
            kernel->tone(&group, samples, cut);
            kernel->tone(&group, samples + cut * stereo, 8 - cut);
            const double expected[16] = {1, 10, 1, 10, 1, 10, 1, 10};
            QVERIFY(std::equal(std::begin(samples), std::end(samples), expected));
        }
    }
}

QTEST_APPLESS_MAIN(TestKernel)
#include "tst_kernel.moc"
