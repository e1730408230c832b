#include "soundmodel.h"

#include "soundlimits.h"
#include "soundtables.h"

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
    HEADUNIT_TRACE(QStringLiteral("%1 = %2").arg(key).arg(value), QStringLiteral("store: %1 = %2").arg(key).arg(value));
    m_store.set(key, value);
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
    if (!exists(channel, SoundState::channels, "volume channel")) {
        return;
    }
    const size_t index = static_cast<size_t>(channel);
    SoundState next = m_state;
    next.channelLevel[index] = clamped(level, ranges::channelLevel, "channel level");
    keep(m_levelKeys[index], next.channelLevel[index]);
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
    assign(m_state.subwooferLevel, clamped(level, ranges::subwooferLevel, "subwoofer level"));
}

void SoundModel::setSubwooferPhase(int phase) {
    if (exists(phase, ranges::flag.high + 1, "subwoofer phase")) {
        assign(m_state.subwooferPhase, phase);
    }
}

void SoundModel::setFilter(FilterChannel channel, const CrossoverFilter &filter) {
    if (!exists(filter.freq, frequencyCount(channel), "crossover frequency index")) {
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

void SoundModel::setMuted(bool muted) {
    assign(m_state.muted, muted);
}

void SoundModel::beep(int sound) {
    Q_EMIT beeped(sound);
}

void SoundModel::apply(const SoundState &next) {
    if (next == m_state) {
        return;
    }
    const SoundState before = m_state;
    m_state = next;
    Q_EMIT changed();
    for (size_t channel = 0; channel < before.channelLevel.size(); ++channel) {
        if (next.channelLevel[channel] != before.channelLevel[channel]) {
            Q_EMIT channelLevelChanged(static_cast<int>(channel), next.channelLevel[channel]);
        }
    }
}

}  // namespace headunit
