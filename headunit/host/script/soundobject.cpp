#include "headunit/host/script/soundobject.h"

#include "headunit/audio/soundmodel.h"

#include <QJSEngine>

namespace headunit {

namespace {

template <std::size_t N> QJSValue array(QJSEngine &engine, const std::array<int, N> &values) {
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

}  // namespace headunit
