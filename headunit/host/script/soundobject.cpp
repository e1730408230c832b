// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/script/soundobject.h"

#include "headunit/audio/engine/measurement.h"
#include "headunit/audio/service/soundmodel.h"

#include <QJSEngine>

#include <cmath>

namespace headunit {

namespace {

template <typename T, std::size_t N> QJSValue array(QJSEngine &engine, const std::array<T, N> &values) {
    QJSValue result = engine.newArray(N);
    for (std::size_t i = 0; i < N; ++i) {
        result.setProperty(quint32(i), values[i]);
    }
    return result;
}

QJSValue filter(QJSEngine &engine, const CrossoverFilter &values) {
    QJSValue result = engine.newObject();
    result.setProperty(QStringLiteral("freq"), values.freq);
    result.setProperty(QStringLiteral("slope"), values.slope);
    result.setProperty(QStringLiteral("level"), values.level);
    return result;
}

}  // namespace

QJSValue soundObject(QJSEngine &engine) {
    const SoundState &state = SoundModel::instance().state();
    QJSValue result = engine.newObject();
    const auto set = [&result](const char *name, const QJSValue &value) {
        result.setProperty(QString::fromLatin1(name), value);
    };
    set("eqType", state.eqType);
    set("customEq", array(engine, state.customEq));
    set("balance", state.balance);
    set("fader", state.fader);
    set("channelLevel", array(engine, state.channelLevel));
    set("sourceGain", array(engine, state.sourceGain));
    set("activeSource", state.activeSource);
    set("muted", state.muted);
    set("activePrompts", array(engine, state.activePrompts));
    set("loudness", state.loudness);
    set("defeat", state.defeat);
    set("subwooferLevel", state.subwooferLevel);
    set("subwooferPhase", state.subwooferPhase);
    set("front", filter(engine, state.front));
    set("rear", filter(engine, state.rear));
    set("subwoofer", filter(engine, state.subwoofer));
    set("delay", array(engine, state.delay));
    return result;
}

QJSValue heardObject(QJSEngine &scripts, double hz, int input) {
    constexpr double degreesPerRadian = 180 / engine::pi;
    const engine::MeasuredPoint point =
        engine::measure(SoundModel::instance().state(), {hz}, static_cast<engine::Input>(input)).front();
    QJSValue decibels = scripts.newArray(engine::outputCount);
    QJSValue degrees = scripts.newArray(engine::outputCount);
    for (size_t output = 0; output < engine::outputCount; ++output) {
        decibels.setProperty(quint32(output), 10 * std::log10(std::norm(point.outputs[output])));
        degrees.setProperty(quint32(output), std::arg(point.outputs[output]) * degreesPerRadian);
    }
    QJSValue result = scripts.newObject();
    result.setProperty(QStringLiteral("db"), decibels);
    result.setProperty(QStringLiteral("deg"), degrees);
    return result;
}

QJSValue arrivalArray(QJSEngine &scripts) {
    return array(scripts, engine::measureArrival(SoundModel::instance().state()));
}

}  // namespace headunit
