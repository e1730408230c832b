// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/setupnumber.h"

#include "headunit/audio/service/soundtables.h"

#include <QRegularExpression>

#include <cmath>

namespace headunit {

namespace {

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
        case SetupUnit::SliderDecibels:
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
