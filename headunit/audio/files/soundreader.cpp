#include "soundreader.h"

#include "headunit/audio/engine/kernel.h"

#include <samplerate.h>
#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <system_error>

namespace headunit {

namespace {

using engine::sampleRate;
using engine::stereo;

constexpr size_t chunkFrames = 1024;
constexpr float minusThreeDecibels = 0.70710678F;

/// What a channel of the file adds to left and right.
struct Share {
    float left;
    float right;
};

/// Front left, front right, centre, low frequencies, then pairs from the sides and behind, as files order them. One
/// channel goes to both sides; the low frequencies of a film are left out, as the unit makes its own.
std::vector<Share> shares(size_t channels) {
    if (channels == 1) {
        return {{1, 1}};
    }
    std::vector<Share> list = {{1, 0}, {0, 1}};
    for (size_t channel = stereo; channel < channels; ++channel) {
        constexpr size_t centre = 2;
        constexpr size_t lowFrequencies = 3;
        if (channel == centre) {
            list.push_back({minusThreeDecibels, minusThreeDecibels});
        } else if (channel == lowFrequencies && channels > lowFrequencies + 1) {
            list.push_back({0, 0});
        } else {
            const bool left = channel % 2 == 0;
            list.push_back({left ? minusThreeDecibels : 0, left ? 0 : minusThreeDecibels});
        }
    }
    float sum = 0;
    for (const Share &share : list) {
        sum += share.left;
    }
    for (Share &share : list) {
        share.left /= sum;  // what is full scale everywhere stays full scale
        share.right /= sum;
    }
    return list;
}

}  // namespace

struct SoundReader::Private {
    SNDFILE *file = nullptr;
    SRC_STATE *resampler = nullptr;
    double ratio = 1;
    std::vector<Share> list;
    std::vector<float> raw;
    std::vector<float> chunk = std::vector<float>(chunkFrames * stereo);

    ~Private() {
        src_delete(resampler);
        sf_close(file);
    }

    size_t readFile(float *target, size_t frames) {
        const size_t wanted = std::min(frames, chunkFrames);
        const size_t got = static_cast<size_t>(
            std::max<sf_count_t>(0, sf_readf_float(file, raw.data(), static_cast<sf_count_t>(wanted))));
        for (size_t frame = 0; frame < got; ++frame) {
            float left = 0;
            float right = 0;
            for (size_t channel = 0; channel < list.size(); ++channel) {
                const float sample = raw[frame * list.size() + channel];
                // A damaged sample would otherwise spread over its neighbours in the resampler.
                const float whole = std::isfinite(sample) ? sample : 0;
                left += whole * list[channel].left;
                right += whole * list[channel].right;
            }
            target[frame * stereo] = left;
            target[frame * stereo + 1] = right;
        }
        return got;
    }

    static long feed(void *reader, float **data) {
        Private *const self = static_cast<Private *>(reader);
        *data = self->chunk.data();
        return static_cast<long>(self->readFile(self->chunk.data(), chunkFrames));
    }
};

SoundReader::SoundReader() : d(new Private) {}

SoundReader::~SoundReader() = default;

bool SoundReader::open(const std::string &path, std::string *error) {
    constexpr int largestChannelCount = 64;
    d = std::make_unique<Private>();
    std::error_code unknown;
    if (std::filesystem::is_fifo(path, unknown)) {
        *error = path + ": a pipe cannot be played";  // opening it would wait for whoever writes
        return false;
    }
    SF_INFO info{};
    d->file = sf_open(path.c_str(), SFM_READ, &info);
    if (!d->file) {
        *error = path + ": " + sf_strerror(nullptr);
        return false;
    }
    if (info.frames <= 0) {
        *error = path + ": the file holds no samples";
        return false;
    }
    d->ratio = sampleRate / info.samplerate;
    if (info.channels < 1 || info.channels > largestChannelCount || !src_is_valid_ratio(d->ratio)) {
        *error = path + ": a file of " + std::to_string(info.channels) + " channels at " +
                 std::to_string(info.samplerate) + " Hz cannot be played";
        return false;
    }
    d->list = shares(static_cast<size_t>(info.channels));
    d->raw.resize(chunkFrames * d->list.size());
    if (d->ratio != 1) {
        int code = 0;
        d->resampler = src_callback_new(Private::feed, SRC_SINC_BEST_QUALITY, stereo, &code, d.get());
        if (!d->resampler) {
            *error = path + ": " + src_strerror(code);
            return false;
        }
    }
    return true;
}

size_t SoundReader::read(float *target, size_t frames) {
    size_t done = 0;
    while (done < frames) {
        float *const next = target + done * stereo;
        const size_t wanted = frames - done;
        const size_t got = d->resampler
                               ? static_cast<size_t>(std::max(
                                     0L, src_callback_read(d->resampler, d->ratio, static_cast<long>(wanted), next)))
                               : d->readFile(next, wanted);
        if (got == 0) {
            break;
        }
        done += got;
    }
    return done;
}

}  // namespace headunit
