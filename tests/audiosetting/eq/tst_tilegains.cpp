// SPDX-License-Identifier: Apache-2.0
#include "audioeqtype.h"
#include "eq/eqtable.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QFile>
#include <QRegularExpression>

namespace {

// Of the line in a tile, px.
const double firstX = 27.5;
const double bandStep = 18;
const double zeroY = 119;
const double perDecibel = 2.8;

}  // namespace

/// The tiles of the Factory EQ page show the curves that they set.
class tst_TileGains : public PageTest {
    Q_OBJECT

private slots:
    void lineIsTheCurves_data() {
        QTest::addColumn<int>("type");
        QTest::newRow("rock") << int(AudioEQRock);
        QTest::newRow("hiphop") << int(AudioEQHipHop);
        QTest::newRow("electronic") << int(AudioEQElectronic);
        QTest::newRow("jazz") << int(AudioEQJazz);
        QTest::newRow("pop") << int(AudioEQPop);
        QTest::newRow("flat") << int(AudioEQFlat);
    }
    void lineIsTheCurves() {
        QFETCH(int, type);
        QFile source(QStringLiteral(TILES "/tile_%1.svg").arg(QLatin1String(QTest::currentDataTag())));
        QVERIFY(source.open(QIODevice::ReadOnly));
        const QRegularExpression line(QStringLiteral("class=\"gains\" d=\"M([^\"]+)\""));
        const QString path = line.match(QString::fromUtf8(source.readAll())).captured(1);
        // Where it begins, and for each band two control points and the place: "x yC x y x y x y ...".
        const QStringList numbers = path.split(QRegularExpression(QStringLiteral("[ C]")));
        QCOMPARE(numbers.size(), 2 + 6 * (eqBandCount - 1));
        const tagAudioEQItem_T curve = audiosetting::eq::curveOfType(audiosetting::eq::curves(), type);
        for (int band = 0; band < eqBandCount; ++band) {
            const int at = 6 * band;
            QVERIFY(qAbs(numbers.at(at).toDouble() - (firstX + band * bandStep)) < 0.1);
            QVERIFY(qAbs(numbers.at(at + 1).toDouble() - (zeroY - perDecibel * curve.gain[band])) < 0.1);
        }
    }
};

PAGE_TEST_MAIN(tst_TileGains)
#include "tst_tilegains.moc"
