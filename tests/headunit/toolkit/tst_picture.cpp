#include "headunit/toolkit/picture.h"
#include "unittest.h"

/// Pictures by path, on a dense display.
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
        const QPixmap dense = headunit::loadPicture(":/test/red.xpm");
        QCOMPARE(dense.size(), QSize(16, 16));
        QCOMPARE(dense.devicePixelRatioF(), 2.0);
        QCOMPARE(headunit::pictureSize(dense), QSize(8, 8));
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
    qputenv("QT_SCALE_FACTOR", "2");
    new headunit::VirtualTime;
    headunit::prepareUnitApplication();
    QApplication application(argc, argv);
    initTestPictures();
    TestPicture test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_picture.moc"
