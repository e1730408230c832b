// SPDX-License-Identifier: Apache-2.0
// The audio thread must not allocate, take a lock or call the system while it plays. Each is counted on a thread
// that fills the loudspeakers' samples while another one changes settings.

#include "headunit/audio/live/devicesound.h"
#include "headunit/audio/live/player.h"

#include "tests/headunit/audio/engine/rendering.h"
#include "tests/headunit/audio/files/soundfiletest.h"

#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <mutex>
#include <thread>

#include <dlfcn.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <pthread.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

struct Counts {
    int allocations = 0;
    int locks = 0;
    int systemCalls = 0;
};

thread_local bool counting = false;
thread_local Counts counts;

void countAllocation() {
    counts.allocations += counting;
}

void countLock() {
    counts.locks += counting;
}

}  // namespace

#if defined(__SANITIZE_ADDRESS__)

// The sanitizer has the allocator, and calls whoever wants to know.
extern "C" int __sanitizer_install_malloc_and_free_hooks(void (*allocated)(const volatile void *, size_t),
                                                         void (*freed)(const volatile void *));

namespace {

const int hooks = __sanitizer_install_malloc_and_free_hooks([](const volatile void *, size_t) { countAllocation(); },
                                                            [](const volatile void *) { countAllocation(); });

}  // namespace

#else

// The C library's own allocator, counted.
extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *memory, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
void __libc_free(void *memory);

void *malloc(size_t size) {
    countAllocation();
    return __libc_malloc(size);
}
void *calloc(size_t count, size_t size) {
    countAllocation();
    return __libc_calloc(count, size);
}
void *realloc(void *memory, size_t size) {
    countAllocation();
    return __libc_realloc(memory, size);
}
void *aligned_alloc(size_t alignment, size_t size) {
    countAllocation();
    return __libc_memalign(alignment, size);
}
void free(void *memory) {
    countAllocation();
    __libc_free(memory);
}
}

#endif

// Every lock of C and C++ ends here; semaphores and futexes that wait call the system.
extern "C" {
int pthread_mutex_lock(pthread_mutex_t *mutex) {
    static const auto next = reinterpret_cast<int (*)(pthread_mutex_t *)>(dlsym(RTLD_NEXT, "pthread_mutex_lock"));
    countLock();
    return next(mutex);
}
int pthread_mutex_trylock(pthread_mutex_t *mutex) {
    static const auto next = reinterpret_cast<int (*)(pthread_mutex_t *)>(dlsym(RTLD_NEXT, "pthread_mutex_trylock"));
    countLock();
    return next(mutex);
}
int pthread_rwlock_rdlock(pthread_rwlock_t *lock) {
    static const auto next = reinterpret_cast<int (*)(pthread_rwlock_t *)>(dlsym(RTLD_NEXT, "pthread_rwlock_rdlock"));
    countLock();
    return next(lock);
}
int pthread_rwlock_wrlock(pthread_rwlock_t *lock) {
    static const auto next = reinterpret_cast<int (*)(pthread_rwlock_t *)>(dlsym(RTLD_NEXT, "pthread_rwlock_wrlock"));
    countLock();
    return next(lock);
}
}

using namespace headunit;
using namespace headunit::engine;

namespace {

/// From now on every system call of this thread, but for the one that puts it to sleep for good, is counted instead of
/// made.
bool trapSystemCalls() {
    struct sigaction action = {};
    action.sa_handler = [](int) { ++counts.systemCalls; };
    sigaction(SIGSYS, &action, nullptr);
    const sock_filter allowed[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_rt_sigreturn, 2, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_ppoll, 1, 0),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRAP),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {std::size(allowed), const_cast<sock_filter *>(allowed)};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

/// Two calls of the allocator, which a compiler would otherwise see through.
void allocate() {
    void *volatile memory = std::malloc(1);
    std::free(memory);
}

/// Counts what \a work does on a thread of its own while \a meanwhile goes on in this one.
template <typename Work, typename Meanwhile> Counts count(const Work &work, const Meanwhile &meanwhile) {
    Counts result;
    std::atomic<bool> trapped{false};
    std::atomic<bool> ended{false};
    std::thread([&] {
        allocate();  // the allocator sets itself up for a thread by calling the system
        trapped = trapSystemCalls();
        if (trapped) {
            counting = true;
            work();
            counting = false;
            result = counts;
        }
        ended = true;
        // The thread's end would call the system, too.
        while (true) {
            syscall(SYS_ppoll, nullptr, 0, nullptr, nullptr, 0);  // not every machine has the older ones
        }
    }).detach();
    meanwhile();
    while (!ended) {
        std::this_thread::yield();
    }
    if (!trapped) {
        qFatal("the kernel traps no system calls");
    }
    return result;
}

/// Everything neutral, then changes of every kind, clipping among them.
std::vector<SoundState> statesOfUse() {
    SoundState state = rendering::neutral();
    std::vector<SoundState> states = {state};
    state.eqType = 8;
    state.sourceGain.fill(20);
    state.loudness = true;
    state.channelLevel[0] = 30;
    states.push_back(state);
    state.front = {4, 3, 10};
    state.subwoofer = {3, 2, 11};
    states.push_back(state);
    state.delay = {1, 22, 13, 44, 5, 76};
    state.balance = 5;
    states.push_back(state);
    state.activePrompts.fill(true);
    states.push_back(state);
    state.defeat = true;
    state.muted = true;
    states.push_back(state);
    state.activePrompts.fill(false);
    states.push_back(state);
    return states;
}

const std::vector<float> programSound(6000, 0.1F);

/// Programs of the desk play on every input that they can, a little less than the loudspeakers take.
void playPrograms(Player *player, size_t frames) {
    for (size_t input = 0; input < inputCount; ++input) {
        if (DeskInput *const programs = player->deskInput(static_cast<Input>(input))) {
            programs->push(programSound.data(), frames - frames / 100);
        }
    }
}

}  // namespace

class TestAudioThread : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everythingIsCounted();
    void playsAlone_data();
    void playsAlone();

private:
    QTemporaryDir m_folder;
};

void TestAudioThread::everythingIsCounted() {
    std::mutex mutex;
    const Counts nothing = count([] {}, [] {});
    QCOMPARE(nothing.allocations + nothing.locks + nothing.systemCalls, 0);
    const Counts memory = count(allocate, [] {});
    QCOMPARE(memory.allocations, 2);
    const Counts lock = count([&mutex] { const std::lock_guard<std::mutex> guard(mutex); }, [] {});
    QCOMPARE(lock.locks, 1);
    const Counts call = count([] { syscall(SYS_getppid); }, [] {});
    QCOMPARE(call.systemCalls, 1);
    const Counts waiting = count([] { std::this_thread::yield(); }, [] {});
    QCOMPARE(waiting.systemCalls, 1);
}

void TestAudioThread::playsAlone_data() {
    QTest::addColumn<QString>("what");
    QTest::addColumn<double>("rate");
    for (const double rate : {8000.0, 44100.0, 96000.0, 192000.0}) {
        QTest::addRow("music at %g Hz", rate) << "music" << rate;
    }
    for (const char *what : {"music", "noise", "sweep", "loudspeakers", "silence", "desk"}) {
        QTest::newRow(what) << QString::fromLatin1(what) << sampleRate;
    }
    for (const double seconds : {0.1, 2.0}) {
        const QString name = m_folder.filePath(QStringLiteral("%1.wav").arg(seconds));
        soundfiletest::write(name.toStdString(), soundfiletest::tone(44100, 2, 440, seconds));
        QTest::addRow("file of %g s", seconds) << name << sampleRate;
    }
}

void TestAudioThread::playsAlone() {
    QFETCH(QString, what);
    QFETCH(double, rate);
    constexpr size_t blockFrames = 3000;
    constexpr int blocksOfAState = 20;
    std::string error;
    Player player;
    QVERIFY2(player.choose(what.toStdString(), &error), error.c_str());
    DeviceSound sound(player, {rate, 2, SampleFormat::Int16, {{FrontLeft, 0, 1}, {FrontRight, 1, 1}}});
    std::vector<unsigned char> out(blockFrames * sound.frameBytes());
    std::atomic<int> played{0};
    std::atomic<bool> ended{false};
    const Counts done = count(
        [&] {
            while (!ended) {
                const size_t frames = 1 + static_cast<size_t>(played * 97) % blockFrames;
                playPrograms(&player, frames);
                sound.fill(out.data(), frames);
                ++played;
            }
        },
        [&] {
            for (const SoundState &state : statesOfUse()) {
                player.setState(state);
                for (size_t input = RingtoneInput; input < inputCount; ++input) {
                    player.chime(static_cast<Input>(input));
                }
                const int until = played + blocksOfAState;
                while (played < until) {
                    std::this_thread::yield();
                }
                player.takeMeters();
            }
            ended = true;
        });
    QVERIFY(!sound.hasEnded());
    for (size_t input = 0; input < inputCount; ++input) {
        QVERIFY(!player.deskInput(static_cast<Input>(input)) ||
                player.deskInput(static_cast<Input>(input))->isActive());
    }
    qInfo("%d blocks: %d allocations, %d locks, %d system calls", played.load(), done.allocations, done.locks,
          done.systemCalls);
    QCOMPARE(done.allocations, 0);
    QCOMPARE(done.locks, 0);
    QCOMPARE(done.systemCalls, 0);
    QVERIFY(played >= blocksOfAState * 5);
}

QTEST_APPLESS_MAIN(TestAudioThread)
#include "tst_audiothread.moc"
