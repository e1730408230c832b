// SPDX-License-Identifier: Apache-2.0
// Curves of other programs: what is read, what the bands make of it, and what is written.

#include "headunit/audio/engine/measurement.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/desk/bridges/curvefile.h"
#include "headunit/desk/bridges/foreignfilter.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace headunit;

namespace {

/// Gains of the bands that a set-up of parseCurve() holds.
engine::Curve gainsOf(const SetupFile &file) {
    engine::Curve gains{};
    for (size_t band = 0; band < gains.size(); ++band) {
        gains[band] = file.values.value(QStringLiteral("eq%1").arg(band)).toInt() - neutralBandValue;
    }
    return gains;
}

SoundState withCurve(const engine::Curve &gains) {
    SoundState state;
    state.eqType = 16;
    state.channelLevel.fill(40);
    state.sourceGain.fill(neutralSourceGain);
    state.subwooferLevel = neutralSubwooferLevel;
    for (size_t band = 0; band < gains.size(); ++band) {
        state.customEq[band] = gains[band] + neutralBandValue;
    }
    return state;
}

engine::Curve randomCurve(QRandomGenerator &random) {
    engine::Curve gains{};
    for (int &gain : gains) {
        gain = random.bounded(-12, 13);
    }
    return gains;
}

double worst(const engine::Curve &gains, const ForeignCurve &curve) {
    double most = 0;
    for (double hz = 20; hz <= 20000; hz *= std::exp2(1.0 / 24)) {
        most = std::max(most, std::abs(equaliserDecibels(gains, hz) - curve.decibels(hz)));
    }
    return most;
}

}  // namespace

class TestCurveFile : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readsFilters_data();
    void readsFilters();
    void readsAFilterListOfRew();
    void readsTables();
    void addsUp();
    void remarks_data();
    void remarks();
    void refuses_data();
    void refuses();
    void tellsCurvesFromSetups();
    void curveThereAndBack();
    void tableThereAndBack();
    void leastSquares();
    void bandsStayInRange();
    void onlyTheCurveIsTaken();
    void responses();
    void silentResponses();
};

void TestCurveFile::readsFilters_data() {
    QTest::addColumn<QString>("filter");
    QTest::addColumn<double>("hz");
    QTest::addColumn<double>("decibels");
    QTest::addColumn<double>("tolerance");
    const auto row = [](const char *filter, double hz, double decibels, double tolerance = 0.005) {
        QTest::addRow("%s at %g", filter, hz) << filter << hz << decibels << tolerance;
    };
    row("ON PK Fc 1000 Hz Gain 6 dB Q 1.41", 1000, 6);
    row("ON PK Fc 1000 Hz Gain 6 dB Q 1.41", 20, 0);
    row("ON PK       Fc   63.80 Hz  Gain  -4.00 dB  Q  4.997", 63.8, -4);
    row("ON PK Fc 1000 Hz Gain 6 dB BW Oct 1", 1000, 6);
    row("ON PK Fc 1000 Hz Gain 6 dB BW Oct 1", 707.1, 3, 0.05);  // half the decibels at the edges
    row("on pk fc 50,5 hz gain -3,5 db q 2", 50.5, -3.5);
    row("ON PEQ Fc 1,007 Hz Gain 5.0 dB Q 5.00", 1007, 5);  // a comma for thousands
    row("ON Modal Fc 100 Hz Gain 3 dB Q 5.41 T60 target 300 ms", 100, 3);
    row("ON LS Fc 300 Hz Gain 5.0 dB", 10, 5);
    row("ON LS Fc 300 Hz Gain 5.0 dB", 300, 2.5);
    row("ON LSC Fc 300 Hz Gain 5.0 dB Q 0.7071", 20000, 0);
    row("ON HS Fc 3000 Hz Gain -4 dB", 22000, -4, 0.02);
    row("ON HSC Fc 3000 Hz Gain -4 dB Q 0.7071", 3000, -2);
    row("ON HP Fc 30 Hz", 30, -3.01);
    row("ON HPQ Fc 30 Hz Q 0.5", 30, -6.02);
    row("ON LP Fc 1000 Hz", 1000, -3.01);
    row("ON LPQ Fc 1000 Hz Q 2", 1000, 6.02);
    row("ON BP Fc 1000 Hz Q 2", 1000, 0);
    row("ON NO Fc 1000 Hz", 100, 0);
    row("OFF PK Fc 1000 Hz Gain 6 dB Q 1.41", 1000, 0);
    row("ON None", 1000, 0);
}

void TestCurveFile::readsFilters() {
    QFETCH(QString, filter);
    QFETCH(double, hz);
    QFETCH(double, decibels);
    QFETCH(double, tolerance);
    const ForeignFilter read = parseForeignFilter(filter);
    QCOMPARE(read.problem, QString());
    QCOMPARE(read.remark, QString());
    const double is = 20 * std::log10(std::abs(engine::response(read.section, hz)));
    QVERIFY2(std::abs(is - decibels) <= tolerance, qPrintable(QString::number(is)));
}

void TestCurveFile::readsAFilterListOfRew() {
    const ForeignCurve curve = parseForeignCurve(
        "Filter Settings file\r\n\r\nRoom EQ V5.20\r\nDated: 01-Jan-2024 10:00:00\r\n\r\nNotes:boomy\r\n\r\n"
        "Equaliser: Generic\r\nAverage 1\r\n"
        "Filter  1: ON  PK       Fc   63.80 Hz  Gain  -4.00 dB  Q  4.997\r\n"
        "Filter  2: ON  PK       Fc   1,250 Hz  Gain   2.50 dB  Q  1.000\r\n"
        "Filter  3: ON  None   \r\n"
        "Filter  4: OFF PK       Fc   100.0 Hz  Gain   9.00 dB  Q  1.000\r\n");
    QCOMPARE(curve.problem, QString());
    QCOMPARE(curve.remarks, QStringList());
    QVERIFY(std::abs(curve.decibels(1250) - 2.5) < 0.01);
    QVERIFY(std::abs(curve.decibels(63.8) + 4) < 0.01);
}

void TestCurveFile::readsTables() {
    const ForeignCurve curve = parseForeignCurve("GraphicEQ: 100 -2; 400 2;1600 2.5 ;\n");
    QCOMPARE(curve.problem, QString());
    const double wanted[][2] = {{20, -2}, {100, -2}, {200, 0}, {400, 2}, {800, 2.25}, {1600, 2.5}, {20000, 2.5}};
    for (const auto &point : wanted) {
        QVERIFY2(std::abs(curve.decibels(point[0]) - point[1]) < 1e-9, qPrintable(QString::number(point[0])));
    }
}

void TestCurveFile::addsUp() {
    const ForeignCurve curve = parseForeignCurve(
        "# by hand\nPreamp: -6.5 dB\nFilter: ON PK Fc 1000 Hz Gain 3 dB Q 1\nFilter 2: ON PK Fc 1000 Hz Gain 2 dB Q 1\n"
        "GraphicEQ: 20 1; 20000 1\n");
    QCOMPARE(curve.problem, QString());
    QVERIFY(std::abs(curve.decibels(1000) - 6) < 0.001);
    QCOMPARE(curve.preamp, -6.5);
    QCOMPARE(curve.remarks, QStringList("line 2: -6.5 dB for all frequencies are left to the volume"));
}

void TestCurveFile::remarks_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("remark");
    const QByteArray filter = "Filter: ON PK Fc 1000 Hz Gain 3 dB Q 1\n";
    QTest::newRow("device") << "Device: Speakers\n" + filter << "line 1: \"device\" is left out";
    QTest::newRow("delay") << filter + "Delay: 3 ms\n"
                           << "line 2: \"delay\" is left out";
    QTest::newRow("all-pass") << filter + "Filter: ON AP Fc 100 Hz Q 1\n"
                              << "line 2: an all-pass filter changes no level, left out";
    QTest::newRow("channel") << filter + "Channel: L\nFilter: ON PK Fc 1000 Hz Gain 9 dB Q 1\nChannel: all\n"
                             << "line 2: what follows is for channel L alone, left out: the bands are those of all";
}

void TestCurveFile::remarks() {
    QFETCH(QByteArray, text);
    QFETCH(QString, remark);
    const ForeignCurve curve = parseForeignCurve(text);
    QCOMPARE(curve.problem, QString());
    QCOMPARE(curve.remarks, QStringList(remark));
    QVERIFY(std::abs(curve.decibels(1000) - 3) < 0.001);
}

void TestCurveFile::refuses_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("problem");
    const QByteArray good = "Filter: ON PK Fc 1000 Hz Gain 3 dB Q 1\n";
    const auto row = [&good](const char *name, const QByteArray &line, const char *problem) {
        QTest::newRow(name) << good + line << QStringLiteral("line 2: ") + QString::fromUtf8(problem);
    };
    row("neither on nor off", "Filter: PK Fc 100 Hz Gain 3 dB Q 1\n", "a filter is ON or OFF");
    row("unknown kind", "Filter: ON XY Fc 100 Hz Gain 3 dB Q 1\n", "\"XY\" is no kind of filter that is known here");
    row("no frequency", "Filter: ON PK Gain 3 dB Q 1\n", "Fc is missing");
    row("no gain", "Filter: ON PK Fc 100 Hz Q 1\n", "Gain is missing");
    row("no quality", "Filter: ON PK Fc 100 Hz Gain 3 dB\n", "Q is missing");
    row("frequency no number", "Filter: ON PK Fc x Hz Gain 3 dB Q 1\n", "Fc \"x\" is not a number from 1 to 24000");
    row("frequency zero", "Filter: ON PK Fc 0 Hz Gain 3 dB Q 1\n", "Fc \"0\" is not a number from 1 to 24000");
    row("frequency too high", "Filter: ON PK Fc 30000 Hz Gain 3 dB Q 1\n",
        "Fc \"30000\" is not a number from 1 to 24000");
    row("gain too high", "Filter: ON PK Fc 100 Hz Gain 99 dB Q 1\n", "Gain \"99\" is not a number from -60 to 60");
    row("gain nan", "Filter: ON PK Fc 100 Hz Gain nan dB Q 1\n", "Gain \"nan\" is not a number from -60 to 60");
    row("quality zero", "Filter: ON PK Fc 100 Hz Gain 3 dB Q 0\n", "Q \"0\" is not a number from 0.01 to 1000");
    row("table without a gain", "GraphicEQ: 20 1; 40\n", "\"40\" is not hertz and decibels");
    row("table backwards", "GraphicEQ: 40 1; 20 1\n", "20 Hz does not come after 40 Hz");
    row("empty table", "GraphicEQ: \n", "there are no points");
    row("preamp", "Preamp: loud\n", "\"loud\" is no preamplification in dB");
    row("no command", "boom\n", "\"boom\" is not of the form command: values");
    row("NUL", QByteArray("Filter: ON\0", 11) + "\n", "a NUL byte: this is not text");
    row("not text", "\xff\xfe\n", "this is not text");
    QTest::newRow("nothing") << QByteArray("Preamp: -3 dB\n") << "line 2: there is no filter that is for all channels";
    QTest::newRow("too large") << good + QByteArray(2 << 20, '#') << "larger than 1024 KiB: this is no filter list";
}

void TestCurveFile::refuses() {
    QFETCH(QByteArray, text);
    const SetupFile file = parseCurve(text);
    QTEST(file.problem, "problem");
    QVERIFY(file.values.isEmpty());
}

void TestCurveFile::tellsCurvesFromSetups() {
    QVERIFY(isForeignCurve("Preamp: -3 dB\n"));
    QVERIFY(isForeignCurve("# by hand\n\nFilter 12: ON PK Fc 1000 Hz Gain 3 dB Q 1\n"));
    QVERIFY(isForeignCurve("GraphicEQ: 20 1"));
    QVERIFY(isForeignCurve("Filter Settings file\r\n"));
    QVERIFY(!isForeignCurve("Audio set-up, version 1\nFilter: 3\nend of set-up\n"));
    QVERIFY(!isForeignCurve(""));
    QVERIFY(!isForeignCurve("filter\n"));
}

/// Written as filters, read again: the same response within 0.1 dB, and the same bands.
void TestCurveFile::curveThereAndBack() {
    QRandomGenerator random(11);
    for (int i = 0; i < 30; ++i) {
        engine::Curve gains = randomCurve(random);
        if (i == 0) {
            gains.fill(0);
        } else if (i == 1) {
            gains.fill(12);
        } else if (i == 2) {
            gains.fill(-12);
        }
        const QByteArray text = curveText(withCurve(gains));
        const ForeignCurve curve = parseForeignCurve(text);
        QCOMPARE(curve.problem, QString());
        const double error = worst(gains, curve);
        QVERIFY2(error < 0.01, qPrintable(QString::number(error)));
        const SetupFile file = parseCurve(text);
        QCOMPARE(gainsOf(file), gains);
        QVERIFY(worst(gainsOf(file), curve) <= 0.1);
    }
}

/// The same by a table of 24 points an octave, which stands for what a measurement gives.
void TestCurveFile::tableThereAndBack() {
    QRandomGenerator random(12);
    for (int i = 0; i < 10; ++i) {
        const engine::Curve gains = randomCurve(random);
        QByteArray text = "GraphicEQ:";
        for (double hz = 20; hz <= 20000; hz *= std::exp2(1.0 / 24)) {
            text += ' ' + QByteArray::number(hz, 'f', 2) + ' ' +
                    QByteArray::number(equaliserDecibels(gains, hz), 'f', 3) + ';';
        }
        QCOMPARE(gainsOf(parseCurve(text)), gains);
    }
}

/// No single step, and no two steps of bands near each other, come nearer.
void TestCurveFile::leastSquares() {
    const ForeignCurve curve = parseForeignCurve(
        "Filter: ON PK Fc 80 Hz Gain 7.5 dB Q 0.8\nFilter: ON PK Fc 1300 Hz Gain -5 dB Q 2\n"
        "Filter: ON HS Fc 5000 Hz Gain 3.3 dB\n");
    const BandFit fit = fitBands([&curve](double hz) { return curve.decibels(hz); });
    const auto rms = [&curve](const engine::Curve &gains) {
        double squares = 0;
        int points = 0;
        for (double hz = lowestFitHz; hz <= highestFitHz; hz *= std::exp2(1.0 / 12)) {
            const double error = equaliserDecibels(gains, hz) - curve.decibels(hz);
            squares += error * error;
            ++points;
        }
        return std::sqrt(squares / points);
    };
    QVERIFY(std::abs(rms(fit.gains) - fit.rms) < 1e-9);
    QVERIFY2(fit.rms < 0.6, qPrintable(fitText(fit)));
    for (size_t band = 0; band < fit.gains.size(); ++band) {
        for (size_t other = band; other < std::min(band + 4, fit.gains.size()); ++other) {
            for (const int step : {-1, 1}) {
                for (const int otherStep : {-1, 0, 1}) {
                    engine::Curve gains = fit.gains;
                    gains[band] += step;
                    gains[other] += other == band ? 0 : otherStep;
                    QVERIFY2(rms(gains) >= fit.rms - 1e-12, qPrintable(QString("%1 %2").arg(band).arg(other)));
                }
            }
        }
    }
}

void TestCurveFile::bandsStayInRange() {
    const SetupFile file = parseCurve("GraphicEQ: 20 30; 1000 30; 1001 -30; 20000 -30\n");
    QCOMPARE(file.problem, QString());
    for (const int gain : gainsOf(file)) {
        QVERIFY(gain >= -12 && gain <= 12);
    }
    QCOMPARE(gainsOf(file).front(), 12);
    QCOMPARE(gainsOf(file).back(), -12);
    QVERIFY2(file.remarks.last().contains("dB on average"), qPrintable(file.remarks.last()));
}

void TestCurveFile::onlyTheCurveIsTaken() {
    const SetupFile file = parseCurve("Filter: ON PK Fc 1000 Hz Gain 3 dB Q 1\n");
    QCOMPARE(file.values.size(), 15);  // 13 bands, the custom curve, and no slot that it would be
    QCOMPARE(file.values.value("audioservice/eqtype").toInt(), 16);
    QCOMPARE(file.values.value("HIGHLIGHT_PRESET_ID").toInt(), -1);
    QCOMPARE(setupChanges({}, file.values).size() > 0, true);
}

void TestCurveFile::responses() {
    const QTemporaryDir folder;
    SoundState state = withCurve({0, 0, 3, 0, 0, 0, -4, 0, 0, 0, 0, 0, 0});
    state.front = {3, 2, 10};
    state.delay[1] = 7;
    QCOMPARE(writeResponses(folder.filePath("car.frd"), state), QString());
    const auto points = engine::measure(state, engine::audibleFrequencies());
    const QStringList names = {"FL", "FR", "RL", "RR", "SL", "SR", "sum"};
    for (int i = 0; i < names.size(); ++i) {
        QFile file(folder.filePath("car-" + names[i] + ".frd"));
        QVERIFY2(file.open(QIODevice::ReadOnly), qPrintable(file.fileName()));
        const QList<QByteArray> lines = file.readAll().split('\n');
        QVERIFY(lines.first().startsWith("* " + names[i].toLatin1()));
        QCOMPARE(lines.size(), int(points.size()) + 2);
        for (size_t point = 0; point < points.size(); ++point) {
            const QList<QByteArray> numbers = lines[int(point) + 1].split(' ');
            QCOMPARE(numbers.size(), 3);
            const std::complex<double> wanted = i < 6 ? points[point].outputs[size_t(i)] : points[point].sum();
            const double level = 20 * std::log10(std::abs(wanted));
            QVERIFY(std::abs(numbers[0].toDouble() - points[point].hz) < 0.001);
            QVERIFY(level < -80 || std::abs(numbers[1].toDouble() - level) < 0.01);
            if (level > -80) {
                const double turn = std::remainder(numbers[2].toDouble() - std::arg(wanted) * 180 / engine::pi, 360);
                QVERIFY2(std::abs(turn) < 0.1, qPrintable(QString::number(turn)));
            }
        }
    }
    QVERIFY(writeResponses(folder.filePath("nowhere/car.frd"), state).contains("nowhere/car-FL.frd: "));
}

void TestCurveFile::silentResponses() {
    const QTemporaryDir folder;
    SoundState state = withCurve({});
    state.channelLevel.fill(0);
    QCOMPARE(writeResponses(folder.filePath("silent.txt"), state), QString());
    for (const char *name : {"silent-FL.txt", "silent-sum.txt"}) {
        QFile file(folder.filePath(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        QVERIFY(!text.contains("inf") && !text.contains("nan"));
        QVERIFY(text.contains(" -200.0000 0.0000\n"));
    }
}

QTEST_GUILESS_MAIN(TestCurveFile)
#include "tst_curvefile.moc"
