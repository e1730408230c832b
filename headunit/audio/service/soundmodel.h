// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "soundfault.h"
#include "soundstate.h"

#include "headunit/settings/settingsstore.h"
#include "headunit/settings/soundlistener.h"

#include <QObject>
#include <QString>

#include <array>

namespace headunit {

/// The crossover's three filters.
enum class FilterChannel { Front, Rear, Subwoofer };

/// The sound of the unit: the one SoundState, the checks at its boundary, and the settings that the services keep
/// themselves (live equaliser bands, curve in force, channel levels).
///
/// A quantity out of range is clamped, unless that could make something louder: a volume out of range, and a band's,
/// the subwoofer's or a filter's level above its range, make the call void, as does a number that names something that
/// does not exist (band, channel, source, frequency index). A source's gain is clamped all the same, as the page for it
/// goes beyond its range. Either writes a debug line, one each kind and second. GUI thread only.
class SoundModel : public QObject {
    Q_OBJECT
public:
    /// Takes the sound from \a store, which must outlive it.
    explicit SoundModel(SettingsStore &store);
    /// The unit's own, on audioStore(); it follows the store's flat, reset and Defeat operations.
    static SoundModel &instance();

    const SoundState &state() const { return m_state; }

    /// Takes \a part from the store, in which what was never written reads as its readers' default. Active source,
    /// mute and prompts are not kept there and stay.
    void restore(SoundPart part = SoundPart::All);

    /// Takes over \a state whole, but for what plays: active source, mute, prompts and trim stay.
    void adopt(const SoundState &state);

    void setEqType(int type);               ///< any integer
    void setCustomEq(int band, int value);  ///< 0 to 12; -12 to 24
    int customEq(int band) const;           ///< 0 for a band that does not exist
    void setBalanceFader(int balance, int fader);
    void setChannelLevel(int channel, int level);  ///< 0 to 7; 0 to 40
    int channelLevel(int channel) const;           ///< 0 for a channel that does not exist
    void setSourceGain(int source, int value);     ///< 0 to 6; 0 to 20
    void setLoudness(int on);
    void setSubwooferLevel(int level);
    void setSubwooferPhase(int phase);
    void setFilter(FilterChannel channel, const CrossoverFilter &filter);
    void setDelays(const std::array<int, SoundState::outputs> &delays);
    void setActiveSource(int source);
    /// Muted, the source that plays is silent; prompts are not.
    void setTrim(int tenths);  ///< -600 to 0
    void setMuted(bool muted);
    /// A prompt begins or ends; what plays steps back for it as long as it sounds.
    void setPromptActive(Prompt prompt, bool active);
    void beep(int sound);

    /// Whoever makes the sound says what keeps it from being heard.
    void setFault(SoundFault fault);
    SoundFault fault() const { return m_fault; }

Q_SIGNALS:
    /// The state differs from before; once per call that changed it.
    void changed();
    /// A channel's level differs from before, whoever changed it. A listener may answer by setting levels; all of them
    /// hear this one first, and last the one that is in force.
    void channelLevelChanged(int channel, int level);
    void faultChanged();
    /// Asks for a key click.
    void beeped(int sound);

private:
    SoundState restored() const;
    CrossoverFilter restoredFilter(FilterChannel channel) const;
    std::array<int, SoundState::outputs> restoredDelays() const;
    bool restoredDefeat() const;
    /// Takes over a whole state and says what changed.
    void apply(const SoundState &next);
    void announceLevels();
    template <typename T> void assign(T &member, const T &value);
    void keep(const QString &key, int value);

    SettingsStore &m_store;
    SoundState m_state;
    std::array<int, SoundState::channels> m_announcedLevel{};
    bool m_announcing = false;
    SoundFault m_fault = SoundFault::None;
    QString m_eqTypeKey;
    std::array<QString, SoundState::bands> m_bandKeys;  // made once: a drag writes all bands many times a second
    std::array<QString, SoundState::channels> m_levelKeys;
};

}  // namespace headunit
