// SPDX-License-Identifier: Apache-2.0
#include "changesofcontrols.h"

#include "headunit/audio/engine/equaliser.h"
#include "headunit/audio/service/soundtables.h"
#include "rendering.h"

using namespace headunit;
using namespace headunit::engine;
using rendering::neutral;

namespace {

using S = SoundState &;

constexpr auto any = ChangeOfControl::Any;
constexpr auto oneDecibel = ChangeOfControl::OneDecibel;

std::vector<ChangeOfControl> table;

template <typename Rows> std::vector<ChangeOfControl> rowsOf(Rows rows) {
    table.clear();
    rows();
    return table;
}

void nothing(S) {}

/// A change, both ways, after what prepares the settings for it. Its name is followed by \a number, if there is one.
template <typename Change, typename Prepare = void (*)(S)>
void row(const char *name, int number, ChangeOfControl::Size size, Change change, Prepare prepare = nothing,
         Input input = MainInput) {
    SoundState before = neutral();
    before.delay = {3, 17, 41, 68, 99, 5};  // what changes before a delay comes out later
    prepare(before);
    SoundState after = before;
    change(after);
    const std::string whole = number < 0 ? name : std::string(name) + ' ' + std::to_string(number);
    table.push_back({whole, size, before, after, input});
}

template <typename Change, typename Prepare = void (*)(S)>
void row(const char *name, ChangeOfControl::Size size, Change change, Prepare prepare = nothing) {
    row(name, -1, size, change, prepare);
}

void levelRows() {
    row("source gain, 1 dB", oneDecibel, [](S s) { s.sourceGain[0] = 11; });
    row(
        "source gain, 20 dB", any, [](S s) { s.sourceGain[0] = 20; }, [](S s) { s.sourceGain[0] = 0; });
    row(
        "another source", any, [](S s) { s.activeSource = 4; },
        [](S s) { s.sourceGain = {0, 10, 10, 10, 20, 10, 10}; });
    row("mute", any, [](S s) { s.muted = true; });
    row("trim, 6 dB", any, [](S s) { s.trim = -60; });
    constexpr std::pair<size_t, Input> channels[] = {{0, MainInput},       {1, RingtoneInput}, {2, PhoneInput},
                                                     {3, NavigationInput}, {4, VoiceInput},    {6, AnnouncementInput},
                                                     {0, BeepInput}};
    for (const auto &[channel, input] : channels) {
        const size_t c = channel;
        row(
            "volume, 1.5 dB, input", input, any, [c](S s) { s.channelLevel[c] = 39; }, nothing, input);
        row(
            "volume to nothing, input", input, any, [c](S s) { s.channelLevel[c] = 0; }, nothing, input);
    }
    row("balance, a step", any, [](S s) { s.balance = 1; });
    row(
        "balance, all the way", any, [](S s) { s.balance = 15; }, [](S s) { s.balance = -15; });
    row("fader, a step", any, [](S s) { s.fader = -1; });
    row(
        "fader, all the way", any, [](S s) { s.fader = 15; }, [](S s) { s.fader = -15; });
    row("subwoofer off", any, [](S s) { s.subwooferLevel = 0; });
    row("subwoofer level, a step", any, [](S s) { s.subwooferLevel = 11; });
    row(
        "subwoofer level", any, [](S s) { s.subwooferLevel = 15; }, [](S s) { s.subwooferLevel = 1; });
    row("subwoofer phase", any, [](S s) { s.subwooferPhase = 1; });
}

void filterRows() {
    struct Filter {
        CrossoverFilter SoundState::*member;
        int last;  ///< index of its frequencies
        std::array<const char *, 6> names;
    };
    const Filter filters[] = {
        {&SoundState::front,
         frontFrequencies.size() - 1,
         {"front on at", "front to", "front, all frequencies", "front slope to", "front level, 1 dB",
          "front level, 12 dB"}},
        {&SoundState::rear,
         rearFrequencies.size() - 1,
         {"rear on at", "rear to", "rear, all frequencies", "rear slope to", "rear level, 1 dB", "rear level, 12 dB"}},
        {&SoundState::subwoofer,
         subwooferFrequencies.size() - 1,
         {"subwoofer on at", "subwoofer to", "subwoofer, all frequencies", "subwoofer slope to",
          "subwoofer level, 1 dB", "subwoofer level, 12 dB"}}};
    for (const Filter &filter : filters) {
        const auto to = [member = filter.member](int freq, int slope, int level) {
            return [=](S s) { s.*member = {freq, slope, level}; };
        };
        for (int freq = 1; freq <= filter.last; ++freq) {
            row(filter.names[0], freq, any, to(freq, 3, 12));
            if (freq > 1) {
                row(filter.names[1], freq, any, to(freq, 2, 12), to(freq - 1, 2, 12));
            }
        }
        row(filter.names[2], any, to(filter.last, 3, 12), to(1, 3, 12));
        for (int slope = 2; slope <= 3; ++slope) {
            row(filter.names[3], slope, any, to(3, slope, 12), to(3, slope - 1, 12));
            row(filter.names[3], slope, any, to(filter.last, slope, 12), to(filter.last, 1, 12));
        }
        row(filter.names[4], oneDecibel, to(3, 2, 11), to(3, 2, 12));
        row(filter.names[5], any, to(3, 2, 0), to(3, 2, 12));
    }
}

void delayRows() {
    for (size_t output = 0; output < outputCount; ++output) {
        row(
            "delay, a step, output", static_cast<int>(output), any, [output](S s) { ++s.delay[output]; },
            [](S s) { s.delay.fill(42); });
        row(
            "delay, all the way, output", static_cast<int>(output), any, [output](S s) { s.delay[output] = 99; },
            [](S s) { s.delay.fill(0); });
    }
}

void toneRows() {
    row(
        "loudness", any, [](S s) { s.loudness = true; }, [](S s) { s.channelLevel[0] = 16; });
    row(
        "volume under loudness", any, [](S s) { s.channelLevel[0] = 30; },
        [](S s) {
            s.channelLevel[0] = 29;
            s.loudness = true;
        });
    for (int type = 1; type <= 8; ++type) {
        row(
            "factory curve", type, any, [type](S s) { s.eqType = type; }, [](S s) { s.eqType = 0; });
    }
    row(
        "one curve to another", any, [](S s) { s.eqType = 3; }, [](S s) { s.eqType = 8; });
    row(
        "a curve to the custom one", any, [](S s) { s.eqType = 18; },
        [](S s) {
            s.eqType = 5;
            s.customEq = {0, 24, 3, 20, 9, 12, 14, 22, 1, 7, 18, 11, 2};
            s.channelLevel[0] = 30;
        });
    row(
        "all bands from one end to the other", any, [](S s) { s.customEq.fill(24); },
        [](S s) {
            s.customEq.fill(0);
            s.channelLevel[0] = 30;
        });
    for (size_t band = 0; band < bandCount; ++band) {
        row("1 dB, band of", bandFrequencies[band], oneDecibel, [band](S s) { s.customEq[band] = 13; });
        row(
            "24 dB, band of", bandFrequencies[band], any, [band](S s) { s.customEq[band] = 24; },
            [band](S s) {
                s.customEq[band] = 0;
                s.channelLevel[0] = 32;
            });
    }
}

/// Every control away from where a new unit has it
void allOn(S s) {
    s.eqType = 7;
    s.loudness = true;
    s.channelLevel[0] = 30;
    s.sourceGain[0] = 14;
    s.balance = 6;
    s.fader = -9;
    s.subwooferLevel = 13;
    s.subwooferPhase = 1;
    s.front = {4, 2, 9};
    s.rear = {5, 3, 7};
    s.subwoofer = {3, 3, 10};
}

void presetRows() {
    row(
        "Defeat", any, [](S s) { s.defeat = true; }, allOn);
    row(
        "everything to how it leaves the factory", any, [](S s) { s = SoundState(); }, allOn);
    row(
        "everything to other values", any,
        [](S s) {
            s = neutral();
            s.eqType = 2;
            s.channelLevel.fill(15);
            s.front = {9, 1, 3};
            s.rear = {1, 1, 12};
            s.subwoofer = {5, 1, 4};
            s.delay = {90, 80, 1, 2, 3, 50};
        },
        allOn);
}

void promptRow(const char *name, Prompt prompt, Input input = MainInput, void (*prepare)(S) = nothing) {
    row(
        name, -1, any, [prompt](S s) { s.activePrompts[static_cast<size_t>(prompt)] = true; }, prepare, input);
}

}  // namespace

const std::vector<ChangeOfControl> &changesOfControls() {
    static const std::vector<ChangeOfControl> changes = rowsOf([] {
        levelRows();
        filterRows();
        delayRows();
        toneRows();
        presetRows();
    });
    return changes;
}

const std::vector<ChangeOfControl> &changesOfPrompts() {
    static const std::vector<ChangeOfControl> changes = rowsOf([] {
        promptRow("ringtone", Prompt::Ringtone);
        promptRow("phone", Prompt::Phone);
        promptRow("navigation", Prompt::Navigation);
        promptRow("voice", Prompt::Voice);
        promptRow("announcement", Prompt::Announcement);
        promptRow("navigation over an announcement", Prompt::Navigation, AnnouncementInput);
        promptRow("phone during an announcement", Prompt::Phone, AnnouncementInput);
        promptRow("phone during guidance", Prompt::Phone, MainInput,
                  [](S s) { s.activePrompts[static_cast<size_t>(Prompt::Navigation)] = true; });
    });
    return changes;
}
