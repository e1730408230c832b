// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/bridges/foreigncurve.h"

#include "headunit/desk/bridges/foreignfilter.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace headunit {

namespace {

constexpr int mostShown = 40;  // characters of a stranger's line in a remark
constexpr double mostDecibels = 60;
constexpr int sizeLimit = 1 << 20;

QString at(int line, const QString &text) {
    return QStringLiteral("line %1: %2").arg(line).arg(text);
}

/// The command of a line, in small letters, and what stands behind its colon.
bool splitCommand(const QString &line, QString *command, QString *rest) {
    static const QRegularExpression pattern(QStringLiteral("^\\s*([A-Za-z]+)\\s*[0-9]*\\s*:\\s*(.*)$"));
    const QRegularExpressionMatch match = pattern.match(line);
    *command = match.captured(1).toLower();
    *rest = match.captured(2).trimmed();
    return match.hasMatch();
}

bool isCommandOfCurves(const QString &command) {
    return command == QLatin1String("filter") || command == QLatin1String("preamp") ||
           command == QLatin1String("graphiceq");
}

/// "63 1.5; 100 2": points by rising frequency, or a problem.
QString parseTable(const QString &text, std::vector<std::pair<double, double>> *table) {
    for (const QString &point : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList numbers = point.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (numbers.isEmpty()) {
            continue;  // a semicolon at the end
        }
        double hz = 0;
        double gain = 0;
        if (numbers.size() != 2 || !parseForeignNumber(numbers[0], &hz) || !parseForeignNumber(numbers[1], &gain) ||
            hz <= 0 || std::abs(gain) > mostDecibels) {
            return QStringLiteral("\"%1\" is not hertz and decibels").arg(point.trimmed().left(mostShown));
        }
        if (!table->empty() && hz <= table->back().first) {
            return QStringLiteral("%1 Hz does not come after %2 Hz").arg(hz).arg(table->back().first);
        }
        table->emplace_back(hz, gain);
    }
    return table->empty() ? QStringLiteral("there are no points") : QString();
}

double interpolated(const std::vector<std::pair<double, double>> &table, double hz) {
    const auto above = std::find_if(table.begin(), table.end(), [hz](const auto &point) { return point.first >= hz; });
    if (above == table.begin()) {
        return table.front().second;
    }
    if (above == table.end()) {
        return table.back().second;
    }
    const auto below = above - 1;
    const double share = std::log(hz / below->first) / std::log(above->first / below->first);
    return below->second + share * (above->second - below->second);
}

/// Takes one command; \a left says whether commands are meant for other channels than all.
void takeCommand(const QString &command, const QString &rest, int number, bool *leftOut, ForeignCurve *curve) {
    if (command == QLatin1String("channel")) {
        const QStringList channels = rest.toUpper().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        *leftOut = !channels.contains(QLatin1String("ALL")) &&
                   !(channels.contains(QLatin1String("L")) && channels.contains(QLatin1String("R")));
        if (*leftOut) {
            curve->remarks << at(number, QStringLiteral("what follows is for channel %1 alone, left out: the bands are "
                                                        "those of all")
                                             .arg(rest.left(mostShown)));
        }
    } else if (!isCommandOfCurves(command)) {
        curve->remarks << at(number, QStringLiteral("\"%1\" is left out").arg(command.left(mostShown)));
    } else if (*leftOut) {
        return;
    } else if (command == QLatin1String("filter")) {
        const ForeignFilter filter = parseForeignFilter(rest);
        if (!filter.problem.isEmpty()) {
            curve->problem = at(number, filter.problem);
        } else if (!filter.remark.isEmpty()) {
            curve->remarks << at(number, filter.remark);
        } else {
            curve->filters.push_back(filter.section);
        }
    } else if (command == QLatin1String("graphiceq")) {
        std::vector<std::pair<double, double>> table;
        const QString problem = parseTable(rest, &table);
        if (!problem.isEmpty()) {
            curve->problem = at(number, problem);
        } else {
            curve->tables.push_back(table);
        }
    } else {
        double gain = 0;
        if (!parseForeignNumber(rest.section(QLatin1Char(' '), 0, 0), &gain) || std::abs(gain) > mostDecibels) {
            curve->problem =
                at(number, QStringLiteral("\"%1\" is no preamplification in dB").arg(rest.left(mostShown)));
        }
        curve->preamp += gain;
        curve->remarks << at(number, QStringLiteral("%1 dB for all frequencies are left to the volume").arg(gain));
    }
}

}  // namespace

double ForeignCurve::decibels(double hz) const {
    constexpr double silence = 1e-12;  // a notch has no decibels
    double sum = 0;
    for (const engine::Biquad &filter : filters) {
        sum += 20 * std::log10(std::max(std::abs(engine::response(filter, hz)), silence));
    }
    for (const auto &table : tables) {
        sum += interpolated(table, hz);
    }
    return sum;
}

bool isForeignCurve(const QByteArray &text) {
    constexpr int enough = 64 * 1024;
    if (text.startsWith("Audio set-up")) {
        return false;
    }
    for (const QByteArray &line : text.left(enough).split('\n')) {
        QString command;
        QString rest;
        if (splitCommand(QString::fromUtf8(line), &command, &rest) && isCommandOfCurves(command)) {
            return true;
        }
    }
    return text.startsWith("Filter Settings file");
}

ForeignCurve parseForeignCurve(const QByteArray &text) {
    ForeignCurve curve;
    if (text.size() > sizeLimit) {
        curve.problem = QStringLiteral("larger than %1 KiB: this is no filter list").arg(sizeLimit / 1024);
        return curve;
    }
    const bool hasHead = text.startsWith("Filter Settings file");  // REW's, with date and notes before the filters
    bool inHead = hasHead;
    bool leftOut = false;
    int number = 0;
    for (const QByteArray &bytes : text.split('\n')) {
        ++number;
        const QString line = QString::fromUtf8(bytes).trimmed();
        if (bytes.contains('\0')) {
            curve.problem = at(number, QStringLiteral("a NUL byte: this is not text"));
        } else if (line.contains(QChar::ReplacementCharacter)) {
            curve.problem = at(number, QStringLiteral("this is not text"));
        }
        if (!curve.problem.isEmpty()) {
            break;
        }
        QString command;
        QString rest;
        const bool isCommand = splitCommand(line, &command, &rest);
        inHead = inHead && command != QLatin1String("filter");
        if (inHead || line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (isCommand) {
            takeCommand(command, rest, number, &leftOut, &curve);
        } else {
            curve.problem =
                at(number, QStringLiteral("\"%1\" is not of the form command: values").arg(line.left(mostShown)));
        }
        if (!curve.problem.isEmpty()) {
            break;
        }
    }
    if (curve.problem.isEmpty() && curve.filters.empty() && curve.tables.empty()) {
        curve.problem = at(number, QStringLiteral("there is no filter that is for all channels"));
    }
    return curve;
}

}  // namespace headunit
