// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "layout.h"

#include <vector>

namespace headunit::engine {

/// The way from 0 to 1 in a given number of samples. Its first three derivatives are zero at both ends, so that it adds
/// nothing to a low tone that is heard far above it.
class Fade {
public:
    /// Starts at its end.
    explicit Fade(size_t length);

    void restart() { m_position = 0; }
    void advance(size_t frames) { m_position += frames; }
    bool isOver() const { return m_position >= m_weights.size(); }
    /// Frames left.
    size_t remaining() const { return m_weights.size() - m_position; }
    /// Weight of each of the remaining frames; the last one is 1.
    const double *weights() const { return m_weights.data() + m_position; }

private:
    std::vector<double> m_weights;
    size_t m_position;
};

}  // namespace headunit::engine
