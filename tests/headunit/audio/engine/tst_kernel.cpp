#include "headunit/audio/engine/kernel.h"

#include "headunit/audio/engine/engine.h"
#include "rendering.h"

#include <QTest>

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
    // A section that adds the sample before, and one that adds the one before that, to what comes in.
    ToneGroup group{};
    for (auto &section : group.coefficients) {
        section[0] = 1;
    }
    group.coefficients[0][1] = 1;
    group.coefficients[4][2] = 1;
    double samples[] = {1, 10, 0, 0, 0, 0, 0, 0, 0, 0};
    plainKernel.tone(&group, samples, 1);
    plainKernel.tone(&group, samples + 2, 4);
    const double expected[] = {1, 10, 1, 10, 1, 10, 1, 10, 0, 0};
    QVERIFY(std::equal(std::begin(samples), std::end(samples), expected));
}

QTEST_APPLESS_MAIN(TestKernel)
#include "tst_kernel.moc"
