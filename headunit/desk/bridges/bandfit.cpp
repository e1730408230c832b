// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/bridges/bandfit.h"

#include "headunit/audio/engine/equaliser.h"
#include "headunit/audio/service/soundtables.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace headunit {

namespace {

constexpr double pointsPerOctave = 12;
using Sections = std::array<engine::Biquad, engine::bandCount>;

Sections sectionsOf(const engine::Curve &gains) {
    engine::BandGains wanted;
    std::copy(gains.begin(), gains.end(), wanted.begin());
    return engine::designEqualiser(wanted);
}

double decibelsOf(const Sections &sections, double hz) {
    double gain = 1;
    for (const engine::Biquad &section : sections) {
        gain *= std::abs(engine::response(section, hz));
    }
    return 20 * std::log10(gain);
}

/// The curve that is wanted, at the points where it is compared.
class Target {
public:
    explicit Target(const std::function<double(double)> &wanted) {
        const int points = static_cast<int>(pointsPerOctave * std::log2(highestFitHz / lowestFitHz)) + 1;
        for (int i = 0; i < points; ++i) {
            m_hz.push_back(lowestFitHz * std::exp2(i / pointsPerOctave));
            m_wanted.push_back(wanted(m_hz.back()));
        }
    }
    BandFit compare(const engine::Curve &gains) const {
        const Sections sections = sectionsOf(gains);
        BandFit fit;
        fit.gains = gains;
        double squares = 0;
        for (size_t i = 0; i < m_hz.size(); ++i) {
            const double error = decibelsOf(sections, m_hz[i]) - m_wanted[i];
            squares += error * error;
            if (std::abs(error) > std::abs(fit.most)) {
                fit.most = error;
                fit.mostHz = m_hz[i];
            }
        }
        fit.rms = std::sqrt(squares / double(m_hz.size()));
        return fit;
    }

private:
    std::vector<double> m_hz;
    std::vector<double> m_wanted;
};

int within(double gain) {
    return static_cast<int>(std::lround(std::clamp(gain, double(-neutralBandValue), double(neutralBandValue))));
}

/// Whether a step of one band, or of two neighbours against each other, comes nearer; \a best is then that.
bool improve(const Target &target, BandFit *best) {
    const BandFit start = *best;
    const auto attempt = [&](engine::Curve gains) {
        const bool inside = std::all_of(gains.begin(), gains.end(), [](int gain) { return gain == within(gain); });
        if (inside) {
            const BandFit fit = target.compare(gains);
            *best = fit.rms < best->rms ? fit : *best;
        }
    };
    for (size_t band = 0; band < start.gains.size(); ++band) {
        for (const int step : {-1, 1}) {
            engine::Curve gains = start.gains;
            gains[band] += step;
            attempt(gains);
            if (band + 1 < gains.size()) {
                gains[band + 1] -= step;
                attempt(gains);
            }
        }
    }
    return best->rms < start.rms;
}

}  // namespace

BandFit fitBands(const std::function<double(double hz)> &wanted) {
    const Target target(wanted);
    engine::Curve gains;
    // The equaliser passes through its bands' gains, so what is wanted there is near.
    std::transform(bandFrequencies.begin(), bandFrequencies.end(), gains.begin(),
                   [&wanted](int hz) { return within(wanted(hz)); });
    BandFit best = target.compare(gains);
    while (improve(target, &best)) {
    }
    return best;
}

double equaliserDecibels(const engine::Curve &gains, double hz) {
    return decibelsOf(sectionsOf(gains), hz);
}

}  // namespace headunit
