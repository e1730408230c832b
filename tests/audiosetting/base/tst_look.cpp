// SPDX-License-Identifier: Apache-2.0
#include "base/look.h"

#include "eq/dragvalue.h"
#include "eq/eqwidget.h"
#include "navigation/audiorootpagtsettings.h"
#include "navigation/pageid.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyleFactory>

using audiosetting::Look;

namespace {

const QSize keySize(80, 80);
const QSize iconSize(40, 40);
const QColor background(20, 120, 20);

QPixmap picture(const QColor &colour) {
    QPixmap pixmap(iconSize);
    pixmap.fill(colour);
    return pixmap;
}

}  // namespace

// The look that the screens bring themselves, on a unit with Qt's own style and a desk's colours.
class TestLook : public PageTest {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void aKeyIsThePictureOfItsState_data();
    void aKeyIsThePictureOfItsState();
    void aMissingPictureIsNotTinted();
    void textOnAKeyIsWhite();
    void everyCaptionHasTheGivenColours();
    void everyKeyIsDressed_data();
    void everyKeyIsDressed();
    void thePanelBringsItsLook();

private:
    static QImage grab(QPushButton &key);
    static void checkColours(QWidget *screen);
};

void TestLook::initTestCase() {
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QPalette(Qt::white));
    QCOMPARE(QApplication::palette().color(QPalette::WindowText).name(), QStringLiteral("#000000"));
}

void TestLook::init() {
    PageTest::init();
}

QImage TestLook::grab(QPushButton &key) {
    QImage image(keySize, QImage::Format_RGB32);
    image.fill(background);
    key.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

void TestLook::aKeyIsThePictureOfItsState_data() {
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<bool>("down");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("at rest") << false << false << false << true << QColor(Qt::white);
    QTest::newRow("pressed") << false << true << false << true << QColor(Qt::cyan);
    QTest::newRow("disabled") << false << false << false << false << QColor(Qt::gray);
    QTest::newRow("switch, off") << true << false << false << true << QColor(Qt::white);
    QTest::newRow("switch, pressed while off") << true << true << false << true << QColor(Qt::magenta);
    QTest::newRow("switch, on") << true << false << true << true << QColor(Qt::yellow);
    QTest::newRow("switch, pressed while on") << true << true << true << true << QColor(Qt::cyan);
    QTest::newRow("switch, disabled while on") << true << false << true << false << QColor(Qt::blue);
}

void TestLook::aKeyIsThePictureOfItsState() {
    QFETCH(bool, checkable);
    QFETCH(bool, down);
    QFETCH(bool, checked);
    QFETCH(bool, enabled);
    QFETCH(QColor, expected);
    QIcon icon;
    icon.addPixmap(picture(Qt::white), QIcon::Normal, QIcon::Off);
    icon.addPixmap(picture(Qt::yellow), QIcon::Active, QIcon::On);
    icon.addPixmap(picture(Qt::magenta), QIcon::Selected, QIcon::Off);
    icon.addPixmap(picture(Qt::cyan), QIcon::Selected, QIcon::On);
    icon.addPixmap(picture(Qt::gray), QIcon::Disabled, QIcon::Off);
    icon.addPixmap(picture(Qt::blue), QIcon::Disabled, QIcon::On);

    Look look;
    QWidget screen;
    QPushButton key(&screen);
    key.setIcon(icon);
    key.setIconSize(iconSize);
    key.resize(keySize);
    key.setCheckable(checkable);
    key.setChecked(checked);
    key.setEnabled(enabled);
    look.dressKeys(&screen);
    key.setDown(down);
    QImage image(keySize, QImage::Format_RGB32);
    image.fill(background);
    QPainter painter(&image);
    painter.fillRect(QRect(QPoint(20, 20), iconSize), expected);
    painter.end();
    QCOMPARE(grab(key), image);
}

void TestLook::aMissingPictureIsNotTinted() {
    QIcon icon;
    icon.addPixmap(picture(Qt::yellow), QIcon::Normal, QIcon::Off);
    Look look;
    QWidget screen;
    QPushButton key(&screen);
    key.setIcon(icon);
    key.setIconSize(iconSize);
    key.resize(keySize);
    look.dressKeys(&screen);
    const QImage atRest = grab(key);
    key.setDown(true);
    QCOMPARE(grab(key), atRest);
    key.setDown(false);
    key.setEnabled(false);
    QCOMPARE(grab(key), atRest);
}

void TestLook::textOnAKeyIsWhite() {
    Look look;
    QWidget screen;
    look.colourTexts(&screen);
    QPushButton key(QStringLiteral("MMM"), &screen);
    key.resize(keySize);
    look.dressKeys(&screen);
    const QImage image = grab(key);
    QCOMPARE(image.pixelColor(0, 0), background);
    int white = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            white += image.pixelColor(x, y) == QColor(Qt::white);
        }
    }
    QVERIFY(white > 0);
}

void TestLook::checkColours(QWidget *screen) {
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        QCOMPARE(screen->palette().color(QPalette::Disabled, role).name(), QStringLiteral("#57575f"));
    }
    const QList<QLabel *> captions = screen->findChildren<QLabel *>();
    QVERIFY(!captions.isEmpty());
    for (const QLabel *caption : captions) {
        // A value under the finger has the accent's colour, whatever the unit.
        if (caption->styleSheet().isEmpty() && !qobject_cast<const audiosetting::DragValue *>(caption)) {
            const QPalette palette = caption->palette();
            QCOMPARE(palette.color(QPalette::Active, caption->foregroundRole()).name(), QStringLiteral("#ffffff"));
            QCOMPARE(palette.color(QPalette::Inactive, caption->foregroundRole()).name(), QStringLiteral("#ffffff"));
        }
    }
}

void TestLook::everyCaptionHasTheGivenColours() {
    AudioRootPagtSettings root(nullptr);
    show(&root);
    for (int page = audiosetting::PageGeneral; page <= audiosetting::PageSettingsRoot; ++page) {
        root.updateCurrentPage(page);
    }
    root.onShowResetAudiosettings();
    checkColours(&root);
}

void TestLook::everyKeyIsDressed_data() {
    QTest::addColumn<int>("page");
    for (int page = audiosetting::PageGeneral; page <= audiosetting::PageSettingsRoot; ++page) {
        QTest::newRow(qPrintable(QString::number(page))) << page;
    }
}

void TestLook::everyKeyIsDressed() {
    QFETCH(int, page);
    AudioRootPagtSettings root(nullptr);
    show(&root);
    root.updateCurrentPage(page);
    root.onShowResetAudiosettings();
    const QList<QPushButton *> keys = root.findChildren<QPushButton *>();
    QVERIFY(keys.size() > 10);
    for (const QPushButton *key : keys) {
        QVERIFY2(qobject_cast<audiosetting::KeyStyle *>(key->style()), qPrintable(key->objectName()));
    }
}

void TestLook::thePanelBringsItsLook() {
    audiosetting::EQWidget panel;
    checkColours(&panel);
    const QList<QPushButton *> keys = panel.findChildren<QPushButton *>();
    QVERIFY(!keys.isEmpty());
    for (const QPushButton *key : keys) {
        QVERIFY2(qobject_cast<audiosetting::KeyStyle *>(key->style()), qPrintable(key->objectName()));
    }
}

PAGE_TEST_MAIN(TestLook)
#include "tst_look.moc"
