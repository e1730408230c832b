// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "layout.h"

#include <array>
#include <cstdint>

namespace headunit::engine {

/// The gain of an input that steps back while another one speaks: down within downSamples, up again within upSamples.
/// It may be sent elsewhere at any moment, never leaves the range of the gains that it was sent to, and ends exactly
/// where it was sent.
///
/// The way is a jump down or a straight line up, rounded by four means in a row: what they leave of a jump far above
/// the sound cannot be heard. Gains are whole numbers, so that the means return to exactly what they are means of.
class Ducking {
public:
    static constexpr size_t downSamples = static_cast<size_t>(0.05 * sampleRate);
    static constexpr size_t upSamples = static_cast<size_t>(0.5 * sampleRate);

    /// \a gain is 0 to 1, as in all that follows.
    explicit Ducking(double gain = 1) { jumpTo(gain); }

    /// Is there at once.
    void jumpTo(double gain);
    /// Sets out; nothing changes on a way that leads there already.
    void goTo(double gain);

    bool isMoving() const { return m_settled < downSamples; }
    /// The gain that is in force while nothing moves.
    double gain() const { return toDouble(m_target); }
    /// Takes the next steps of the way: \a gains for as many \a frames.
    void advance(double *gains, size_t frames);

private:
    using Gain = int64_t;
    static constexpr Gain unity = Gain(1) << 30;
    static constexpr size_t means = 4;
    static constexpr size_t meanSamples = downSamples / means;
    static_assert(means * meanSamples == downSamples, "the means take the whole way down");

    static double toDouble(Gain gain) { return static_cast<double>(gain) / static_cast<double>(unity); }
    Gain next();

    Gain m_target;
    Gain m_line;            ///< on its straight way to the target
    Gain m_rise = 0;        ///< of the line, each sample
    size_t m_settled;       ///< samples since the line reached the target
    size_t m_position = 0;  ///< of the next write
    std::array<Gain, means> m_sums;
    std::array<std::array<int32_t, meanSamples>, means> m_history;
};

}  // namespace headunit::engine
