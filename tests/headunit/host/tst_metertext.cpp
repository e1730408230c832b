// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/sound/metertext.h"

#include <QTest>

using headunit::meterText;
using headunit::engine::Meters;

class TestMeterText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void lines_data();
    void lines();
};

void TestMeterText::lines_data() {
    QTest::addColumn<float>("front");
    QTest::addColumn<float>("others");
    QTest::addColumn<double>("limiter");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("silence") << 0.0F << 0.0F << 1.0
                             << QByteArray(
                                    "peaks  FL   -inf  FR   -inf  RL   -inf  RR   -inf  SL   -inf  SR   -inf"
                                    " dBFS, limiter  front    0.0  rear    0.0  sub    0.0 dB");
    QTest::newRow("full scale") << 1.0F << 1.0F << 0.5
                                << QByteArray(
                                       "peaks  FL    0.0  FR    0.0  RL    0.0  RR    0.0  SL    0.0  SR    0.0"
                                       " dBFS, limiter  front   -6.0  rear    0.0  sub   -6.0 dB");
    QTest::newRow("hardly below") << 0.9999F << 0.5F << 0.9999
                                  << QByteArray(
                                         "peaks  FL    0.0  FR   -6.0  RL   -6.0  RR   -6.0  SL   -6.0  SR   -6.0"
                                         " dBFS, limiter  front    0.0  rear    0.0  sub    0.0 dB");
    QTest::newRow("quiet") << 1e-6F << 0.01F << 0.1
                           << QByteArray(
                                  "peaks  FL -120.0  FR  -40.0  RL  -40.0  RR  -40.0  SL  -40.0  SR  -40.0"
                                  " dBFS, limiter  front  -20.0  rear    0.0  sub  -20.0 dB");
}

void TestMeterText::lines() {
    QFETCH(float, front);
    QFETCH(float, others);
    QFETCH(double, limiter);
    Meters meters;
    meters.peak.fill(others);
    meters.peak[0] = front;
    meters.limiterGain = {limiter, 1, limiter};
    QTEST(meterText(meters), "text");
}

QTEST_APPLESS_MAIN(TestMeterText)
#include "tst_metertext.moc"
