// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <complex>

namespace headunit::engine {

/// A second-order section, (b0 + b1/z + b2/z^2) / (1 + a1/z + a2/z^2). The default one passes samples on as they are.
struct Biquad {
    double b0 = 1;
    double b1 = 0;
    double b2 = 0;
    double a1 = 0;
    double a2 = 0;

    bool isIdentity() const { return *this == Biquad(); }
    bool operator==(const Biquad &o) const {
        return b0 == o.b0 && b1 == o.b1 && b2 == o.b2 && a1 == o.a1 && a2 == o.a2;
    }
    bool operator!=(const Biquad &o) const { return !(*this == o); }
};

/// Transfer function of a section at \a hz, up to half the sample rate.
std::complex<double> response(const Biquad &section, double hz);

}  // namespace headunit::engine
