#pragma once

#include "delayline.h"
#include "kernel.h"
#include "parameters.h"

#include <array>

namespace headunit::engine {

/// The filters, gains and delays from the mix to the outputs, under parameters that stand still. Copying one copies
/// what its filters have heard, so that the copy goes on without a gap under other parameters.
class Chain {
public:
    static constexpr size_t largestBlock = 64;  ///< in frames

    explicit Chain(const Kernel &kernel);

    /// Takes other parameters; the filters keep what they have heard.
    void load(const ChainParameters &parameters);
    const ChainParameters &parameters() const { return m_parameters; }

    /// Takes up to largestBlock \a frames of the mix, which it overwrites; gives as many of outputCount samples.
    void process(double *mix, double *out, size_t frames);

private:
    static constexpr size_t groupCount = toneSections / groupSections;
    static_assert(groupCount * groupSections == toneSections, "tone sections come in whole groups");

    void loadTone();
    void loadCrossover();

    const Kernel *m_kernel;
    ChainParameters m_parameters;
    std::array<ToneGroup, groupCount> m_tone{};
    std::array<bool, groupCount> m_toneActive{};
    OutputBank m_bank{};
    bool m_bankActive = false;
    DelayLine m_delay;
};

}  // namespace headunit::engine
