// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "delayline.h"
#include "mixhistory.h"
#include "outputfilters.h"
#include "parameters.h"

namespace headunit::engine {

/// From the inputs to the outputs, under parameters that can be faded over to others. Filters that change run twice
/// during the fade, and the new ones have heard the last MixHistory::length frames before it begins: neither they nor
/// the old ones ring into what both of them make of a steady sound. The delays lie behind the fade, so that its seams
/// come out in order.
class Chain {
public:
    static constexpr size_t maxBlockFrames = OutputFilters::maxBlockFrames;  ///< in frames

    explicit Chain(const Kernel &kernel);

    /// Takes other parameters at once; the filters keep what they have heard.
    void load(const ChainParameters &parameters);

    /// Begins to fade over to \a parameters.
    void fadeTo(const ChainParameters &parameters);
    /// Ends the fade: the parameters that it went to hold alone.
    void endFade();

    /// Takes up to maxBlockFrames \a frames of the program and of the prompts, which join it on the front pair behind
    /// equaliser, loudness, balance and fader (null if none sounds); gives as many of outputCount samples.
    /// \a weights are those of the parameters that a fade goes to, a weight for each frame; unused without a fade.
    void process(const double *program, const double *prompts, double *out, size_t frames, const double *weights);

private:
    void letNextFiltersHear();

    bool m_fading = false;
    ChainParameters m_parameters;
    ChainParameters m_next;
    OutputFilters m_filters;
    OutputFilters m_nextFilters;
    MixHistory m_history;
    DelayLine m_delay;
};

}  // namespace headunit::engine
