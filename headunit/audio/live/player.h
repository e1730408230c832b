// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "deskinput.h"
#include "fileloop.h"
#include "generators.h"

#include "headunit/audio/engine/engine.h"
#include "headunit/audio/engine/meters.h"
#include "headunit/audio/engine/triplebuffer.h"

#include <array>
#include <atomic>
#include <string>
#include <variant>

namespace headunit {

/// Everything that the unit plays, through the engine. fill() and fadeIn() belong to the audio thread, setState() to
/// one control thread at a time, all else to the creating thread.
class Player {
public:
    /// \a what is "music", "noise", "sweep", "loudspeakers", "silence", "desk" (what comes by deskInput()), or the name
    /// of a sound file. False, with a reason in \a error, if it cannot be played. Before the first fill().
    bool choose(const std::string &what, std::string *error);
    /// Hears why a file that plays cannot be played any further, on a thread of the file's. Before choose().
    void setLossListener(FileLoop::LossListener listener) { m_lossListener = std::move(listener); }

    void setState(const SoundState &state);
    /// Plays an input's own short sound; the main one has none. Prompts that are active play theirs again and again.
    void chime(engine::Input input) { m_chimeWanted[input] = true; }

    /// Where programs of the desk come in; null for an input that has none.
    DeskInput *deskInput(engine::Input input) { return m_desk[input].get(); }

    /// How often programs of the desk had too little for the loudspeakers since the last call.
    unsigned takeDeskDropouts();

    /// Levels of the sound played since the last call, or null if nothing was. The reading stays as it is until the
    /// next call.
    const engine::Meters *takeMeters() { return m_meters.take(); }

    /// The next sound rises from silence.
    void fadeIn() { m_engine.fadeIn(); }
    /// Gives \a frames for the six outputs. Never waits, allocates, or calls the system.
    void fill(float *out, size_t frames);

private:
    static constexpr size_t blockFrames = 256;

    struct Silence {
        void fill(float *, size_t) {}
    };
    struct Desk {
        DeskInput *input;
        void fill(float *stereo, size_t frames);
    };

    void fillBlock(float *out, size_t frames);
    bool fillPrompt(engine::Input input, size_t frames);
    void publishMeters(engine::Meters reading);

    engine::Engine m_engine;
    std::array<std::unique_ptr<DeskInput>, engine::inputCount> m_desk;
    FileLoop::LossListener m_lossListener;
    std::variant<Silence, Desk, Music, PinkNoise, Sweep, LoudspeakerTone, FileLoop> m_source;
    std::array<std::atomic<bool>, engine::inputCount> m_chimeWanted{};
    std::array<std::atomic<bool>, engine::inputCount> m_active{};
    static_assert(engine::MainInput == 0 && engine::RingtoneInput == 1 && engine::PhoneInput == 2 &&
                      engine::NavigationInput == 3 && engine::VoiceInput == 4 && engine::AnnouncementInput == 5 &&
                      engine::BeepInput == 6 && engine::inputCount == 7,
                  "a chime stands at its input's place");
    std::array<Chime, engine::inputCount> m_chimes = {Chime(engine::MainInput),  Chime(engine::RingtoneInput),
                                                      Chime(engine::PhoneInput), Chime(engine::NavigationInput),
                                                      Chime(engine::VoiceInput), Chime(engine::AnnouncementInput),
                                                      Chime(engine::BeepInput)};
    std::array<std::array<float, blockFrames * 2>, engine::inputCount> m_blocks{};
    std::array<float, blockFrames * 2> m_deskBlock{};
    engine::Meters m_untaken;  ///< what has been played since the readings that were taken
    engine::TripleBuffer<engine::Meters> m_meters;
};

}  // namespace headunit
