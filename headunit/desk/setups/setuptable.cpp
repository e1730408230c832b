// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/setuptable.h"

#include "headunit/audio/service/soundtables.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace headunit {

namespace {

/// Rows that differ by a number in their key: each name stands for one, from \a first on.
struct Row {
    const char *name;  ///< %1 is a name of the first list, %2 of the second
    const char *key;   ///< %1 and %2 are numbers
    SetupUnit unit;
    int low;
    int high;
    int defaultValue;
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

constexpr int lastFront = static_cast<int>(frontFrequencies.size()) - 1;
constexpr int lastRear = static_cast<int>(rearFrequencies.size()) - 1;
constexpr int lastSubwoofer = static_cast<int>(subwooferFrequencies.size()) - 1;
constexpr int curveHeight = 506;  // px: the whole graph, which is also the default
constexpr int lastCurve = 20;

QVector<Row> rows() {
    using U = SetupUnit;
    return {
        {"general.defeat", "ADV_AUDIO_SETTINGS", U::Switch, 0, 1, 0},
        {"general.curve_before_defeat", "EQ_DEFEAT_TYPE", U::Number, 0, lastCurve, 2},
        {"general.loudness", "Setup_Loudness", U::Switch, 0, 1, 0},
        {"general.balance", "SoundFieldBalance", U::Steps, -15, 15, 0},
        {"general.fader", "SoundFieldFader", U::Steps, -15, 15, 0},
        {"subwoofer.on", "Setup_Sub", U::Switch, 0, 1, 0},
        {"subwoofer.level", "subwooferLevel", U::Steps, 0, 15, 3},
        {"subwoofer.phase", "subwooferphase", U::Degrees, 0, 1, 0},
        {"equaliser.curve", "audioservice/eqtype", U::Number, 0, lastCurve, 0},
        {"equaliser.live.%1", "eq%1", U::BandDecibels, -12, 24, 0, bands},
        {"equaliser.slot%1.%2", "customeq%1_%2", U::SlotDecibels, 0, 24, 12, five, 1, bands},
        {"equaliser.slot%1.stored", "EqPresetSwitch%1", U::Switch, 0, 1, 0, five},
        {"equaliser.last_slot", "custom_eq_type_id", U::Number, 0, 4, 0},
        {"equaliser.highlighted_slot", "HIGHLIGHT_PRESET_ID", U::Number, -1, 4, -1},
        {"crossover.front.frequency", "crossover/frontfreq", U::FrontFrequency, 0, lastFront, 0},
        {"crossover.front.slope", "crossover/frontslope", U::Slope, 1, 3, 1},
        {"crossover.front.level", "crossover/frontlevel", U::BandDecibels, 0, 12, 12},
        {"crossover.front.picture_top", "crossover/fronty", U::Pixels, 0, curveHeight, 0},
        {"crossover.front.picture_height", "crossover/frontheigh", U::Pixels, 0, curveHeight, curveHeight},
        {"crossover.rear.frequency", "crossover/rearfreq", U::RearFrequency, 0, lastRear, 0},
        {"crossover.rear.slope", "crossover/rearslope", U::Slope, 1, 3, 1},
        {"crossover.rear.level", "crossover/rearlevel", U::BandDecibels, 0, 12, 12},
        {"crossover.rear.picture_top", "crossover/reary", U::Pixels, 0, curveHeight, 0},
        {"crossover.rear.picture_height", "crossover/rearheigh", U::Pixels, 0, curveHeight, curveHeight},
        {"crossover.sub.frequency", "crossover/subwooferfreq", U::SubwooferFrequency, 0, lastSubwoofer, 0},
        {"crossover.sub.slope", "crossover/subwooferslope", U::Slope, 1, 3, 1},
        {"crossover.sub.level", "crossover/subwooferlevel", U::BandDecibels, 0, 12, 12},
        {"crossover.sub.picture_top", "crossover/subwoofery", U::Pixels, 0, curveHeight, 0},
        {"crossover.sub.picture_height", "crossover/subwooferheigh", U::Pixels, 0, curveHeight, curveHeight},
        {"crossover.page", "crossover/type", U::Number, 0, 2, 0},
        {"crossover.preset%1.stored", "crossover/PRESET_SWITCH%1", U::Switch, 0, 1, 0, two},
        {"crossover.preset%1.page", "crossover/PRESET_TYPE%1", U::Number, 0, 2, 0, two},
        {"crossover.preset%1.front.frequency", "crossover/PRESET_FRONT_FREQ%1", U::FrontFrequency, 0, lastFront, 0,
         two},
        {"crossover.preset%1.front.slope", "crossover/PRESET_FRONT_SLOPE%1", U::Slope, 1, 3, 1, two},
        {"crossover.preset%1.front.level", "crossover/PRESET_FRONT_LEVEL%1", U::BandDecibels, 0, 12, 12, two},
        {"crossover.preset%1.front.picture_top", "crossover/PRESET_FRONT_Y%1", U::Pixels, 0, curveHeight, 0, two},
        {"crossover.preset%1.front.picture_height", "crossover/PRESET_FRONT_HEIGH%1", U::Pixels, 0, curveHeight,
         curveHeight, two},
        {"crossover.preset%1.rear.frequency", "crossover/PRESET_REARFREQ%1", U::RearFrequency, 0, lastRear, 0, two},
        {"crossover.preset%1.rear.slope", "crossover/PRESET_REATSLOPE%1", U::Slope, 1, 3, 1, two},
        {"crossover.preset%1.rear.level", "crossover/PRESET_REARLEVEL%1", U::BandDecibels, 0, 12, 12, two},
        {"crossover.preset%1.rear.picture_top", "crossover/PRESET_REARY%1", U::Pixels, 0, curveHeight, 0, two},
        {"crossover.preset%1.rear.picture_height", "crossover/PRESET_REARHEIGH%1", U::Pixels, 0, curveHeight,
         curveHeight, two},
        {"crossover.preset%1.sub.frequency", "crossover/PRESET_SUBWOOFERFREQ%1", U::SubwooferFrequency, 0,
         lastSubwoofer, 0, two},
        {"crossover.preset%1.sub.slope", "crossover/PRESET_SUBWOOFERSLOPE%1", U::Slope, 1, 3, 1, two},
        {"crossover.preset%1.sub.level", "crossover/PRESET_SUBWOOFERLEVEL%1", U::BandDecibels, 0, 12, 12, two},
        {"crossover.preset%1.sub.picture_top", "crossover/PRESET_SUBWOOFERY%1", U::Pixels, 0, curveHeight, 0, two},
        {"crossover.preset%1.sub.picture_height", "crossover/PRESET_SUBWOOFERHEIGH%1", U::Pixels, 0, curveHeight,
         curveHeight, two},
        {"delay.%1", "timing/DATA_TYPE%1", U::Milliseconds, 0, 99, 0, outputs},
        {"delay.shown_in_inches", "timing/type", U::Switch, 0, 1, 0},
        {"delay.preset%1.stored", "timing/PRESET_ENABLE%1", U::Switch, 0, 1, 0, two},
        {"delay.preset%1.%2", "timing/PRESETS%1_DATA%2", U::Milliseconds, 0, 99, 0, two, 0, outputs},
        {"delay.after_reset.%1", "timing/msec%1", U::Milliseconds, 0, 99, 0, outputs},
        {"volume.%1", "inputgain%1", U::Steps, 0, 40, 16, channels},
        {"volume.default.%1", "default_volume%1", U::Steps, 0, 40, 20, namedChannels},
        {"gain.%1", "audioinputgain%1", U::Decibels, -10, 10, 0, sources},
    };
}

QVector<SetupValue> expanded() {
    QVector<SetupValue> values;
    for (const Row &row : rows()) {
        const QString name = QString::fromLatin1(row.name);
        const QString key = QString::fromLatin1(row.key);
        for (int i = 0; i < row.names.size(); ++i) {
            for (int j = 0; j < row.otherNames.size(); ++j) {
                SetupValue value = {name, key, row.unit, row.low, row.high, row.defaultValue};
                if (row.names.size() > 1) {
                    value.name = value.name.arg(row.names[i]);
                    value.key = value.key.arg(i + row.first);
                }
                if (row.otherNames.size() > 1) {
                    value.name = value.name.arg(row.otherNames[j]);
                    value.key = value.key.arg(j);
                }
                values << value;
            }
        }
    }
    return values;
}

/// A unit whose number is scale * value + offset.
struct Linear {
    const char *unit;
    double scale;
    double offset;
    int decimals;
    bool sign;
};

Linear linear(SetupUnit unit) {
    switch (unit) {
        case SetupUnit::Steps:
            return {"steps", 1, 0, 0, false};
        case SetupUnit::Decibels:
            return {"dB", 1, 0, 0, true};
        case SetupUnit::BandDecibels:
            return {"dB", 1, -neutralBandValue, 0, true};
        case SetupUnit::SlotDecibels:
            return {"dB", -1, neutralBandValue, 0, true};
        case SetupUnit::Slope:
            return {"dB/oct", 6, 0, 0, false};
        case SetupUnit::Milliseconds:
            return {"ms", 0.1, 0, 1, false};
        case SetupUnit::Degrees:
            return {"deg", 180, 0, 0, false};
        case SetupUnit::Pixels:
            return {"px", 1, 0, 0, false};
        default:
            return {"", 1, 0, 0, false};
    }
}

/// The frequencies of a unit that is an index into them; empty for the others.
QVector<int> frequencies(SetupUnit unit) {
    const auto table = [](const auto &array) { return QVector<int>(array.begin(), array.end()); };
    switch (unit) {
        case SetupUnit::FrontFrequency:
            return table(frontFrequencies);
        case SetupUnit::RearFrequency:
            return table(rearFrequencies);
        case SetupUnit::SubwooferFrequency:
            return table(subwooferFrequencies);
        default:
            return {};
    }
}

const QString off = QStringLiteral("off");
const QString on = QStringLiteral("on");

/// The number before a unit; false if there is none.
bool splitNumber(const QString &text, double *number, QString *unit) {
    static const QRegularExpression pattern(QStringLiteral("^([+-]?[0-9]{1,9}(?:\\.[0-9]{1,9})?)\\s*(\\S*)$"));
    const QRegularExpressionMatch match = pattern.match(text);
    *number = match.captured(1).toDouble();
    *unit = match.captured(2);
    return match.hasMatch();
}

SetupNumber nearestFrequency(const SetupValue &value, const QVector<int> &table, const QString &text) {
    SetupNumber result;
    if (text == off) {
        return result;
    }
    double hz = 0;
    QString unit;
    if (!splitNumber(text, &hz, &unit) || unit != QLatin1String("Hz")) {
        result.problem = QStringLiteral("a frequency in Hz, or off, is wanted");
        return result;
    }
    result.number = 1;
    for (int index = 2; index < table.size(); ++index) {
        if (std::abs(table[index] - hz) < std::abs(table[result.number] - hz)) {
            result.number = index;
        }
    }
    if (std::abs(table[result.number] - hz) > 1e-9) {
        result.remark = QStringLiteral("%1 is none of its frequencies, taken as %2")
                            .arg(text, setupNumberText(value, result.number));
    }
    return result;
}

}  // namespace

const QVector<SetupValue> &setupValues() {
    static const QVector<SetupValue> values = expanded();
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

int setupNumber(const SetupValue &value, const SettingsMap &settings) {
    const QVariant stored = settings.value(value.key);
    if (!stored.isValid()) {
        return value.defaultValue;
    }
    const int number = value.unit == SetupUnit::Switch ? int(toBool(stored, value.defaultValue != 0))
                                                       : toInt(stored, value.defaultValue);
    return qBound(value.low, number, value.high);
}

QString setupNumberText(const SetupValue &value, int number) {
    if (value.unit == SetupUnit::Switch) {
        return number != 0 ? on : off;
    }
    const QVector<int> table = frequencies(value.unit);
    if (!table.isEmpty()) {
        return number == 0 ? off : QStringLiteral("%1 Hz").arg(table.value(number));
    }
    const Linear law = linear(value.unit);
    const double shown = law.scale * number + law.offset;
    const QString sign = law.sign && shown > 0 ? QStringLiteral("+") : QString();
    return (sign + QString::number(shown, 'f', law.decimals) + QLatin1Char(' ') + QLatin1String(law.unit)).trimmed();
}

SetupNumber parseSetupNumber(const SetupValue &value, const QString &text) {
    SetupNumber result;
    if (value.unit == SetupUnit::Switch) {
        result.number = text == on ? 1 : 0;
        if (text != on && text != off) {
            result.problem = QStringLiteral("on or off is wanted");
        }
        return result;
    }
    const QVector<int> table = frequencies(value.unit);
    if (!table.isEmpty()) {
        return nearestFrequency(value, table, text);
    }
    const Linear law = linear(value.unit);
    double shown = 0;
    QString unit;
    if (!splitNumber(text, &shown, &unit) || unit != QLatin1String(law.unit)) {
        result.problem = *law.unit ? QStringLiteral("a number of %1 is wanted").arg(QLatin1String(law.unit))
                                   : QStringLiteral("a number is wanted");
        return result;
    }
    const double exact = (shown - law.offset) / law.scale;
    const double inside = qBound(double(value.low), std::round(exact), double(value.high));
    result.number = int(inside);
    if (std::abs(inside - exact) > 1e-6) {
        const bool outside = exact < value.low || exact > value.high;
        result.remark = (outside ? QStringLiteral("%1 is not within %2 and %3, taken as %4")
                                       .arg(text, setupNumberText(value, value.low), setupNumberText(value, value.high))
                                 : QStringLiteral("%1 lies between two steps, taken as %2").arg(text))
                            .arg(setupNumberText(value, result.number));
    }
    return result;
}

}  // namespace headunit
