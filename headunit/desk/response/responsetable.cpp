// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/responsetable.h"

#include "headunit/audio/live/outputnames.h"

#include <cmath>

namespace headunit {

namespace {

constexpr int frequencyDecimals = 3;
constexpr int decimals = 4;

void addResponse(QByteArray *line, std::complex<double> response) {
    *line += ',' + QByteArray::number(responseDecibels(response), 'f', decimals) + ',' +
             QByteArray::number(responseDegrees(response), 'f', decimals);
}

}  // namespace

double responseDecibels(std::complex<double> response) {
    return 10 * std::log10(std::norm(response));
}

double responseDegrees(std::complex<double> response) {
    constexpr double degreesPerTurn = 360;
    return std::arg(response) * degreesPerTurn / (2 * engine::pi);
}

QByteArray responseTable(const std::vector<engine::MeasuredPoint> &points) {
    QByteArray table = "Hz";
    for (const char *name : outputNames) {
        table += QByteArray(",") + name + " dB," + name + " deg";
    }
    table += ",sum dB,sum deg\n";
    for (const engine::MeasuredPoint &point : points) {
        table += QByteArray::number(point.hz, 'f', frequencyDecimals);
        for (const auto &output : point.outputs) {
            addResponse(&table, output);
        }
        addResponse(&table, point.sum());
        table += '\n';
    }
    return table;
}

}  // namespace headunit
