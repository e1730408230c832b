// SPDX-License-Identifier: Apache-2.0
// The whole sound chain, every part of it at work:
//
//   soundchain plain|best IN.wav OUT.wav    from file to file
//   soundchain speed                        in memory, beside its arithmetic floor: nanoseconds of CPU for each frame

#include "soundfloor.h"

#include "headunit/audio/engine/engine.h"
#include "headunit/audio/files/render.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <limits>
#include <memory>
#include <random>
#include <vector>

using namespace headunit;

namespace {

SoundState everythingOn() {
    SoundState state;
    state.eqType = 3;
    state.channelLevel.fill(32);
    state.sourceGain.fill(10);
    state.loudness = true;
    state.balance = 3;
    state.fader = -2;
    state.front = {4, 3, 11};
    state.rear = {4, 3, 12};
    state.subwoofer = {4, 3, 12};
    state.subwooferLevel = 10;
    state.subwooferPhase = 1;
    state.delay = {10, 20, 30, 40, 50, 60};
    return state;
}

double cpuSeconds() {
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

/// The candidates that take turns, so that whatever else the machine does comes over all of them alike; the shortest
/// turn counts.
struct Runner {
    const char *name;
    std::function<void()> run;
    double shortest = std::numeric_limits<double>::max();
};

constexpr size_t frames = 4800;  ///< a turn is short enough to find the machine idle now and then
constexpr size_t blockFrames = 480;
constexpr int turns = 600;

std::function<void()> chainOn(const engine::Kernel &kernel, float amplitude) {
    const auto signal = std::make_shared<std::vector<float>>(frames * engine::stereo);
    std::mt19937 random(1);
    for (float &sample : *signal) {
        sample = amplitude * (static_cast<float>(random() >> 8) / 8388608.0F - 1);
    }
    const auto chain = std::make_shared<engine::Engine>(kernel);
    chain->setParameters(engine::designParameters(everythingOn()));
    const auto out = std::make_shared<std::vector<float>>(blockFrames * engine::outputCount);
    return [signal, chain, out] {
        for (size_t done = 0; done < frames; done += blockFrames) {
            engine::Inputs inputs{};
            inputs[engine::MainInput] = signal->data() + done * engine::stereo;
            chain->process(inputs, out->data(), blockFrames);
        }
    };
}

void measureSpeed() {
    constexpr float usual = 0.1F;
    constexpr float muchTooLoud = 6;
    volatile double unread = 0;
    Runner runners[] = {{"floor", [&unread] { unread = soundFloor(frames); }},
                        {"best", chainOn(engine::bestKernel(), usual)},
                        {"plain", chainOn(engine::plainKernel, usual)},
                        {"best, limiting", chainOn(engine::bestKernel(), muchTooLoud)},
                        {"plain, limiting", chainOn(engine::plainKernel, muchTooLoud)}};
    for (int turn = 0; turn < turns; ++turn) {
        for (Runner &runner : runners) {
            const double start = cpuSeconds();
            runner.run();
            runner.shortest = std::min(runner.shortest, cpuSeconds() - start);
        }
    }
    for (const Runner &runner : runners) {
        std::printf("%s\t%.2f\n", runner.name, 1e9 * runner.shortest / frames);
    }
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 2 && std::strcmp(argv[1], "speed") == 0) {
        measureSpeed();
        return 0;
    }
    if (argc != 4) {
        std::fputs("usage: soundchain plain|best IN.wav OUT.wav\n       soundchain speed\n", stderr);
        return 2;
    }
    const engine::Kernel &kernel = std::strcmp(argv[1], "plain") == 0 ? engine::plainKernel : engine::bestKernel();
    engine::Meters meters;
    std::string error;
    if (!renderFile(argv[2], argv[3], everythingOn(), &meters, &error, kernel)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    std::puts(kernel.name);
    return 0;
}
