// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/bridges/foreignfilter.h"

#include "headunit/audio/engine/layout.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace headunit {

namespace {

enum class Shape { None, Peak, LowShelf, HighShelf, LowPass, HighPass, BandPass, Notch, AllPass };

struct Type {
    const char *name;
    Shape shape;
    bool needsQ;  ///< else that of a second-order Butterworth filter
};

constexpr Type types[] = {
    {"NONE", Shape::None, false},     {"PK", Shape::Peak, true},       {"PEQ", Shape::Peak, true},
    {"PA", Shape::Peak, true},        {"EQ", Shape::Peak, true},       {"MODAL", Shape::Peak, true},
    {"LS", Shape::LowShelf, false},   {"HS", Shape::HighShelf, false}, {"LSC", Shape::LowShelf, false},
    {"HSC", Shape::HighShelf, false}, {"LSQ", Shape::LowShelf, true},  {"HSQ", Shape::HighShelf, true},
    {"LP", Shape::LowPass, false},    {"HP", Shape::HighPass, false},  {"LPQ", Shape::LowPass, true},
    {"HPQ", Shape::HighPass, true},   {"BP", Shape::BandPass, false},  {"NO", Shape::Notch, false},
    {"AP", Shape::AllPass, false},
};

constexpr double butterworthQ = 0.70710678118654752;
constexpr double notchQ = 30;  // of a notch without a width
constexpr double lowestHz = 1;
constexpr double highestHz = engine::sampleRate / 2;
constexpr double mostDecibels = 60;
constexpr double smallestQ = 0.01;
constexpr double largestQ = 1000;

bool hasGain(Shape shape) {
    return shape == Shape::Peak || shape == Shape::LowShelf || shape == Shape::HighShelf;
}

/// The bilinear filters that equaliser programs share.
engine::Biquad design(Shape shape, double hz, double gain, double q) {
    const double omega = 2 * engine::pi * hz / engine::sampleRate;
    const double cosine = std::cos(omega);
    const double alpha = std::sin(omega) / (2 * q);
    const double a = std::pow(10, gain / 40);
    const double slope = 2 * std::sqrt(a) * alpha;
    const auto section = [](double b0, double b1, double b2, double a0, double a1, double a2) {
        return engine::Biquad{b0 / a0, b1 / a0, b2 / a0, a1 / a0, a2 / a0};
    };
    switch (shape) {
        case Shape::Peak:
            return section(1 + alpha * a, -2 * cosine, 1 - alpha * a, 1 + alpha / a, -2 * cosine, 1 - alpha / a);
        case Shape::LowShelf:
            return section(a * ((a + 1) - (a - 1) * cosine + slope), 2 * a * ((a - 1) - (a + 1) * cosine),
                           a * ((a + 1) - (a - 1) * cosine - slope), (a + 1) + (a - 1) * cosine + slope,
                           -2 * ((a - 1) + (a + 1) * cosine), (a + 1) + (a - 1) * cosine - slope);
        case Shape::HighShelf:
            return section(a * ((a + 1) + (a - 1) * cosine + slope), -2 * a * ((a - 1) + (a + 1) * cosine),
                           a * ((a + 1) + (a - 1) * cosine - slope), (a + 1) - (a - 1) * cosine + slope,
                           2 * ((a - 1) - (a + 1) * cosine), (a + 1) - (a - 1) * cosine - slope);
        case Shape::LowPass:
            return section((1 - cosine) / 2, 1 - cosine, (1 - cosine) / 2, 1 + alpha, -2 * cosine, 1 - alpha);
        case Shape::HighPass:
            return section((1 + cosine) / 2, -(1 + cosine), (1 + cosine) / 2, 1 + alpha, -2 * cosine, 1 - alpha);
        case Shape::BandPass:
            return section(alpha, 0, -alpha, 1 + alpha, -2 * cosine, 1 - alpha);
        case Shape::Notch:
            return section(1, -2 * cosine, 1, 1 + alpha, -2 * cosine, 1 - alpha);
        default:
            return {};
    }
}

/// The number behind a word, with its unit behind that; false where the word does not stand there.
bool findValue(const QString &text, const char *word, QString *value) {
    const QRegularExpression pattern(QStringLiteral("\\b%1\\s+(\\S+)").arg(QLatin1String(word)),
                                     QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(text);
    *value = match.captured(1);
    return match.hasMatch();
}

/// "1,007" Hz of a list with separators for thousands.
double withThousands(const QString &text, double number) {
    static const QRegularExpression pattern(QStringLiteral("^\\d{1,2},\\d{3}(\\.\\d+)?$"));
    return pattern.match(text).hasMatch() ? QString(text).remove(QLatin1Char(',')).toDouble() : number;
}

/// Takes the number behind \a word, if it stands there. A problem where it is none, or out of range.
QString takeNumber(const QString &text, const char *word, double low, double high, double *number, bool *there) {
    QString value;
    *there = findValue(text, word, &value);
    if (!*there) {
        return QString();
    }
    const bool isNumber = parseForeignNumber(value, number);
    if (qstrcmp(word, "Fc") == 0) {
        *number = withThousands(value, *number);
    }
    return isNumber && *number >= low && *number <= high ? QString()
                                                         : QStringLiteral("%1 \"%2\" is not a number from %3 to %4")
                                                               .arg(QLatin1String(word), value.left(20))
                                                               .arg(low)
                                                               .arg(high);
}

/// The quality that a bandwidth in octaves stands for, as the programs have it.
double qualityOf(double octaves, double hz) {
    const double omega = 2 * engine::pi * hz / engine::sampleRate;
    return 1 / (2 * std::sinh(std::log(2.0) / 2 * octaves * omega / std::sin(omega)));
}

}  // namespace

bool parseForeignNumber(const QString &text, double *number) {
    static const QRegularExpression pattern(QStringLiteral("^[+-]?[0-9]{1,9}([.,][0-9]{1,9})?$"));
    static const QRegularExpression thousands(QStringLiteral("^\\d{1,2},\\d{3}\\.\\d{1,9}$"));
    if (thousands.match(text).hasMatch()) {
        *number = QString(text).remove(QLatin1Char(',')).toDouble();
        return true;
    }
    *number = QString(text).replace(QLatin1Char(','), QLatin1Char('.')).toDouble();
    return pattern.match(text).hasMatch();
}

ForeignFilter parseForeignFilter(const QString &text) {
    ForeignFilter filter;
    const QStringList words = text.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
    const QString state = words.value(0).toUpper();
    if (state != QLatin1String("ON") && state != QLatin1String("OFF")) {
        filter.problem = QStringLiteral("a filter is ON or OFF");
        return filter;
    }
    const QString name = words.value(1).toUpper();
    const Type *const type = std::find_if(std::begin(types), std::end(types),
                                          [&name](const Type &row) { return name == QLatin1String(row.name); });
    if (state == QLatin1String("OFF") || (words.size() == 1)) {
        return filter;
    }
    if (type == std::end(types)) {
        filter.problem = QStringLiteral("\"%1\" is no kind of filter that is known here").arg(words[1].left(20));
        return filter;
    }
    if (type->shape == Shape::None) {
        return filter;
    }
    if (type->shape == Shape::AllPass) {
        filter.remark = QStringLiteral("an all-pass filter changes no level, left out");
        return filter;
    }
    double hz = 0;
    double gain = 0;
    double q = type->shape == Shape::Notch ? notchQ : butterworthQ;
    double octaves = 0;
    bool hasHz = false;
    bool thereIsGain = false;
    bool hasQ = false;
    bool hasOctaves = false;
    QStringList problems = {takeNumber(text, "Fc", lowestHz, highestHz, &hz, &hasHz),
                            takeNumber(text, "Gain", -mostDecibels, mostDecibels, &gain, &thereIsGain),
                            takeNumber(text, "Q", smallestQ, largestQ, &q, &hasQ),
                            takeNumber(text, "BW\\s+Oct", smallestQ, 10, &octaves, &hasOctaves)};
    problems.removeAll(QString());
    if (!hasHz) {
        problems << QStringLiteral("Fc is missing");
    } else if (hasGain(type->shape) && !thereIsGain) {
        problems << QStringLiteral("Gain is missing");
    } else if (type->needsQ && !hasQ && !hasOctaves) {
        problems << QStringLiteral("Q is missing");
    }
    if (!problems.isEmpty()) {
        filter.problem = problems.first();
        return filter;
    }
    filter.section = design(type->shape, hz, gain, hasOctaves ? qualityOf(octaves, hz) : q);
    return filter;
}

}  // namespace headunit
