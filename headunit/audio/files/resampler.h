// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>

namespace headunit {

/// Brings sound from one sample rate to another, distortion and mirrored tones 150 dB down, up to 0.91 of half the
/// lower rate. Linear in phase: it comes some milliseconds late and changes no shape.
class Resampler {
public:
    /// Gives up to \a frames of what comes next, in memory that stays until the next call; none at the end.
    using Source = size_t (*)(void *self, const float **samples, size_t frames);

    /// \a source is called with \a self, for up to \a largestPiece frames at a time.
    Resampler(double fromRate, double toRate, size_t channels, size_t largestPiece, Source source, void *self);
    ~Resampler();

    /// Whether there was enough memory.
    bool isGood() const;
    /// Fills in up to \a frames, channel by channel in turn; fewer than asked for only at the end.
    size_t read(float *samples, size_t frames);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

}  // namespace headunit
