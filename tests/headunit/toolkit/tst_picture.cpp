// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/picture.h"
#include "unittest.h"

/// Pictures by path, on dense displays of whole and of broken density.
class TestPicture : public QObject {
    Q_OBJECT

private slots:
    void pathOfAUrl_data() {
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QString>("path");
        QTest::newRow("qrc") << QUrl("qrc:/icons/a.png") << ":/icons/a.png";
        QTest::newRow("resource") << QUrl(":/icons/a.png") << ":/icons/a.png";
        QTest::newRow("file") << QUrl("file:///tmp/a.png") << "/tmp/a.png";
        QTest::newRow("plain") << QUrl("/tmp/a.png") << "/tmp/a.png";
        QTest::newRow("none") << QUrl() << "";
    }

    void pathOfAUrl() {
        QFETCH(QUrl, url);
        QFETCH(QString, path);
        QCOMPARE(headunit::picturePath(url), path);
    }

    void denseDisplayTakesTheDensePicture() {
        const qreal density = qApp->devicePixelRatio();
        QVERIFY(density > 1);
        // Twice: read, and from the cache
        for (int round = 0; round < 2; ++round) {
            const QPixmap dense = headunit::loadPicture(":/test/red.xpm");
            QCOMPARE(dense.size(), QSize(8, 8) * density);
            QCOMPARE(dense.devicePixelRatioF(), density);
            QCOMPARE(headunit::pictureSize(dense), QSize(8, 8));
        }
    }

    void withoutADensePictureThePlainOneIsTaken() {
        const QPixmap plain = headunit::loadPicture(":/test/green.xpm");
        QCOMPARE(plain.size(), QSize(8, 8));
        QCOMPARE(plain.devicePixelRatioF(), 1.0);
    }

    void missingPictureIsNull() {
        QVERIFY(headunit::loadPicture(":/test/missing.xpm").isNull());
        QVERIFY(headunit::loadPicture(QString()).isNull());
        QCOMPARE(headunit::pictureSize(QPixmap()), QSize(0, 0));
    }
};

int main(int argc, char **argv) {
    if (qgetenv("QT_SCALE_FACTOR").toDouble() <= 1) {  // else the run is one for another density
        qputenv("QT_SCALE_FACTOR", "2");
    }
    new headunit::VirtualTime;
    headunit::prepareUnitApplication();
    QApplication application(argc, argv);
    initTestPictures();
    TestPicture test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_picture.moc"
