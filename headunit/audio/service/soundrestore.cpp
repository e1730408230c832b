// SPDX-License-Identifier: Apache-2.0
// Restores the sound from the store: which parts stand there, under the same keys that the pages read.

#include "soundlimits.h"
#include "soundmodel.h"

#include "headunit/settings/audiokeys.h"

namespace headunit {

namespace {

int stored(const SettingsStore &store, const SettingKey &key) {
    return store.intValue(QString::fromLatin1(key.name), key.defaultValue);
}

bool storedFlag(const SettingsStore &store, const SettingKey &key) {
    return store.boolValue(QString::fromLatin1(key.name), key.defaultValue != 0);
}

/// A stored \a value that decides how loud something is: out of range, it is taken for never written.
int storedGain(int value, const Range &range, int otherwise, const char *what) {
    if (value >= range.low && value <= range.high) {
        return value;
    }
    if (lineMayPass(what)) {
        qDebug("sound: %s %d is not within %d to %d, taken as %d", what, value, range.low, range.high, otherwise);
    }
    return otherwise;
}

/// How a stored value out of range is read: as the nearer end, or, where that might be loud, as never written.
enum class OutOfRange { NearerEnd, Default };

template <size_t Count> std::array<int, Count> storedRow(const SettingsStore &store, const SettingKey &key,
                                                         const Range &range, OutOfRange outOfRange, int offset = 0) {
    std::array<int, Count> row;
    // In the store's numbers, so that a debug line says what stands there.
    const Range storedRange = {range.low - offset, range.high - offset};
    for (size_t number = 0; number < Count; ++number) {
        const QString name = QString::fromLatin1(key.name).arg(number);
        const int value = store.intValue(name, key.defaultValue);
        row[number] = offset + (outOfRange == OutOfRange::Default
                                    ? storedGain(value, storedRange, key.defaultValue, qPrintable(name))
                                    : clamped(value, storedRange, qPrintable(name)));
    }
    return row;
}

CrossoverFilter storedFilter(const SettingsStore &store, const FilterKeys &keysOfFilter, size_t frequencies) {
    CrossoverFilter filter;
    const int freq = stored(store, keysOfFilter.freq);
    // A stored index beyond the table means off here, as there is no earlier filter to stay with.
    filter.freq = exists(freq, static_cast<int>(frequencies), keysOfFilter.freq.name) ? freq : 0;
    filter.slope = clamped(stored(store, keysOfFilter.slope), ranges::slope, keysOfFilter.slope.name);
    filter.level = storedGain(stored(store, keysOfFilter.level), ranges::filterLevel, keysOfFilter.level.defaultValue,
                              keysOfFilter.level.name);
    return filter;
}

}  // namespace

CrossoverFilter SoundModel::restoredFilter(FilterChannel channel) const {
    switch (channel) {
        case FilterChannel::Front:
            return storedFilter(m_store, keys::front, frontFrequencies.size());
        case FilterChannel::Rear:
            return storedFilter(m_store, keys::rear, rearFrequencies.size());
        case FilterChannel::Subwoofer:
            return storedFilter(m_store, keys::subwoofer, subwooferFrequencies.size());
    }
    return CrossoverFilter();
}

std::array<int, SoundState::outputs> SoundModel::restoredDelays() const {
    return storedRow<SoundState::outputs>(m_store, keys::delay, ranges::delay, OutOfRange::NearerEnd);
}

bool SoundModel::restoredDefeat() const {
    return stored(m_store, keys::defeat) != 0;
}

SoundState SoundModel::restored() const {
    SoundState next;
    next.activeSource = m_state.activeSource;
    next.muted = m_state.muted;
    next.activePrompts = m_state.activePrompts;
    next.trim = m_state.trim;
    next.eqType = stored(m_store, keys::eqType);
    next.customEq = storedRow<SoundState::bands>(m_store, keys::flatBand, ranges::bandValue, OutOfRange::Default);
    next.balance = clamped(stored(m_store, keys::balance), ranges::balanceFader, keys::balance.name);
    next.fader = clamped(stored(m_store, keys::fader), ranges::balanceFader, keys::fader.name);
    next.channelLevel =
        storedRow<SoundState::channels>(m_store, keys::channelLevel, ranges::channelLevel, OutOfRange::Default);
    // The page goes on to 20 for the radio, which sounds like 10.
    next.sourceGain = storedRow<SoundState::sources>(m_store, keys::sourceGain, ranges::sourceGain,
                                                     OutOfRange::NearerEnd, neutralSourceGain);
    next.loudness = storedFlag(m_store, keys::loudness);
    next.defeat = restoredDefeat();
    if (storedFlag(m_store, keys::subwooferOn)) {
        next.subwooferLevel = storedGain(stored(m_store, keys::subwooferLevel), ranges::subwooferLevel,
                                         keys::subwooferLevel.defaultValue, keys::subwooferLevel.name);
    }
    const int phase = stored(m_store, keys::subwooferPhase);
    next.subwooferPhase = exists(phase, ranges::flag.high + 1, keys::subwooferPhase.name) ? phase : 0;
    next.front = restoredFilter(FilterChannel::Front);
    next.rear = restoredFilter(FilterChannel::Rear);
    next.subwoofer = restoredFilter(FilterChannel::Subwoofer);
    next.delay = restoredDelays();
    return next;
}

void SoundModel::restore(SoundPart part) {
    SoundState next = m_state;
    switch (part) {
        case SoundPart::Crossover:
            next.front = restoredFilter(FilterChannel::Front);
            next.rear = restoredFilter(FilterChannel::Rear);
            next.subwoofer = restoredFilter(FilterChannel::Subwoofer);
            break;
        case SoundPart::Delays:
            next.delay = restoredDelays();
            break;
        case SoundPart::Defeat:
            next.defeat = restoredDefeat();
            break;
        case SoundPart::All:
            next = restored();
            break;
    }
    apply(next);
}

}  // namespace headunit
