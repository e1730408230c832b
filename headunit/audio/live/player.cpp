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
    } else if (what == "silence") {
        m_source.emplace<Silence>();
    } else {
        return m_source.emplace<FileLoop>().open(what, error);
    }
    return true;
}

void Player::setState(const SoundState &state) {
    m_engine.setParameters(engine::designParameters(state));
    for (size_t prompt = 0; prompt < state.activePrompts.size(); ++prompt) {
        m_active[RingtoneInput + prompt] = state.activePrompts[prompt];
    }
}

void Player::fillBlock(float *out, size_t frames) {
    Inputs inputs{};
    std::visit([this, frames](auto &source) { source.fill(m_blocks[MainInput].data(), frames); }, m_source);
    inputs[MainInput] = m_blocks[MainInput].data();
    for (size_t input = RingtoneInput; input < inputCount; ++input) {
        if (m_wanted[input].exchange(false) || (m_active[input] && m_chimes[input].isOver())) {
            m_chimes[input].restart();
        }
        if (!m_chimes[input].isOver()) {
            m_chimes[input].fill(m_blocks[input].data(), frames);
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
    publishMeters(reading);
}

}  // namespace headunit
