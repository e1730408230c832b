#pragma once

#include "kernel.h"
#include "parameters.h"

#include <array>

namespace headunit::engine {

/// The filters from the mix to the outputs, under parameters that stand still. Copying them copies what they have
/// heard, so that the copy goes on without a gap under other parameters.
class Filters {
public:
    explicit Filters(const Kernel &kernel);

    /// Takes other parameters; the filters keep what they have heard.
    void load(const ChainParameters &parameters);

    /// Takes \a frames of the mix, which it overwrites, and of the prompts, null if none sounds; gives as many of
    /// outputCount samples.
    void process(double *mix, const double *prompts, double *spread, size_t frames);

private:
    static constexpr size_t groupCount = toneSections / groupSections;
    static_assert(groupCount * groupSections == toneSections, "tone sections come in whole groups");

    void loadTone(const ChainParameters &parameters);
    void loadCrossover(const ChainParameters &parameters);

    const Kernel *m_kernel;
    std::array<ToneGroup, groupCount> m_tone{};
    std::array<bool, groupCount> m_toneActive{};
    std::array<double, outputCount> m_placement{};
    OutputBank m_bank{};
    bool m_bankActive = false;
};

}  // namespace headunit::engine
