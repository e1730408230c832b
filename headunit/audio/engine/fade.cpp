// SPDX-License-Identifier: Apache-2.0
#include "fade.h"

namespace headunit::engine {

namespace {

double seventhOrderSmoothstep(double t) {
    return t * t * t * t * (35 + t * (-84 + t * (70 - 20 * t)));
}

}  // namespace

Fade::Fade(size_t length) : m_position(length) {
    m_weights.reserve(length);
    for (size_t i = 1; i < length; ++i) {
        m_weights.push_back(seventhOrderSmoothstep(static_cast<double>(i) / static_cast<double>(length)));
    }
    m_weights.push_back(1);
}

}  // namespace headunit::engine
