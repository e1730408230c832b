// SPDX-License-Identifier: Apache-2.0
#include <QFile>
#include <QGuiApplication>
#include <QIcon>
#include <QPluginLoader>
#include <QtTest>

// The pictures come and go with the plug-in. Run at both densities.
class PictureLoadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comeAndGoWithThePlugin();
    void iconTakesThePictureOfTheDisplay();
};

namespace {
const QString picture = QStringLiteral(":/corvina_icon/key_vol_prev_n.png");
const QString densePicture = QStringLiteral(":/corvina_icon/key_vol_prev_n@2x.png");
const QSize keySize(72, 72);
}  // namespace

void PictureLoadingTest::comeAndGoWithThePlugin() {
    QVERIFY(!QFile::exists(picture));
    QPluginLoader plugin(QStringLiteral(PLUGIN));
    plugin.setLoadHints({});  // by default Qt never lets a plug-in go
    // Twice, because a second load must find what the first one left as it found it.
    for (int round = 0; round < 2; ++round) {
        QVERIFY2(plugin.load(), qPrintable(plugin.errorString()));
        QVERIFY(QFile::exists(picture));
        QCOMPARE(QFile::exists(densePicture), qGuiApp->devicePixelRatio() > 1);
        QVERIFY2(plugin.unload(), qPrintable(plugin.errorString()));
        QVERIFY(!QFile::exists(picture));
        QVERIFY(!QFile::exists(densePicture));
    }
}

void PictureLoadingTest::iconTakesThePictureOfTheDisplay() {
    QPluginLoader plugin(QStringLiteral(PLUGIN));
    QVERIFY2(plugin.load(), qPrintable(plugin.errorString()));
    QPixmap pixmap = QIcon(picture).pixmap(keySize);
    QCOMPARE(pixmap.size(), keySize * qGuiApp->devicePixelRatio());
    QCOMPARE(pixmap.devicePixelRatio(), qGuiApp->devicePixelRatio());
}

int main(int argc, char **argv) {
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication application(argc, argv);
    PictureLoadingTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_pictureloading.moc"
