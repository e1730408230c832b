// SPDX-License-Identifier: Apache-2.0
#include "headunit/audio/live/outputmap.h"

#include <QTest>

using headunit::OutputMap;
using headunit::parseOutputMap;

class TestOutputMap : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void reads();
    void refuses_data();
    void refuses();
};

void TestOutputMap::reads() {
    OutputMap map;
    std::string error;
    QVERIFY(parseOutputMap("SR=lfe,FL=aux0,FR=aux11", &map, &error));
    QVERIFY((map == OutputMap{"aux0", "aux11", "", "", "", "lfe"}));
    QVERIFY(parseOutputMap("RL=a,RR=a", &map, &error));
    QVERIFY((map == OutputMap{"", "", "a", "a", "", ""}));
}

void TestOutputMap::refuses_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *text, const char *reason) {
        QTest::newRow(text) << QString::fromLatin1(text) << QString::fromLatin1(reason);
    };
    row("", "\"\" is not like FL=front-left");
    row("FL", "\"FL\" is not like FL=front-left");
    row("FL=", "\"FL=\" is not like FL=front-left");
    row("FL=a,", "\"\" is not like FL=front-left");
    row("FL=a,,FR=b", "\"\" is not like FL=front-left");
    row("fl=a", "there is no output \"fl\", but FL, FR, RL, RR, SL and SR");
    row("=a", "there is no output \"\", but FL, FR, RL, RR, SL and SR");
    row("FL=a,FR=b,FL=c", "FL stands in it twice");
}

void TestOutputMap::refuses() {
    QFETCH(QString, text);
    QFETCH(QString, reason);
    OutputMap map;
    std::string error;
    QVERIFY(!parseOutputMap(text.toStdString(), &map, &error));
    QCOMPARE(QString::fromStdString(error), reason);
}

QTEST_APPLESS_MAIN(TestOutputMap)
#include "tst_outputmap.moc"
