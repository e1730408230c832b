// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/routing.h"

#include "headunit/audio/live/outputnames.h"

#include <QTest>

#include <map>

using namespace headunit;

class TestRouting : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyDevice_data();
    void everyDevice();
    void fullScaleStaysFullScale();
};

namespace {

/// The outputs that sound from each channel of a device, like "FL FR -": outputs that share one are joined by a plus.
QString heard(const pa_channel_map &device, const Routing &found) {
    QStringList channels;
    for (size_t channel = 0; channel < device.channels; ++channel) {
        QStringList outputs;
        for (const Route &route : found.routes) {
            if (route.channel == channel) {
                outputs << QString::fromLatin1(outputNames[route.output]);
            }
        }
        channels << (outputs.isEmpty() ? QStringLiteral("-") : outputs.join('+'));
    }
    return channels.join(' ');
}

pa_channel_map device(const char *channels) {
    pa_channel_map map;
    if (!pa_channel_map_parse(&map, channels)) {
        qFatal("no channel map: %s", channels);
    }
    return map;
}

constexpr char six[] = "front-left,front-right,rear-left,rear-right,side-left,side-right";
constexpr char surround51[] = "front-left,front-right,rear-left,rear-right,front-center,lfe";
constexpr char surround71[] = "front-left,front-right,rear-left,rear-right,front-center,lfe,side-left,side-right";

}  // namespace

void TestRouting::everyDevice_data() {
    QTest::addColumn<QString>("channels");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("folded");
    QTest::addColumn<int>("lost");
    const auto usual = [](const char *name, const char *channels, const char *expected, bool folded = false) {
        QTest::newRow(name) << channels << QString() << expected << folded << 0;
    };
    usual("mono", "mono", "FL+FR+RL+RR+SL+SR", true);
    usual("stereo", "front-left,front-right", "FL+RL+SL FR+RR+SR", true);
    usual("stereo the other way", "front-right,front-left", "FR+RR+SR FL+RL+SL", true);
    usual("two numbered ones", "aux0,aux1", "FL+RL+SL FR+RR+SR", true);
    usual("2.1", "lfe,front-left,front-right", "- FL+RL+SL FR+RR+SR", true);
    usual("4.0", "front-left,front-right,rear-left,rear-right", "FL+RL+SL FR+RR+SR - -", true);
    usual("5.0", "front-left,front-right,rear-left,rear-right,front-center", "FL+RL+SL FR+RR+SR - - -", true);
    usual("six", six, "FL FR RL RR SL SR");
    usual("5.1", surround51, "FL FR RL RR SL SR");
    usual("5.1 with sides", "front-left,front-right,front-center,lfe,side-left,side-right", "FL FR SL SR RL RR");
    usual("7.1", surround71, "FL FR RL RR - - SL SR");
    usual("6.1", "front-left,front-right,rear-left,rear-right,front-center,lfe,rear-center", "FL FR RL RR SL SR -");
    usual("numbered", "aux0,aux1,aux2,aux3,aux4,aux5", "FL FR RL RR SL SR");
    usual("eight numbered", "aux0,aux1,aux2,aux3,aux4,aux5,aux6,aux7", "FL FR RL RR SL SR - -");
    usual("main and numbered", "front-left,front-right,aux0,aux1,aux2,aux3", "FL FR RL RR SL SR");

    const auto named = [](const char *name, const char *channels, const char *wanted, const char *expected, int lost) {
        QTest::newRow(name) << channels << wanted << expected << false << lost;
    };
    named("turned round", six, "FL=rear-left,FR=rear-right,RL=front-left,RR=front-right", "RL RR FL FR - -", 0);
    named("one subwoofer", surround51, "FL=front-left,FR=front-right,RL=rear-left,RR=rear-right,SL=lfe,SR=lfe",
          "FL FR RL RR - SL+SR", 0);
    named("two of four", "front-left,front-right,rear-left,rear-right", "RL=rear-left,RR=rear-right", "- - RL RR", 0);
    named("what is not there", "aux0,aux1", "FL=aux0,FR=aux2,RL=nonsense", "FL -", 2);
}

void TestRouting::everyDevice() {
    QFETCH(QString, channels);
    QFETCH(QString, wanted);
    QFETCH(QString, expected);
    QFETCH(bool, folded);
    QFETCH(int, lost);
    OutputMap map;
    std::string error;
    QVERIFY(wanted.isEmpty() || parseOutputMap(wanted.toStdString(), &map, &error));
    const pa_channel_map there = device(channels.toLatin1());
    const Routing found = routing(there, map);
    QCOMPARE(heard(there, found), expected);
    QCOMPARE(found.folded, folded);
    QCOMPARE(static_cast<int>(found.lost.size()), lost);
}

void TestRouting::fullScaleStaysFullScale() {
    for (const char *channels : {"mono", "front-left,front-right", six, surround51, surround71}) {
        std::map<size_t, float> sums;
        for (const Route &route : routing(device(channels), OutputMap()).routes) {
            sums[route.channel] += route.gain;
        }
        for (const auto &[channel, sum] : sums) {
            QVERIFY(std::abs(sum - 1) < 1e-6F);
        }
    }
}

QTEST_APPLESS_MAIN(TestRouting)
#include "tst_routing.moc"
