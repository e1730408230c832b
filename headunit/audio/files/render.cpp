// SPDX-License-Identifier: Apache-2.0
#include "render.h"

#include "soundreader.h"
#include "soundwriter.h"

#include "headunit/audio/engine/engine.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace headunit {

using namespace engine;

bool renderFile(const std::string &in, const std::string &out, const SoundState &state, Meters *meters,
                std::string *error, const Kernel &kernel) {
    constexpr size_t blockFrames = 4096;
    SoundReader reader;
    SoundWriter writer;
    if (!reader.open(in, error) || !writer.open(out, error)) {
        return false;
    }
    const auto sound = std::make_unique<Engine>(kernel);
    sound->setParameters(designParameters(state));
    std::vector<float> stereoBlock(blockFrames * stereo);
    std::vector<float> block(blockFrames * outputCount);
    Inputs inputs{};
    inputs[MainInput] = stereoBlock.data();
    const auto process = [&](size_t frames) { sound->process(inputs, block.data(), frames); };
    *meters = Meters();
    const auto write = [&](size_t cut, size_t frames) {
        const float *const samples = block.data() + cut * outputCount;
        meters->add(samples, frames - cut);
        return writer.write(samples, frames - cut, error);
    };

    // The engine comes late: what it gives first is cut off, and as much silence is put in at the end.
    size_t early = Engine::latency;
    bool nothingRead = true;
    for (bool ended = false; !ended;) {
        const size_t frames = reader.read(stereoBlock.data(), blockFrames);
        ended = frames < blockFrames;
        nothingRead = nothingRead && frames == 0;
        process(frames);
        const size_t cut = std::min(early, frames);
        early -= cut;
        if (!write(cut, frames)) {
            return false;
        }
    }
    if (nothingRead) {
        *error = in + ": nothing can be read of the file";
        return false;
    }
    // A file shorter than the latency has part of it still to be cut off.
    std::fill(stereoBlock.begin(), stereoBlock.end(), 0.0F);
    process(Engine::latency);
    meters->limiterGain = sound->takeLimiterGains();
    return write(early, Engine::latency) && writer.finish(error);
}

}  // namespace headunit
