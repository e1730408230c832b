// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/engine/kernel.h"

#include <soxr.h>

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace headunit {

/// The sound that programs of the desk play on one of the unit's inputs. They run by another clock than the
/// loudspeakers do: the sound is stretched, by less than anybody hears, so that as much as needed waits here and no
/// more.
///
/// setListener() comes first; everything else belongs to the audio thread.
class DeskInput {
public:
    /// Average fill where the machine keeps up, in frames.
    static constexpr size_t usualFrames = 720;
    /// ... and what at most where it often does not.
    static constexpr size_t largestFrames = 2880;

    DeskInput();

    /// \a changed is called when programs begin to be heard, or no longer are.
    void setListener(std::function<void(bool active)> changed) { m_changed = std::move(changed); }

    /// Takes \a frames of left and right in turn; what is no number, or infinite, is silence. May call the listener.
    void push(const float *stereo, size_t frames);
    /// Whether such samples have come.
    bool hasHadInvalid() const { return m_hadInvalid; }
    /// Nothing more comes for the time being.
    void stop();

    /// Whether programs are heard; from any thread.
    bool isActive() const { return m_active; }
    /// Frames that have come and are still to be given.
    size_t waiting() const { return m_written - m_read; }
    /// Gives left and right in turn; silence where too little has come. Never waits, allocates, or calls the system.
    void fill(float *stereo, size_t frames);
    /// How often too little had come.
    unsigned takeDropouts() { return m_dropouts.exchange(0); }

private:
    struct Deleter {
        void operator()(soxr *resampler) const { soxr_delete(resampler); }
    };

    void starve();
    static size_t feed(void *self, soxr_in_t *samples, size_t frames);
    void setActive(bool active);
    void steer(size_t frames);
    std::function<void(bool)> m_changed;
    std::unique_ptr<soxr, Deleter> m_stretcher;
    std::vector<float> m_ring;
    std::vector<float> m_piece;
    size_t m_written = 0;  ///< frames since the beginning
    size_t m_read = 0;
    size_t m_silent = 0;  ///< frames of silence that came last
    size_t m_wanted = usualFrames;
    size_t m_sinceStarved = 0;
    size_t m_sinceSteered = 0;
    double m_level = 0;  ///< frames that wait, smoothed
    double m_stretch = 1;
    std::atomic<bool> m_active{false};
    bool m_hadInvalid = false;
    bool m_playing = false;  ///< enough has come to begin with
    std::atomic<unsigned> m_dropouts{0};
};

}  // namespace headunit
