// SPDX-License-Identifier: Apache-2.0
#include "resampler.h"

#include <soxr.h>

namespace headunit {

struct Resampler::Private {
    soxr_t resampler = nullptr;
    Source source = nullptr;
    void *self = nullptr;

    ~Private() { soxr_delete(resampler); }

    static size_t feed(void *data, soxr_in_t *samples, size_t frames) {
        const Private &d = *static_cast<Private *>(data);
        const float *piece = nullptr;
        const size_t got = d.source(d.self, &piece, frames);
        *samples = piece;
        return got;
    }
};

Resampler::Resampler(double fromRate, double toRate, size_t channels, size_t largestPiece, Source source, void *self)
    : d(new Private) {
    d->source = source;
    d->self = self;
    const soxr_io_spec_t samples = soxr_io_spec(SOXR_FLOAT32_I, SOXR_FLOAT32_I);
    const soxr_quality_spec_t quality = soxr_quality_spec(SOXR_24_BITQ, 0);
    // Short transforms come less late and take the processor's time more evenly.
    soxr_runtime_spec_t manner = soxr_runtime_spec(1);
    manner.log2_min_dft_size = manner.log2_large_dft_size = 8;
    d->resampler = soxr_create(fromRate, toRate, static_cast<unsigned>(channels), nullptr, &samples, &quality, &manner);
    if (d->resampler) {
        soxr_set_input_fn(d->resampler, Private::feed, d.get(), largestPiece);
    }
}

Resampler::~Resampler() = default;

bool Resampler::isGood() const {
    return d->resampler != nullptr;
}

size_t Resampler::read(float *samples, size_t frames) {
    return soxr_output(d->resampler, samples, frames);
}

}  // namespace headunit
