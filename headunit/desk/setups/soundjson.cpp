// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/soundjson.h"

namespace headunit {

namespace {

/// Hands every number of a state to \a take, always in the same order.
template <typename State, typename Take> void eachNumber(State &state, const Take &take) {
    take(state.eqType);
    for (auto &value : state.customEq) {
        take(value);
    }
    take(state.balance);
    take(state.fader);
    for (auto &value : state.channelLevel) {
        take(value);
    }
    for (auto &value : state.sourceGain) {
        take(value);
    }
    take(state.loudness);
    take(state.defeat);
    take(state.subwooferLevel);
    take(state.subwooferPhase);
    for (auto *const filter : {&state.front, &state.rear, &state.subwoofer}) {
        take(filter->freq);
        take(filter->slope);
        take(filter->level);
    }
    for (auto &value : state.delay) {
        take(value);
    }
}

}  // namespace

QJsonArray soundToJson(const SoundState &state) {
    QJsonArray numbers;
    eachNumber(state, [&numbers](int value) { numbers.append(value); });
    return numbers;
}

SoundState soundFromJson(const QJsonArray &numbers) {
    SoundState state;
    int index = 0;
    eachNumber(state, [&numbers, &index](auto &value) {
        using Number = std::remove_reference_t<decltype(value)>;
        if (index < numbers.size()) {
            value = static_cast<Number>(numbers[index].toInt());
        }
        ++index;
    });
    return state;
}

}  // namespace headunit
