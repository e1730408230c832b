// The whole sound chain from file to file, every part of it at work:
//
//   soundchain plain|best IN.wav OUT.wav

#include "headunit/audio/files/render.h"

#include <cstdio>
#include <cstring>

using namespace headunit;

int main(int argc, char **argv) {
    if (argc != 4) {
        std::fputs("usage: soundchain plain|best IN.wav OUT.wav\n", stderr);
        return 2;
    }
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
    const engine::Kernel &kernel = std::strcmp(argv[1], "plain") == 0 ? engine::plainKernel : engine::bestKernel();
    engine::Meters meters;
    std::string error;
    if (!renderFile(argv[2], argv[3], state, &meters, &error, kernel)) {
        std::fprintf(stderr, "%s\n", error.c_str());
        return 1;
    }
    std::puts(kernel.name);
    return 0;
}
