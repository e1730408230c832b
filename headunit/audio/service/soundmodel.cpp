// SPDX-License-Identifier: Apache-2.0
#include "soundmodel.h"

#include "soundlimits.h"
#include "soundtables.h"
#include "soundtext.h"

#include "headunit/settings/audiokeys.h"
#include "headunit/settings/trace.h"
#include "headunit/settings/unitsettings.h"

namespace headunit {

namespace {

template <size_t Count> std::array<QString, Count> numberedKeys(const SettingKey &key) {
    std::array<QString, Count> names;
    for (size_t number = 0; number < Count; ++number) {
        names[number] = QString::fromLatin1(key.name).arg(number);
    }
    return names;
}

int frequencyCount(FilterChannel channel) {
    switch (channel) {
        case FilterChannel::Front:
            return static_cast<int>(frontFrequencies.size());
        case FilterChannel::Rear:
            return static_cast<int>(rearFrequencies.size());
        case FilterChannel::Subwoofer:
            return static_cast<int>(subwooferFrequencies.size());
    }
    return 0;
}

}  // namespace

SoundModel::SoundModel(SettingsStore &store)
    : m_store(store),
      m_eqTypeKey(QString::fromLatin1(keys::eqType.name)),
      m_bandKeys(numberedKeys<SoundState::bands>(keys::customEq)),
      m_levelKeys(numberedKeys<SoundState::channels>(keys::channelLevel)) {
    restore();
}

SoundModel &SoundModel::instance() {
    static SoundModel model(audioStore());
    static const bool listening = [] {
        setSoundListener([](SoundPart part) { model.restore(part); });
        return true;
    }();
    Q_UNUSED(listening)
    return model;
}

template <typename T> void SoundModel::assign(T &member, const T &value) {
    if (!(member == value)) {
        member = value;
        Q_EMIT changed();
    }
}

void SoundModel::keep(const QString &key, int value) {
    HEADUNIT_TRACE_KIND(Write, QStringLiteral("%1 = %2").arg(key).arg(value),
                        QStringLiteral("store: %1 = %2").arg(key).arg(value), key, m_store.values().value(key), value);
    m_store.set(key, value);
}

void SoundModel::adopt(const SoundState &state) {
    SoundState next = state;
    next.activeSource = m_state.activeSource;
    next.muted = m_state.muted;
    next.activePrompts = m_state.activePrompts;
    next.trim = m_state.trim;
    apply(next);
}

void SoundModel::setEqType(int type) {
    keep(m_eqTypeKey, type);
    assign(m_state.eqType, type);
}

void SoundModel::setCustomEq(int band, int value) {
    if (!exists(band, SoundState::bands, "equaliser band")) {
        return;
    }
    const size_t index = static_cast<size_t>(band);
    if (tooLoud(value, ranges::bandValue, "equaliser band value")) {
        return;
    }
    const int kept = clamped(value, ranges::bandValue, "equaliser band value");
    keep(m_bandKeys[index], kept);
    assign(m_state.customEq[index], kept);
}

int SoundModel::customEq(int band) const {
    return exists(band, SoundState::bands, "equaliser band") ? m_state.customEq[static_cast<size_t>(band)] : 0;
}

void SoundModel::setBalanceFader(int balance, int fader) {
    SoundState next = m_state;
    next.balance = clamped(balance, ranges::balanceFader, "balance");
    next.fader = clamped(fader, ranges::balanceFader, "fader");
    apply(next);
}

void SoundModel::setChannelLevel(int channel, int level) {
    if (!exists(channel, SoundState::channels, "volume channel") ||
        !exists(level, ranges::channelLevel.high + 1, "channel level")) {
        return;
    }
    const size_t index = static_cast<size_t>(channel);
    SoundState next = m_state;
    next.channelLevel[index] = level;
    keep(m_levelKeys[index], level);
    apply(next);
}

int SoundModel::channelLevel(int channel) const {
    return exists(channel, SoundState::channels, "volume channel") ? m_state.channelLevel[static_cast<size_t>(channel)]
                                                                   : 0;
}

void SoundModel::setSourceGain(int source, int value) {
    if (exists(source, SoundState::sources, "source")) {
        assign(m_state.sourceGain[static_cast<size_t>(source)], clamped(value, ranges::sourceGain, "source gain"));
    }
}

void SoundModel::setLoudness(int on) {
    assign(m_state.loudness, clamped(on, ranges::flag, "loudness") == 1);
}

void SoundModel::setSubwooferLevel(int level) {
    if (!tooLoud(level, ranges::subwooferLevel, "subwoofer level")) {
        assign(m_state.subwooferLevel, clamped(level, ranges::subwooferLevel, "subwoofer level"));
    }
}

void SoundModel::setSubwooferPhase(int phase) {
    if (exists(phase, ranges::flag.high + 1, "subwoofer phase")) {
        assign(m_state.subwooferPhase, phase);
    }
}

void SoundModel::setFilter(FilterChannel channel, const CrossoverFilter &filter) {
    if (!exists(filter.freq, frequencyCount(channel), "crossover frequency index") ||
        tooLoud(filter.level, ranges::filterLevel, "crossover level")) {
        return;
    }
    CrossoverFilter checked = filter;
    checked.slope = clamped(filter.slope, ranges::slope, "crossover slope");
    checked.level = clamped(filter.level, ranges::filterLevel, "crossover level");
    assign(channel == FilterChannel::Front  ? m_state.front
           : channel == FilterChannel::Rear ? m_state.rear
                                            : m_state.subwoofer,
           checked);
}

void SoundModel::setDelays(const std::array<int, SoundState::outputs> &delays) {
    std::array<int, SoundState::outputs> checked = delays;
    for (int &delay : checked) {
        delay = clamped(delay, ranges::delay, "delay");
    }
    assign(m_state.delay, checked);
}

void SoundModel::setActiveSource(int source) {
    if (exists(source, SoundState::sources, "source")) {
        assign(m_state.activeSource, source);
    }
}

void SoundModel::setTrim(int tenths) {
    assign(m_state.trim, clamped(tenths, ranges::trim, "trim"));
}

void SoundModel::setMuted(bool muted) {
    HEADUNIT_TRACE(traceCall("mute", {muted}), muted ? QStringLiteral("what plays falls silent, prompts do not")
                                                     : QStringLiteral("what plays is heard again"));
    assign(m_state.muted, muted);
}

void SoundModel::setPromptActive(Prompt prompt, bool active) {
    HEADUNIT_TRACE(traceCall("prompt", {promptName(prompt), active}), promptText(prompt, active));
    assign(m_state.activePrompts[static_cast<size_t>(prompt)], active);
}

void SoundModel::beep(int sound) {
    Q_EMIT beeped(sound);
}

void SoundModel::setFault(SoundFault fault) {
    if (fault != m_fault) {
        m_fault = fault;
        Q_EMIT faultChanged();
    }
}

void SoundModel::apply(const SoundState &next) {
    if (next == m_state) {
        return;
    }
    m_state = next;
    Q_EMIT changed();
    announceLevels();
}

/// A level that a listener sets meanwhile is announced when all of them have heard the level before.
void SoundModel::announceLevels() {
    if (m_announcing) {
        return;
    }
    m_announcing = true;
    constexpr int mostAnswers = 1000;  // listeners that never agree must not stop the unit
    int announced = 0;
    for (size_t channel = 0; channel < m_announcedLevel.size() && announced < mostAnswers;) {
        const int level = m_state.channelLevel[channel];
        if (level == m_announcedLevel[channel]) {
            ++channel;
            continue;
        }
        m_announcedLevel[channel] = level;
        ++announced;
        Q_EMIT channelLevelChanged(static_cast<int>(channel), level);
        channel = 0;
    }
    m_announcing = false;
    if (announced == mostAnswers) {
        qWarning("sound: listeners answer a channel's level with another one again and again");
    }
}

}  // namespace headunit
