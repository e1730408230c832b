// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/setuptable.h"

#include "audioeqtype.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/settings/audiokeys.h"

#include <QHash>
#include <QStringList>

namespace headunit {

namespace {

/// Rows that differ by a number in their key: each name stands for one, from \a first on.
struct Row {
    QString name;    ///< %1 is a name of the first list, %2 of the second
    SettingKey key;  ///< %1 and %2 are numbers
    SetupUnit unit;
    Range range;
    QStringList names = {QString()};
    int first = 0;
    QStringList otherNames = {QString()};
};

const QStringList bands = {"63", "100", "160", "250", "400", "630", "1k", "1k6", "2k5", "4k", "6k3", "10k", "16k"};
const QStringList outputs = {"front_left", "front_right", "rear_left", "rear_right", "sub_left", "sub_right"};
const QStringList channels = {"main", "ringtone", "phone", "navigation", "voice", "channel_5", "traffic", "channel_7"};
const QStringList namedChannels = channels.mid(0, 5);
const QStringList sources = {"radio", "usb", "bluetooth", "carplay", "android_auto", "siriusxm", "dab"};
const QStringList five = {"1", "2", "3", "4", "5"};
const QStringList two = {"1", "2"};

constexpr int lastPreset = 4;  // of the equaliser
constexpr Range curve = {AudioEQFlat, AudioEQCustom + lastPreset};
constexpr SettingKey presetLevel = {"customeq%1_%2", neutralBandValue};
constexpr Range sliderLevel = {0, 2 * neutralBandValue};
constexpr Range storedGain = {ranges::sourceGain.low - neutralSourceGain, ranges::sourceGain.high - neutralSourceGain};
constexpr Range crossoverPage = {0, static_cast<int>(keys::filters.size()) - 1};
constexpr Range graphHeight = {0, keys::front.heigh.defaultValue};  // px: the whole graph is also the default

/// A crossover filter and its presets.
struct CrossoverRows {
    const char *name;
    SetupUnit frequency;
    size_t frequencies;
    FilterKeys keys;
    FilterKeys presetKeys;
};

/// \a current with other names.
constexpr FilterKeys renamed(const FilterKeys &current, const char *freq, const char *slope, const char *level,
                             const char *y, const char *heigh) {
    return {{freq, current.freq.defaultValue},
            {y, current.y.defaultValue},
            {heigh, current.heigh.defaultValue},
            {level, current.level.defaultValue},
            {slope, current.slope.defaultValue}};
}

constexpr CrossoverRows crossovers[] = {
    {"front", SetupUnit::FrontFrequency, frontFrequencies.size(), keys::front,
     renamed(keys::front, "crossover/PRESET_FRONT_FREQ%1", "crossover/PRESET_FRONT_SLOPE%1",
             "crossover/PRESET_FRONT_LEVEL%1", "crossover/PRESET_FRONT_Y%1", "crossover/PRESET_FRONT_HEIGH%1")},
    {"rear", SetupUnit::RearFrequency, rearFrequencies.size(), keys::rear,
     renamed(keys::rear, "crossover/PRESET_REARFREQ%1", "crossover/PRESET_REATSLOPE%1", "crossover/PRESET_REARLEVEL%1",
             "crossover/PRESET_REARY%1", "crossover/PRESET_REARHEIGH%1")},
    {"sub", SetupUnit::SubwooferFrequency, subwooferFrequencies.size(), keys::subwoofer,
     renamed(keys::subwoofer, "crossover/PRESET_SUBWOOFERFREQ%1", "crossover/PRESET_SUBWOOFERSLOPE%1",
             "crossover/PRESET_SUBWOOFERLEVEL%1", "crossover/PRESET_SUBWOOFERY%1",
             "crossover/PRESET_SUBWOOFERHEIGH%1")},
};

QVector<Row> filterRows(const QString &prefix, const CrossoverRows &filter, const FilterKeys &keys,
                        const QStringList &names) {
    const QString name = prefix + QLatin1String(filter.name);
    return {
        {name + ".frequency", keys.freq, filter.frequency, {0, static_cast<int>(filter.frequencies) - 1}, names},
        {name + ".slope", keys.slope, SetupUnit::Slope, ranges::slope, names},
        {name + ".level", keys.level, SetupUnit::BandDecibels, ranges::filterLevel, names},
        {name + ".picture_top", keys.y, SetupUnit::Pixels, graphHeight, names},
        {name + ".picture_height", keys.heigh, SetupUnit::Pixels, graphHeight, names},
    };
}

void expand(const QVector<Row> &rows, QVector<SetupValue> *values) {
    for (const Row &row : rows) {
        const QString key = QString::fromLatin1(row.key.name);
        for (int i = 0; i < row.names.size(); ++i) {
            for (int j = 0; j < row.otherNames.size(); ++j) {
                SetupValue value = {row.name, key, row.unit, row.range.low, row.range.high, row.key.defaultValue};
                if (row.names.size() > 1) {
                    value.name = value.name.arg(row.names[i]);
                    value.key = value.key.arg(i + row.first);
                }
                if (row.otherNames.size() > 1) {
                    value.name = value.name.arg(row.otherNames[j]);
                    value.key = value.key.arg(j);
                }
                *values << value;
            }
        }
    }
}

QVector<SetupValue> everyValue() {
    using U = SetupUnit;
    QVector<SetupValue> values;
    expand(
        {
            {"general.defeat", keys::defeat, U::Switch, ranges::flag},
            {"general.curve_before_defeat", {"EQ_DEFEAT_TYPE", AudioEQPop}, U::Number, curve},
            {"general.loudness", keys::loudness, U::Switch, ranges::flag},
            {"general.balance", keys::balance, U::Steps, ranges::balanceFader},
            {"general.fader", keys::fader, U::Steps, ranges::balanceFader},
            {"subwoofer.on", keys::subwooferOn, U::Switch, ranges::flag},
            {"subwoofer.level", keys::subwooferLevel, U::Steps, ranges::subwooferLevel},
            {"subwoofer.phase", keys::subwooferPhase, U::Degrees, ranges::flag},
            {"equaliser.curve", keys::eqType, U::Number, curve},
            {"equaliser.live.%1", keys::customEq, U::BandDecibels, ranges::bandValue, bands},
            {"equaliser.preset%1.%2", presetLevel, U::SliderDecibels, sliderLevel, five, 1, bands},
            {"equaliser.preset%1.saved", {"EqPresetSwitch%1", 0}, U::Switch, ranges::flag, five},
            {"equaliser.last_preset", {"custom_eq_type_id", 0}, U::Number, {0, lastPreset}},
            {"equaliser.highlighted_preset", {"HIGHLIGHT_PRESET_ID", -1}, U::Number, {-1, lastPreset}},
        },
        &values);
    for (const CrossoverRows &filter : crossovers) {
        expand(filterRows("crossover.", filter, filter.keys, {QString()}), &values);
    }
    expand(
        {
            {"crossover.page", {"crossover/type", 0}, U::Number, crossoverPage},
            {"crossover.preset%1.saved", {"crossover/PRESET_SWITCH%1", 0}, U::Switch, ranges::flag, two},
            {"crossover.preset%1.page", {"crossover/PRESET_TYPE%1", 0}, U::Number, crossoverPage, two},
        },
        &values);
    for (const CrossoverRows &filter : crossovers) {
        expand(filterRows("crossover.preset%1.", filter, filter.presetKeys, two), &values);
    }
    expand(
        {
            {"delay.%1", keys::delay, U::Milliseconds, ranges::delay, outputs},
            {"delay.shown_in_inches", {"timing/type", 0}, U::Switch, ranges::flag},
            {"delay.preset%1.saved", {"timing/PRESET_ENABLE%1", 0}, U::Switch, ranges::flag, two},
            {"delay.preset%1.%2", {"timing/PRESETS%1_DATA%2", 0}, U::Milliseconds, ranges::delay, two, 0, outputs},
            {"delay.after_reset.%1", {"timing/msec%1", 0}, U::Milliseconds, ranges::delay, outputs},
            {"volume.%1", keys::channelLevel, U::Steps, ranges::channelLevel, channels},
            {"volume.default.%1", {"default_volume%1", 20}, U::Steps, ranges::channelLevel, namedChannels},
            {"gain.%1", keys::sourceGain, U::Decibels, storedGain, sources},
        },
        &values);
    return values;
}

}  // namespace

const QVector<SetupValue> &setupValues() {
    static const QVector<SetupValue> values = everyValue();
    return values;
}

const SetupValue *setupValueOfKey(const QString &key) {
    static const QHash<QString, const SetupValue *> byKey = [] {
        QHash<QString, const SetupValue *> index;
        for (const SetupValue &value : setupValues()) {
            index.insert(value.key, &value);
        }
        return index;
    }();
    return byKey.value(key);
}

}  // namespace headunit
