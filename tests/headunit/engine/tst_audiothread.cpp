// What the audio thread must not do: allocate, call the system (and so wait for a lock), compute with denormals.

#include "headunit/audio/engine/engine.h"
#include "headunit/audio/engine/flushtozero.h"
#include "rendering.h"

#include <QTest>

#include <atomic>
#include <cmath>
#include <cstdlib>
#include <new>

#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__SANITIZE_ADDRESS__)
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

namespace {

std::atomic<int> allocations{0};

}  // namespace

#if !defined(__SANITIZE_ADDRESS__)
// The C library's own allocator, counted.
extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void __libc_free(void *memory);

void *malloc(size_t size) {
    ++allocations;
    return __libc_malloc(size);
}
void *calloc(size_t count, size_t size) {
    ++allocations;
    return __libc_calloc(count, size);
}
void *realloc(void *memory, size_t size) {
    ++allocations;
    return __libc_realloc(memory, size);
}
void free(void *memory) {
    if (memory) {
        ++allocations;
    }
    __libc_free(memory);
}
}
#endif

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

/// What the audio thread goes through in a few seconds of use: every kind of change, and clipping.
class Use {
public:
    Use() : m_signal(noise(blockFrames, 0.9F)), m_out(blockFrames * outputCount) {
        SoundState state = neutral();
        const auto add = [this, &state] { m_parameters.push_back(designParameters(state)); };
        add();
        state.eqType = 8;
        state.sourceGain.fill(20);
        add();
        state.front = {4, 3, 10};
        state.subwoofer = {3, 2, 11};
        add();
        state.delay = {1, 22, 13, 44, 5, 76};
        state.balance = 5;
        add();
        state.defeat = true;
        state.muted = true;
        add();
    }

    void run() {
        Inputs inputs{};
        inputs.fill(m_signal.data());
        for (const Parameters &parameters : m_parameters) {
            m_engine.setParameters(parameters);
            for (int block = 0; block < 20; ++block) {
                m_engine.process(inputs, m_out.data(), blockFrames);
            }
            m_engine.takeMeters();
        }
    }

private:
    static constexpr size_t blockFrames = 480;

    Engine m_engine{Engine::Start::FadedIn};
    Stereo m_signal;
    std::vector<float> m_out;
    std::vector<Parameters> m_parameters;
};

bool isDenormal(double value) {
    return std::fpclassify(value) == FP_SUBNORMAL;
}

/// How many of a resonant filter's states are denormal at some time of its dying away.
int denormalsInAPause() {
    ToneGroup group{};
    for (auto &section : group.coefficients) {
        section[0] = 1;
        section[3] = -1.5;
        section[4] = 0.7;
    }
    group.states[0][0][0] = 1;
    int count = 0;
    for (int block = 0; block < 5000; ++block) {
        double silence[2 * stereo] = {};
        plainKernel.tone(&group, silence, 2);
        for (const auto &section : group.states) {
            for (const auto &state : section) {
                count += isDenormal(state[0]);
            }
        }
    }
    return count;
}

}  // namespace

class TestAudioThread : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void allocatesNothing();
    void callsNothing();
    void denormalsWouldCome();
    void noDenormals();
    void leavesTheModeAsItWas();
};

void TestAudioThread::allocatesNothing() {
    if (sanitized) {
        QSKIP("the sanitizer has the allocator");
    }
    const int before = allocations;
    std::free(std::malloc(1));
    QVERIFY(allocations == before + 2);  // they are counted
    Use use;
    const int start = allocations;
    use.run();
    const int end = allocations;
    QCOMPARE(end, start);
}

void TestAudioThread::callsNothing() {
    if (sanitized) {
        QSKIP("the sanitizer calls the system itself");
    }
    Use use;
    for (const bool forbidden : {false, true}) {
        const pid_t child = fork();
        if (child == 0) {
            // From here on the kernel ends the process at any call but read, write and exit.
            if (prctl(PR_SET_SECCOMP, SECCOMP_MODE_STRICT) != 0) {
                _exit(2);
            }
            use.run();
            if (forbidden) {
                syscall(SYS_getppid);
            }
            syscall(SYS_exit, 0);
        }
        int status = 0;
        QCOMPARE(waitpid(child, &status, 0), child);
        if (forbidden) {
            QVERIFY(WIFSIGNALED(status));
        } else {
            QVERIFY(WIFEXITED(status));
            QCOMPARE(WEXITSTATUS(status), 0);
        }
    }
}

void TestAudioThread::denormalsWouldCome() {
    QVERIFY(denormalsInAPause() > 0);
    const FlushToZero flush;
    QCOMPARE(denormalsInAPause(), 0);
}

void TestAudioThread::noDenormals() {
    Engine engine;
    SoundState state = neutral();
    state.front = {1, 3, 12};
    state.eqType = 3;
    engine.setParameters(designParameters(state));
    Stereo signal(480000 * stereo);
    signal[0] = signal[1] = 1;
    std::vector<float> out(signal.size() / stereo * outputCount);
    Inputs inputs{};
    inputs[MainInput] = signal.data();
    engine.process(inputs, out.data(), signal.size() / stereo);
    for (const float sample : out) {
        QVERIFY(!isDenormal(static_cast<double>(sample)) && std::fpclassify(sample) != FP_SUBNORMAL);
    }
    QCOMPARE(out.back(), 0.0F);
}

void TestAudioThread::leavesTheModeAsItWas() {
    Use use;
    use.run();
    volatile double tiny = 1e-308;
    tiny = tiny / 16;
    QVERIFY(isDenormal(tiny));
}

QTEST_APPLESS_MAIN(TestAudioThread)
#include "tst_audiothread.moc"
