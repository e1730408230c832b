// SPDX-License-Identifier: Apache-2.0
#include "player.h"

#include <algorithm>

namespace headunit {

using namespace engine;

bool Player::choose(const std::string &what, std::string *error) {
    if (what == "music") {
        m_source.emplace<Music>();
    } else if (what == "noise") {
        m_source.emplace<PinkNoise>();
    } else if (what == "sweep") {
        m_source.emplace<Sweep>();
    } else if (what == "loudspeakers") {
        m_source.emplace<LoudspeakerTone>();
    } else if (what == "desk") {
        for (size_t input = MainInput; input < BeepInput; ++input) {
            m_desk[input] = std::make_unique<DeskInput>();
        }
        m_source = Desk{m_desk[MainInput].get()};
    } else if (what == "silence") {
        m_source.emplace<Silence>();
    } else {
        FileLoop &file = m_source.emplace<FileLoop>();
        file.setLossListener(m_lossListener);
        return file.open(what, error);
    }
    return true;
}

void Player::setState(const SoundState &state) {
    SoundState heard = state;
    for (size_t prompt = 0; prompt < state.activePrompts.size(); ++prompt) {
        const size_t input = RingtoneInput + prompt;
        m_active[input] = state.activePrompts[prompt];
        // The music steps back for programs as it does for the unit's own prompts.
        heard.activePrompts[prompt] = state.activePrompts[prompt] || (m_desk[input] && m_desk[input]->isActive());
    }
    m_engine.setParameters(engine::designParameters(heard));
}

unsigned Player::takeDeskDropouts() {
    unsigned dropouts = 0;
    for (const auto &input : m_desk) {
        dropouts += input ? input->takeDropouts() : 0;
    }
    return dropouts;
}

void Player::Desk::fill(float *samples, size_t frames) {
    if (input->isActive()) {
        input->fill(samples, frames);
    } else {
        std::fill_n(samples, frames * stereo, 0.0F);
    }
}

/// Whether there is anything of a prompt: its own short sound, what programs of the desk play on it, or both.
bool Player::fillPrompt(Input input, size_t frames) {
    const bool isPlayed = m_desk[input] && m_desk[input]->isActive();
    if (m_chimeWanted[input].exchange(false) || (m_active[input] && !isPlayed && m_chimes[input].isOver())) {
        m_chimes[input].restart();
    }
    const bool chimes = !m_chimes[input].isOver();
    if (chimes) {
        m_chimes[input].fill(m_blocks[input].data(), frames);
    }
    if (!isPlayed) {
        return chimes;
    }
    m_desk[input]->fill(m_deskBlock.data(), frames);
    for (size_t i = 0; i < frames * stereo; ++i) {
        m_blocks[input][i] = m_deskBlock[i] + (chimes ? m_blocks[input][i] : 0);
    }
    return true;
}

void Player::fillBlock(float *out, size_t frames) {
    Inputs inputs{};
    std::visit([this, frames](auto &source) { source.fill(m_blocks[MainInput].data(), frames); }, m_source);
    inputs[MainInput] = m_blocks[MainInput].data();
    for (size_t input = RingtoneInput; input < inputCount; ++input) {
        if (fillPrompt(static_cast<Input>(input), frames)) {
            inputs[input] = m_blocks[input].data();
        }
    }
    m_engine.process(inputs, out, frames);
    if (const auto tone = std::get_if<LoudspeakerTone>(&m_source)) {
        tone->select(out, frames);
    }
}

/// Readings that nobody has taken go into the next ones, so that no peak is lost however seldom they are taken.
void Player::publishMeters(Meters reading) {
    if (!m_meters.isTaken()) {
        reading.add(m_untaken);
    }
    m_untaken = reading;
    m_meters.write(reading);
}

void Player::fill(float *out, size_t frames) {
    for (size_t done = 0; done < frames;) {
        const size_t count = std::min(blockFrames, frames - done);
        fillBlock(out + done * outputCount, count);
        done += count;
    }
    Meters reading;
    reading.add(out, frames);
    reading.limiterGain = m_engine.takeLimiterGains();
    reading.overs = m_engine.takeOvers();
    publishMeters(reading);
}

}  // namespace headunit
