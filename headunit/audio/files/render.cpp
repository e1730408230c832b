#include "render.h"

#include "soundreader.h"
#include "soundwriter.h"

#include "headunit/audio/engine/engine.h"

#include <algorithm>
#include <memory>
#include <vector>

namespace headunit {

using namespace engine;

bool renderFile(const std::string &in, const std::string &out, const SoundState &state, std::string *error,
                const Kernel &kernel) {
    constexpr size_t blockFrames = 4096;
    SoundReader reader;
    SoundWriter writer;
    if (!reader.open(in, error) || !writer.open(out, error)) {
        return false;
    }
    const auto sound = std::make_unique<Engine>(Engine::Start::AtOnce, kernel);
    sound->setParameters(designParameters(state));
    std::vector<float> stereoBlock(blockFrames * stereo);
    std::vector<float> block(blockFrames * outputCount);
    Inputs inputs{};
    inputs[MainInput] = stereoBlock.data();
    const auto process = [&](size_t frames) { sound->process(inputs, block.data(), frames); };

    // The engine comes late: what it gives first is cut off, and as much silence is put in at the end.
    size_t early = Engine::latency;
    for (bool ended = false; !ended;) {
        size_t frames = reader.read(stereoBlock.data(), blockFrames);
        ended = frames < blockFrames;
        process(frames);
        const size_t cut = std::min(early, frames);
        early -= cut;
        if (!writer.write(block.data() + cut * outputCount, frames - cut, error)) {
            return false;
        }
    }
    // A file shorter than the latency has part of it still to be cut off.
    std::fill(stereoBlock.begin(), stereoBlock.end(), 0.0F);
    process(Engine::latency);
    return writer.write(block.data() + early * outputCount, Engine::latency - early, error) && writer.finish(error);
}

}  // namespace headunit
