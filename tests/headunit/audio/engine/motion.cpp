// SPDX-License-Identifier: Apache-2.0
// Plays what motion.py judges, a record after the other on standard output:
//
//   motion changes     a tone under every change of a control, alone, turned back on its way, and in bursts; then
//                      under several fingers
//   motion limiter     what is too loud
//
// A record is a line of fields with tabs between them, and then two rows of samples as 32-bit floats. The last field is
// the length of a row.

#include "changesofcontrols.h"
#include "rendering.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <random>

using namespace headunit;
using namespace headunit::engine;
using namespace rendering;

namespace {

constexpr double amplitude = 0.25;
constexpr size_t steady = static_cast<size_t>(sampleRate / 2);    ///< before the first change
constexpr size_t after = static_cast<size_t>(0.47 * sampleRate);  ///< of the last change
constexpr size_t burstInterval = static_cast<size_t>(sampleRate / 20);
constexpr size_t burstChanges = 10;
constexpr size_t longestCourse = static_cast<size_t>(sampleRate);

#ifdef __SANITIZE_ADDRESS__
constexpr size_t everyRow = 25;  ///< the judge looks for faults in memory here, not for a good ear
#else
constexpr size_t everyRow = 1;
#endif

float highest(const std::vector<float> &samples, size_t first, size_t count) {
    float peak = 0;
    for (size_t i = first; i < first + count; ++i) {
        peak = std::max(peak, std::abs(samples[i]));
    }
    return peak;
}

void writeRows(const std::vector<float> &first, const std::vector<float> &second, size_t frames) {
    std::printf("%zu\n", frames);
    std::fwrite(first.data(), sizeof(float), frames, stdout);
    std::fwrite(second.data(), sizeof(float), frames, stdout);
}

/// Settings before the first change, and what is set when.
struct Course {
    std::string name;
    SoundState start;
    std::vector<Change> changes;
};

/// A tone under changes from one setting to another and back. Fields: the name, "any" or "1 dB", the tone in Hz, the
/// frames of the first and the last change, and the louder of the steady levels. Rows: an output, and what it would be
/// if the settings had always been the last ones.
class Judged {
public:
    Judged(const ChangeOfControl &row, double hz) : m_row(row), m_hz(hz) {
        const size_t frames = steady + longestCourse + after;
        m_signal = tone(hz, frames, amplitude);
        m_before = render(row.before, m_signal, {}, {}, row.input);
        m_after = render(row.after, m_signal, {}, {}, row.input);
        chooseOutput();
    }

    void write(const Course &course) const {
        const size_t frames = course.changes.back().frame + after;
        const Stereo signal(m_signal.begin(), m_signal.begin() + static_cast<long>(frames * stereo));
        const std::vector<float> samples = render(course.start, signal, course.changes, {}, m_row.input)[m_output];
        const Sound &reference = course.changes.back().state == m_row.after ? m_after : m_before;
        std::printf("%s, %s\t%s\t%g\t%zu\t%zu\t%g\t", m_row.name.c_str(), course.name.c_str(),
                    m_row.size == ChangeOfControl::OneDecibel ? "1 dB" : "any", m_hz, course.changes.front().frame,
                    course.changes.back().frame, static_cast<double>(m_level));
        writeRows(samples, reference[m_output], frames);
    }

private:
    /// Front left, or where it does not notice the change the first one that does.
    void chooseOutput() {
        while (m_output < SubRight && m_before[m_output] == m_after[m_output]) {
            ++m_output;
        }
        constexpr size_t tenth = static_cast<size_t>(sampleRate / 10);
        for (size_t output = 0; output < outputCount; ++output) {
            if (m_output != FrontLeft || output == FrontLeft) {
                m_level = std::max({m_level, highest(m_before[output], steady - tenth, tenth),
                                    highest(m_after[output], steady - tenth, tenth)});
            }
        }
    }

    const ChangeOfControl &m_row;
    double m_hz;
    Stereo m_signal;
    Sound m_before;
    Sound m_after;
    size_t m_output = FrontLeft;
    float m_level = 0;
};

void playChange(const ChangeOfControl &row, double hz) {
    const Judged judged(row, hz);
    constexpr double phases[] = {0, 0.25, 0.4};
    for (const double phase : phases) {
        const size_t frame = steady + static_cast<size_t>(std::lround(phase * sampleRate / hz));
        judged.write({"there", row.before, {{frame, row.after}}});
        judged.write({"back", row.after, {{frame, row.before}}});
    }
    constexpr size_t underWay = static_cast<size_t>(0.012 * sampleRate);
    judged.write({"turned back on its way", row.before, {{steady, row.after}, {steady + underWay, row.before}}});
    Course burst = {"burst", row.before, {}};
    for (size_t i = 0; i < burstChanges; ++i) {
        burst.changes.push_back({steady + i * burstInterval, i % 2 == 0 ? row.after : row.before});
    }
    judged.write(burst);
}

/// Several fingers at once: one of many controls is moved every 12 ms on the average.
void playFingers(double hz) {
    constexpr size_t courses = 20;
    constexpr size_t steps = 40;
    std::mt19937 random(1);
    for (size_t number = 0; number < courses; ++number) {
        SoundState state = neutral();
        state.channelLevel[0] = 30;
        Course course = {"course " + std::to_string(number), state, {}};
        size_t frame = steady;
        for (size_t step = 0; step < steps; ++step) {
            const auto any = [&random](int low, int high) {
                return low + static_cast<int>(random() % (high - low + 1));
            };
            switch (any(0, 6)) {
                case 0:
                case 1:
                    state.customEq[static_cast<size_t>(any(0, 12))] = any(0, 24);
                    break;
                case 2:
                    state.front = {any(0, 4), any(1, 3), any(6, 12)};
                    break;
                case 3:
                    state.channelLevel[0] = any(24, 31);
                    break;
                case 4:
                    state.loudness = !state.loudness;
                    break;
                case 5:
                    state.delay[FrontLeft] = any(0, 99);
                    break;
                default:
                    state.fader = any(-15, 7);
            }
            course.changes.push_back({frame, state});
            frame += static_cast<size_t>(any(1, static_cast<int>(0.024 * sampleRate)));
        }
        const ChangeOfControl row = {"fingers", ChangeOfControl::Any, course.start, state, MainInput};
        Judged(row, hz).write(course);
    }
}

constexpr size_t seconds(double count) {
    return static_cast<size_t>(count * sampleRate);
}

SoundState tenDecibelsLouder() {
    SoundState state = neutral();
    state.sourceGain[0] = 20;
    return state;
}

/// A drum on each beat, a bass and a chord, and a cymbal between the beats: at full scale, but for the last.
Stereo music(size_t frames) {
    Stereo signal(frames * stereo);
    const Stereo hiss = noise(frames, 1);
    constexpr double chord[] = {220, 277.18, 329.63, 440};
    for (size_t frame = 0; frame < frames; ++frame) {
        const double time = static_cast<double>(frame) / sampleRate;
        const double beat = std::fmod(time, 0.5);
        const double offBeat = std::fmod(time + 0.25, 0.5);
        double sample = 0.35 * std::exp(-beat / 0.08) * std::sin(2 * pi * 55 * beat * (1 + std::exp(-beat / 0.02)));
        sample += 0.2 * std::sin(2 * pi * 82.41 * time);
        for (const double hz : chord) {
            sample +=
                0.06 * std::exp(-beat / 0.3) * (std::sin(2 * pi * hz * time) + std::sin(2 * pi * 3 * hz * time) / 3);
        }
        for (size_t side = 0; side < stereo; ++side) {
            const double cymbal = 0.2 * std::exp(-offBeat / 0.05) * static_cast<double>(hiss[frame * stereo + side]);
            signal[frame * stereo + side] = static_cast<float>(sample + cymbal);
        }
    }
    return signal;
}

Stereo shifted(double hz, size_t frames, double degrees) {
    Stereo signal(frames * stereo);
    for (size_t i = 0; i < signal.size(); ++i) {
        const double angle = 2 * pi * hz * static_cast<double>(i / stereo) / sampleRate + degrees / 180 * pi;
        signal[i] = static_cast<float>(std::sin(angle));
    }
    return signal;
}

/// From silence and back within a hundredth of a second: a tone that is there at once goes higher than it is loud.
Stereo risen(Stereo signal) {
    constexpr size_t rise = seconds(0.01);
    const size_t frames = signal.size() / stereo;
    for (size_t i = 0; i < signal.size(); ++i) {
        const size_t fromEnd = std::min(i / stereo, frames - 1 - i / stereo);
        const double part = std::min(1.0, static_cast<double>(fromEnd) / rise);
        signal[i] *= static_cast<float>(std::pow(std::sin(pi / 2 * part), 2));
    }
    return signal;
}

/// Fields: the measure, and what plays. Rows: front left, and something to compare it with.
void playLimited(const char *measure, const char *name, const Sound &sound, const std::vector<float> &beside) {
    std::printf("%s\t%s\t", measure, name);
    writeRows(sound[FrontLeft], beside, beside.size());
}

void playTruePeaks() {
    const auto play = [](const std::string &name, const Stereo &signal) {
        const Sound sound = render(tenDecibelsLouder(), signal);
        playLimited("true peak", name.c_str(), sound, sound[FrontRight]);
    };
    play("12000 Hz at 45 degrees", shifted(12000, seconds(1), 45));
    for (const double hz : {30.0, 997.0, 5003.0, 8011.0, 11987.0, 15013.0, 19997.0}) {
        play(std::to_string(std::lround(hz)) + " Hz", shifted(hz, seconds(1), 20));
    }
    play("noise", noise(seconds(4), 1));
    play("music", music(seconds(4)));
}

void playLowTones() {
    for (const double hz : {20.0, 30.0, 40.0, 50.0, 80.0, 125.0}) {
        const Sound sound = render(tenDecibelsLouder(), tone(hz, seconds(3), 2 / std::sqrt(10)));
        playLimited("distortion", (std::to_string(std::lround(hz)) + " Hz").c_str(), sound, sound[FrontRight]);
    }
}

/// A drum that is too loud for the subwoofer, with a tone in front; then the same without a subwoofer.
void playSubwoofer() {
    SoundState state = neutral();
    state.front = {5, 2, 12};
    state.subwoofer = {4, 2, 12};
    state.subwooferLevel = 15;
    Stereo signal = tone(1000, seconds(3), 0.1);
    for (size_t i = 0; i < signal.size(); ++i) {
        const double time = static_cast<double>(i / stereo) / sampleRate;
        const double beat = std::fmod(time, 0.5);
        signal[i] += static_cast<float>(0.85 * std::exp(-beat / 0.1) * std::sin(2 * pi * 50 * beat));
    }
    const Sound loud = render(state, signal);
    state.subwooferLevel = 0;
    playLimited("front beside", "subwoofer", loud, render(state, signal)[FrontLeft]);
    playLimited("subwoofer itself", "subwoofer", {loud[SubLeft]}, loud[SubLeft]);
}

/// A low tone that becomes too loud, by a control or by itself, and goes back.
void playEngaging() {
    for (const double hz : {63.0, 100.0, 160.0, 250.0}) {
        const std::string name = std::to_string(std::lround(hz)) + " Hz";
        const Stereo steadyTone = tone(hz, seconds(2.5), 0.63);
        const Sound turned =
            render(neutral(), steadyTone, {{seconds(0.5), tenDecibelsLouder()}, {seconds(1), neutral()}});
        playLimited("engaging", (name + ", turned up").c_str(), turned, turned[FrontLeft]);
        Stereo swelling = tone(hz, seconds(2.5), 0.63);
        for (size_t i = 0; i < swelling.size(); ++i) {
            const double time = static_cast<double>(i / stereo) / sampleRate;
            const double swell = std::pow(std::sin(pi * std::min(1.0, std::max(0.0, (time - 0.5) / 0.2))), 4);
            swelling[i] *= static_cast<float>(0.2 + 0.8 * swell);
        }
        const Sound swelled = render(tenDecibelsLouder(), swelling);
        playLimited("engaging", (name + ", swelling").c_str(), swelled, swelled[FrontLeft]);
    }
}

/// Just within full scale.
void playTransparent() {
    const auto play = [](const char *name, Stereo signal, float level) {
        std::vector<float> left;
        for (size_t i = 0; i < signal.size(); ++i) {
            signal[i] *= level;
            if (i % stereo == 0) {
                left.push_back(signal[i]);
            }
        }
        playLimited("within full scale", name, render(neutral(), signal), left);
    };
    for (const double hz : {997.0, 5003.0, 11987.0, 12000.0, 19997.0}) {
        play((std::to_string(std::lround(hz)) + " Hz").c_str(), risen(shifted(hz, seconds(1), 45)), 0.9999F);
    }
    play("music", music(seconds(4)), 0.9F);
}

void playLimiter() {
    playTruePeaks();
    playLowTones();
    playSubwoofer();
    playEngaging();
    playTransparent();
}

}  // namespace

int main(int argc, char **argv) {
    if (argc == 2 && std::strcmp(argv[1], "changes") == 0) {
        const auto &rows = changesOfControls();
        for (size_t i = 0; i < rows.size(); i += everyRow) {
            for (const double hz : {63.0, 1000.0}) {
                playChange(rows[i], hz);
            }
        }
        playFingers(63);
        playFingers(1000);
        return 0;
    }
    if (argc == 2 && std::strcmp(argv[1], "limiter") == 0) {
        playLimiter();
        return 0;
    }
    std::fputs("usage: motion changes|limiter\n", stderr);
    return 2;
}
