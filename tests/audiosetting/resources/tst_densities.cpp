// SPDX-License-Identifier: Apache-2.0
#include "base/picture.h"

#include <QApplication>
#include <QLabel>
#include <QResource>
#include <QtTest>

using namespace audiosetting;

// The pictures that code draws, on displays of several densities. Run at each.
class DensitiesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pictureHasTheDisplaysDensity();
    void labelsOfAForm();
};

namespace {
const QSize plateSize(224, 72);
}  // namespace

void DensitiesTest::initTestCase() {
    // Beside the plug-in, and this is none.
    if (displayDensity() > 1 && !QFile::exists(QStringLiteral(":/corvina_icon/value_bg@2x.png"))) {
        QVERIFY(QResource::registerResource(QStringLiteral(PICTURE_DENSE)));
    }
}

void DensitiesTest::pictureHasTheDisplaysDensity() {
    const QPixmap plate = picture("value_bg");
    QCOMPARE(plate.devicePixelRatio(), displayDensity());
    QCOMPARE(plate.size(), plateSize * displayDensity());
    QVERIFY(picture("no_such_picture").isNull());
}

void DensitiesTest::labelsOfAForm() {
    QLabel first;
    QLabel second;
    QPixmap plain(plateSize);
    for (QLabel *label : {&first, &second}) {
        label->setPixmap(plain);
    }
    showPicture({&first, &second}, "value_bg");
    for (const QLabel *label : {&first, &second}) {
        QCOMPARE(label->pixmap(Qt::ReturnByValue).devicePixelRatio(), displayDensity());
        QCOMPARE(label->pixmap(Qt::ReturnByValue).size(), plateSize * displayDensity());
    }
    // On an ordinary display the form's own are right.
    QCOMPARE(first.pixmap(Qt::ReturnByValue).cacheKey() == plain.cacheKey(), displayDensity() == 1);
}

QTEST_MAIN(DensitiesTest)
#include "tst_densities.moc"
