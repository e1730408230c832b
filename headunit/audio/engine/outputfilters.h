// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "kernel.h"
#include "parameters.h"

#include <array>

namespace headunit::engine {

/// The filters from the inputs to the outputs, under parameters that stand still. Copying them copies what they have
/// heard.
class OutputFilters {
public:
    static constexpr size_t maxBlockFrames = 256;  ///< in frames

    explicit OutputFilters(const Kernel &kernel);

    /// Takes other parameters; the filters keep what they have heard.
    void load(const ChainParameters &parameters);
    /// Forgets everything that was heard.
    void forget();
    /// Takes over what \a other have heard as far as they are the same filters and have heard the same.
    void goOnFrom(const OutputFilters &other);

    /// Takes up to maxBlockFrames \a frames of the program and of the prompts, null if none sounds; gives as many of
    /// outputCount samples.
    void process(const double *program, const double *prompts, double *spread, size_t frames);

private:
    static constexpr size_t groupCount = toneSections / groupSections;
    static_assert(groupCount * groupSections == toneSections, "tone sections come in whole groups");

    void loadTone(const ChainParameters &parameters);
    void loadCrossover(const ChainParameters &parameters);
    bool hasToneOf(const OutputFilters &other) const;
    bool hasOutputOf(const OutputFilters &other, size_t output) const;

    const Kernel *m_kernel;
    std::array<ToneGroup, groupCount> m_tone{};
    std::array<bool, groupCount> m_toneActive{};
    std::array<double, outputCount> m_placement{};
    OutputBank m_bank{};
    bool m_bankActive = false;
};

}  // namespace headunit::engine
