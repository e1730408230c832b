// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/bridges/curvefile.h"

#include "headunit/audio/engine/equaliser.h"
#include "headunit/audio/engine/measurement.h"
#include "headunit/audio/engine/response.h"
#include "headunit/audio/live/outputnames.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/settings/audiokeys.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace headunit {

namespace {

constexpr int customCurve = 16;
constexpr int decimals = 4;
constexpr double silence = -200;  // dB, where there is none
const QString highlightedSlot = QStringLiteral("HIGHLIGHT_PRESET_ID");
constexpr int noSlot = -1;

/// A section of the equaliser as the filter of the programs: both are the same peak, counted in other ways.
QByteArray filterLine(int number, int hz, const engine::Biquad &section) {
    if (section.isIdentity()) {
        return "Filter " + QByteArray::number(number) + ": ON PK Fc " + QByteArray::number(hz) + " Hz Gain 0 dB Q 1\n";
    }
    const double wide = (section.b0 - section.b2) / (section.b0 + section.b2);  // half the bandwidth times the gain ...
    const double narrow = (1 - section.a2) / (1 + section.a2);                  // ... and divided by it
    const double gain = 20 * std::log10(wide / narrow);
    const double q = std::sin(2 * engine::pi * hz / engine::sampleRate) / (2 * std::sqrt(wide * narrow));
    return "Filter " + QByteArray::number(number) + ": ON PK Fc " + QByteArray::number(hz) + " Hz Gain " +
           QByteArray::number(gain, 'f', decimals) + " dB Q " + QByteArray::number(q, 'f', decimals) + '\n';
}

QByteArray responseText(const QByteArray &name, const std::vector<engine::MeasuredPoint> &points,
                        const std::function<std::complex<double>(const engine::MeasuredPoint &)> &part) {
    constexpr double degreesPerRadian = 180 / engine::pi;
    QByteArray text = "* " + name + " of a head unit: Hz, dB, degrees\n";
    for (const engine::MeasuredPoint &point : points) {
        const std::complex<double> response = part(point);
        const double level = std::max(10 * std::log10(std::norm(response)), silence);
        const double phase = level > silence ? std::arg(response) * degreesPerRadian : 0;
        text += QByteArray::number(point.hz, 'f', 3) + ' ' + QByteArray::number(level, 'f', decimals) + ' ' +
                QByteArray::number(phase, 'f', decimals) + '\n';
    }
    return text;
}

QString write(const QString &path, const QByteArray &text) {
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(text) >= 0 && file.commit();
    return written ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
}

}  // namespace

QString fitText(const BandFit &fit) {
    return QStringLiteral("%1 dB on average, %2 dB at most, at %3 Hz")
        .arg(fit.rms, 0, 'f', 2)
        .arg(std::abs(fit.most), 0, 'f', 1)
        .arg(std::lround(fit.mostHz));
}

SetupFile parseCurve(const QByteArray &text, ForeignCurve *read, BandFit *fit) {
    const ForeignCurve curve = parseForeignCurve(text);
    SetupFile file;
    file.problem = curve.problem;
    if (!file.problem.isEmpty()) {
        return file;
    }
    const BandFit bands = fitBands([&curve](double hz) { return curve.decibels(hz); });
    file.remarks = curve.remarks;
    file.remarks << QStringLiteral("what the thirteen bands cannot do of it: %1").arg(fitText(bands));
    for (size_t band = 0; band < bands.gains.size(); ++band) {
        file.values.insert(QString::fromLatin1(keys::customEq.name).arg(band), bands.gains[band] + neutralBandValue);
    }
    file.values.insert(QString::fromLatin1(keys::eqType.name), customCurve);
    file.values.insert(highlightedSlot, noSlot);
    if (fit) {
        *fit = bands;
    }
    if (read) {
        *read = curve;
    }
    return file;
}

SetupFile readCurve(const QString &path, ForeignCurve *curve, BandFit *fit) {
    SetupFile file;
    const QByteArray text = readText(path, &file.problem);
    if (file.problem.isEmpty()) {
        file = parseCurve(text, curve, fit);
        file.problem = file.problem.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(path, file.problem);
    }
    return file;
}

QByteArray curveText(const SoundState &state) {
    const engine::Curve curve = engine::curveInForce(state);
    engine::BandGains gains;
    std::copy(curve.begin(), curve.end(), gains.begin());
    const auto sections = engine::designEqualiser(gains);
    QByteArray text = "# The curve of a head unit's equaliser. Its bands:";
    for (size_t band = 0; band < gains.size(); ++band) {
        text += (band > 0 ? ", " : " ") + QByteArray::number(bandFrequencies[band]) + " Hz " +
                QByteArray::number(curve[band]) + " dB";
    }
    text += "\nPreamp: 0 dB\n";
    for (size_t band = 0; band < gains.size(); ++band) {
        text += filterLine(static_cast<int>(band) + 1, bandFrequencies[band], sections[band]);
    }
    return text;
}

QString writeCurve(const QString &path, const SoundState &state) {
    return write(path, curveText(state));
}

QString writeResponses(const QString &path, const SoundState &state) {
    const std::vector<engine::MeasuredPoint> points =
        engine::calculateResponse(engine::designParameters(state), engine::audibleFrequencies());
    const QFileInfo info(path);
    const QString suffix = info.suffix().isEmpty() ? QStringLiteral("frd") : info.suffix();
    const QString stem = info.path() + QLatin1Char('/') + info.completeBaseName();
    const auto save = [&](const QByteArray &name, const auto &part) {
        return write(stem + QLatin1Char('-') + QLatin1String(name) + QLatin1Char('.') + suffix,
                     responseText(name, points, part));
    };
    for (size_t output = 0; output < engine::outputCount; ++output) {
        QString problem =
            save(outputNames[output], [output](const engine::MeasuredPoint &point) { return point.outputs[output]; });
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return save("sum", [](const engine::MeasuredPoint &point) { return point.sum(); });
}

}  // namespace headunit
