// SPDX-License-Identifier: Apache-2.0
#include "soundreader.h"

#include "resampler.h"

#include "headunit/audio/engine/kernel.h"

#include <sndfile.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <optional>
#include <system_error>

namespace headunit {

namespace {

using engine::sampleRate;
using engine::stereo;

constexpr size_t chunkFrames = 1024;
constexpr float minusThreeDecibels = 0.70710678F;

/// The share of a channel of the file in left and right.
struct Share {
    float left;
    float right;
};

/// The share of a place in a listening room. The low frequencies of a film are left out, as the unit makes its own.
struct Place {
    int name;
    Share share;
};
constexpr Share onlyLeft = {1, 0};
constexpr Share onlyRight = {0, 1};
constexpr Share besideLeft = {minusThreeDecibels, 0};
constexpr Share besideRight = {0, minusThreeDecibels};
constexpr Share middle = {minusThreeDecibels, minusThreeDecibels};
constexpr Place places[] = {{SF_CHANNEL_MAP_LEFT, onlyLeft},
                            {SF_CHANNEL_MAP_RIGHT, onlyRight},
                            {SF_CHANNEL_MAP_FRONT_LEFT, onlyLeft},
                            {SF_CHANNEL_MAP_FRONT_RIGHT, onlyRight},
                            {SF_CHANNEL_MAP_CENTER, middle},
                            {SF_CHANNEL_MAP_FRONT_CENTER, middle},
                            {SF_CHANNEL_MAP_REAR_CENTER, middle},
                            {SF_CHANNEL_MAP_LFE, {0, 0}},
                            {SF_CHANNEL_MAP_REAR_LEFT, besideLeft},
                            {SF_CHANNEL_MAP_REAR_RIGHT, besideRight},
                            {SF_CHANNEL_MAP_SIDE_LEFT, besideLeft},
                            {SF_CHANNEL_MAP_SIDE_RIGHT, besideRight},
                            {SF_CHANNEL_MAP_FRONT_LEFT_OF_CENTER, besideLeft},
                            {SF_CHANNEL_MAP_FRONT_RIGHT_OF_CENTER, besideRight}};

/// How files order so many channels, two or more, if they do not say it; beyond eight more pairs follow.
std::vector<int> usualOrder(size_t channels) {
    constexpr int left = SF_CHANNEL_MAP_LEFT;
    constexpr int right = SF_CHANNEL_MAP_RIGHT;
    constexpr int centre = SF_CHANNEL_MAP_CENTER;
    constexpr int low = SF_CHANNEL_MAP_LFE;
    constexpr int rearLeft = SF_CHANNEL_MAP_REAR_LEFT;
    constexpr int rearRight = SF_CHANNEL_MAP_REAR_RIGHT;
    constexpr int rearCentre = SF_CHANNEL_MAP_REAR_CENTER;
    constexpr int sideLeft = SF_CHANNEL_MAP_SIDE_LEFT;
    constexpr int sideRight = SF_CHANNEL_MAP_SIDE_RIGHT;
    static const std::vector<int> orders[] = {{left, right},
                                              {left, right, centre},
                                              {left, right, rearLeft, rearRight},
                                              {left, right, centre, rearLeft, rearRight},
                                              {left, right, centre, low, rearLeft, rearRight},
                                              {left, right, centre, low, rearCentre, sideLeft, sideRight},
                                              {left, right, centre, low, rearLeft, rearRight, sideLeft, sideRight}};
    std::vector<int> order = orders[std::min(channels - 2, std::size(orders) - 1)];
    while (order.size() < channels) {
        order.push_back(order.size() % 2 == 0 ? sideLeft : sideRight);
    }
    return order;
}

/// The shares of channels in that \a order; none if one of them has no place, or nothing could be heard.
std::vector<Share> sharesOf(const std::vector<int> &order) {
    std::vector<Share> list;
    float left = 0;
    float right = 0;
    for (const int name : order) {
        const auto place =
            std::find_if(std::begin(places), std::end(places), [name](const Place &one) { return one.name == name; });
        if (place == std::end(places)) {
            return {};
        }
        list.push_back(place->share);
        left += place->share.left;
        right += place->share.right;
    }
    const float louder = std::max(left, right);
    if (louder == 0) {
        return {};
    }
    for (Share &share : list) {
        share.left /= louder;  // what is full scale everywhere stays full scale
        share.right /= louder;
    }
    return list;
}

/// The shares of a file's channels. One channel goes to both sides, whatever it is said to be; two are left and right.
std::vector<Share> shares(SNDFILE *file, size_t channels) {
    if (channels == 1) {
        return {{1, 1}};
    }
    std::vector<int> order(channels);
    const int size = static_cast<int>(channels * sizeof(int));
    if (channels > stereo && sf_command(file, SFC_GET_CHANNEL_MAP_INFO, order.data(), size) == SF_TRUE) {
        std::vector<Share> said = sharesOf(order);
        if (!said.empty()) {
            return said;
        }
    }
    return sharesOf(usualOrder(channels));
}

}  // namespace

struct SoundReader::Private {
    SNDFILE *file = nullptr;
    std::optional<Resampler> resampler;  ///< none at the engine's own rate
    sf_count_t unread = 0;               ///< frames of the file
    std::vector<Share> list;
    std::vector<float> raw;
    std::vector<float> chunk = std::vector<float>(chunkFrames * stereo);

    ~Private() { sf_close(file); }

    size_t readFile(float *target, size_t frames) {
        const size_t wanted = std::min(frames, chunkFrames);
        const size_t got = static_cast<size_t>(
            std::max<sf_count_t>(0, sf_readf_float(file, raw.data(), static_cast<sf_count_t>(wanted))));
        unread -= static_cast<sf_count_t>(got);
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

    static size_t feed(void *reader, const float **samples, size_t frames) {
        Private *const self = static_cast<Private *>(reader);
        *samples = self->chunk.data();
        return self->readFile(self->chunk.data(), frames);
    }
};

SoundReader::SoundReader() : d(new Private) {}

SoundReader::~SoundReader() = default;

bool SoundReader::open(const std::string &path, std::string *error) {
    constexpr int largestChannelCount = 64;
    constexpr double largestRatio = 256;  // between sample rates
    d = std::make_unique<Private>();
    std::error_code unknown;
    if (std::filesystem::exists(path, unknown) && !std::filesystem::is_regular_file(path, unknown)) {
        *error = path + ": this is no file that could be played";  // a pipe or a device would wait for whoever writes
        return false;
    }
    SF_INFO info{};
    // The library takes "-" alone for standard input, which would be waited for.
    d->file = sf_open(path == "-" ? "./-" : path.c_str(), SFM_READ, &info);
    if (!d->file) {
        *error = path + ": " + sf_strerror(nullptr);
        return false;
    }
    if (info.frames <= 0) {
        *error = path + ": the file holds no samples";
        return false;
    }
    d->unread = info.frames;
    const double ratio = sampleRate / info.samplerate;
    if (info.channels < 1 || info.channels > largestChannelCount || ratio > largestRatio || ratio < 1 / largestRatio) {
        *error = path + ": a file of " + std::to_string(info.channels) + " channels at " +
                 std::to_string(info.samplerate) + " Hz cannot be played";
        return false;
    }
    d->list = shares(d->file, static_cast<size_t>(info.channels));
    d->raw.resize(chunkFrames * d->list.size());
    if (ratio != 1) {
        d->resampler.emplace(info.samplerate, sampleRate, stereo, chunkFrames, Private::feed, d.get());
        if (!d->resampler->isGood()) {
            *error = path + ": there is not enough memory to play it";
            return false;
        }
    }
    return true;
}

bool SoundReader::isAtEnd() const {
    return d->unread <= 0;
}

size_t SoundReader::read(float *target, size_t frames) {
    size_t done = 0;
    while (done < frames) {
        float *const next = target + done * stereo;
        const size_t wanted = frames - done;
        const size_t got = d->resampler ? d->resampler->read(next, wanted) : d->readFile(next, wanted);
        if (got == 0) {
            break;
        }
        done += got;
    }
    return done;
}

}  // namespace headunit
