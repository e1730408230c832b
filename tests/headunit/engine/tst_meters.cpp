// What the engine says of the samples that it gave.

#include "headunit/audio/engine/engine.h"
#include "headunit/audio/engine/filterdesign.h"
#include "rendering.h"

#include <QTest>

#include <cmath>
#include <optional>

using namespace headunit::engine;
using namespace rendering;

namespace {

std::vector<float> process(Engine &engine, const Stereo &signal) {
    std::vector<float> out(signal.size() / stereo * outputCount);
    Inputs inputs{};
    inputs[MainInput] = signal.data();
    engine.process(inputs, out.data(), signal.size() / stereo);
    return out;
}

}  // namespace

class TestMeters : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void peaksAndLimiter();
    void eachReadingStartsAnew();
};

void TestMeters::peaksAndLimiter() {
    Engine engine;
    SoundState state = neutral();
    state.balance = 15;
    state.channelLevel[0] = 40;
    state.sourceGain[0] = 20;
    engine.setParameters(designParameters(state));
    QVERIFY(!engine.takeMeters());
    process(engine, tone(440, 4800, 0.2));
    const Meters *const meters = engine.takeMeters();
    QVERIFY(meters);
    QVERIFY(meters->peak[FrontLeft] == 0.0F);
    QVERIFY(std::abs(meters->peak[RearRight] - 0.2 * fromDecibels(10)) < 0.001);
    QVERIFY(meters->limiterGain == 1.0F);
    QVERIFY(!engine.takeMeters());
    process(engine, tone(440, 4800, 0.9));
    const Meters *const loud = engine.takeMeters();
    QVERIFY(loud);
    QVERIFY(std::abs(loud->limiterGain - fromDecibels(-10) / 0.9) < 0.01);
    QVERIFY(loud->peak[FrontRight] <= 1);
}

/// Twenty readings a second, each of what came since the one before, peaks of either sign.
void TestMeters::eachReadingStartsAnew() {
    constexpr size_t interval = 2400;
    Engine engine;
    engine.setParameters(designParameters(neutral()));
    const auto readingOf = [&engine](float left, float right) -> std::optional<Meters> {
        Stereo signal(interval * stereo);
        signal[200] = left;
        signal[201] = right;
        process(engine, Stereo(signal.begin(), signal.end() - stereo));
        if (engine.takeMeters()) {
            return std::nullopt;  // too early
        }
        process(engine, Stereo(stereo));
        const Meters *const meters = engine.takeMeters();
        return meters ? std::optional(*meters) : std::nullopt;
    };
    struct Case {
        float left;
        float right;
    };
    for (const Case &one : {Case{-0.5F, 0.25F}, {0, -0.125F}, {0, 0}, {0.75F, -1}}) {
        const std::optional<Meters> meters = readingOf(one.left, one.right);
        QVERIFY(meters);
        for (size_t output = 0; output < outputCount; ++output) {
            QVERIFY(meters->peak[output] == (std::abs(output % stereo == 0 ? one.left : one.right)));
        }
        QVERIFY(meters->limiterGain == 1.0F);
    }
    const std::optional<Meters> limited = readingOf(4, 0);
    QVERIFY(limited && std::abs(limited->limiterGain - 0.25F) < 1e-6F);
    const std::optional<Meters> recovering = readingOf(0, 0);
    QVERIFY(recovering && recovering->limiterGain > 0.25F && recovering->limiterGain < 1);
}

QTEST_APPLESS_MAIN(TestMeters)
#include "tst_meters.moc"
