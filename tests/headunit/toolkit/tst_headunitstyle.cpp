// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/headunitstyle.h"
#include "unittest.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionFocusRect>

namespace {

struct IconPicture {
    QIcon::Mode mode;
    QIcon::State state;
    QRgb colour;
};

// A picture of another colour for each mode and state.
const IconPicture pictures[] = {
    {QIcon::Normal, QIcon::Off, 0xFF100000},   {QIcon::Normal, QIcon::On, 0xFF200000},
    {QIcon::Disabled, QIcon::Off, 0xFF300000}, {QIcon::Disabled, QIcon::On, 0xFF400000},
    {QIcon::Active, QIcon::Off, 0xFF500000},   {QIcon::Active, QIcon::On, 0xFF600000},
    {QIcon::Selected, QIcon::Off, 0xFF700000}, {QIcon::Selected, QIcon::On, 0xFF800000},
};

QPixmap solid(const QSize &size, QRgb colour) {
    QPixmap pixmap(size);
    pixmap.fill(QColor::fromRgba(colour));
    return pixmap;
}

QRgb colourOf(QIcon::Mode mode, QIcon::State state) {
    for (const IconPicture &picture : pictures) {
        if (picture.mode == mode && picture.state == state) {
            return picture.colour;
        }
    }
    return 0;
}

}  // namespace

Q_DECLARE_METATYPE(QIcon::Mode)
Q_DECLARE_METATYPE(QIcon::State)

/// The look of a key in each state.
class TestHeadUnitStyle : public QObject {
    Q_OBJECT

    QWidget *screen = nullptr;
    QPushButton *key = nullptr;

    QImage shown() {
        QImage image(key->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        key->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    }

    void setIcon(const QSize &pictureSize) {
        QIcon icon;
        for (const IconPicture &picture : pictures) {
            icon.addPixmap(solid(pictureSize, picture.colour), picture.mode, picture.state);
        }
        key->setIcon(icon);
    }

private slots:
    void init() {
        screen = new QWidget;
        screen->resize(300, 200);
        key = new QPushButton(screen);
        key->setGeometry(20, 20, 72, 72);
        key->setIconSize(QSize(72, 72));
        setIcon(QSize(72, 72));
        screen->show();
    }

    void cleanup() { delete screen; }

    void iconOfAState_data() {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("checkable");
        QTest::addColumn<bool>("checked");
        QTest::addColumn<bool>("pressed");
        QTest::addColumn<QIcon::Mode>("mode");
        QTest::addColumn<QIcon::State>("state");
        QTest::newRow("normal") << true << false << false << false << QIcon::Normal << QIcon::Off;
        QTest::newRow("pressed") << true << false << false << true << QIcon::Selected << QIcon::On;
        QTest::newRow("disabled") << false << false << false << false << QIcon::Disabled << QIcon::Off;
        QTest::newRow("unchecked") << true << true << false << false << QIcon::Normal << QIcon::Off;
        QTest::newRow("unchecked pressed") << true << true << false << true << QIcon::Selected << QIcon::Off;
        QTest::newRow("unchecked disabled") << false << true << false << false << QIcon::Disabled << QIcon::Off;
        QTest::newRow("checked") << true << true << true << false << QIcon::Active << QIcon::On;
        QTest::newRow("checked pressed") << true << true << true << true << QIcon::Selected << QIcon::On;
        QTest::newRow("checked disabled") << false << true << true << false << QIcon::Disabled << QIcon::On;
    }

    void iconOfAState() {
        QFETCH(bool, enabled);
        QFETCH(bool, checkable);
        QFETCH(bool, checked);
        QFETCH(bool, pressed);
        QFETCH(QIcon::Mode, mode);
        QFETCH(QIcon::State, state);
        key->setCheckable(checkable);
        key->setChecked(checked);
        key->setEnabled(enabled);
        if (pressed) {
            finger::press(key, QPoint(36, 36));
            QVERIFY(key->isDown());
        }
        // Each pixel: no bevel, no frame, no shift, no tint.
        QImage expected(72, 72, QImage::Format_ARGB32_Premultiplied);
        expected.fill(QColor::fromRgba(colourOf(mode, state)));
        QCOMPARE(shown(), expected);
        if (pressed) {
            finger::release(key, QPoint(36, 36));
        }
    }

    void focusIsNotShown() {
        const QImage before = shown();
        key->setFocus(Qt::TabFocusReason);
        QApplication::setActiveWindow(screen);
        QVERIFY(key->hasFocus());
        QCOMPARE(shown(), before);
    }

    void noFocusFrameAnywhere() {
        QImage image(72, 72, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        const QImage empty = image;
        QStyleOptionFocusRect option;
        option.initFrom(key);
        option.rect = image.rect();
        option.state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
        QPainter painter(&image);
        QApplication::style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, key);
        painter.end();
        QCOMPARE(image, empty);
    }

    void iconIsCentredAtItsOwnSize() {
        key->setGeometry(20, 20, 100, 80);
        key->setIconSize(QSize(40, 20));
        setIcon(QSize(40, 20));
        const QImage image = shown();
        QCOMPARE(image.pixel(30, 30), colourOf(QIcon::Normal, QIcon::Off));
        QCOMPARE(image.pixel(69, 49), colourOf(QIcon::Normal, QIcon::Off));
        for (const QPoint &outside : {QPoint(29, 40), QPoint(70, 40), QPoint(50, 29), QPoint(50, 50), QPoint(0, 0)}) {
            QCOMPARE(qAlpha(image.pixel(outside)), 0);
        }
    }

    void iconMayBeSmallerThanItsPlace() {
        key->setIconSize(QSize(72, 72));
        setIcon(QSize(30, 30));
        const QImage image = shown();
        QCOMPARE(image.pixel(21, 21), colourOf(QIcon::Normal, QIcon::Off));
        QCOMPARE(image.pixel(50, 50), colourOf(QIcon::Normal, QIcon::Off));
        QCOMPARE(qAlpha(image.pixel(20, 20)), 0);
        QCOMPARE(qAlpha(image.pixel(51, 51)), 0);
    }

    void missingPictureFallsBackWithoutTint() {
        key->setIcon(QIcon(solid(QSize(72, 72), 0xFF123456)));
        key->setEnabled(false);
        QCOMPARE(shown().pixel(36, 36), 0xFF123456);
        key->setEnabled(true);
        key->setDown(true);
        QCOMPARE(shown().pixel(36, 36), 0xFF123456);
    }

    void translucentPictureIsBlendedOnce() {
        key->setIcon(QIcon(solid(QSize(72, 72), 0x80FFFFFF)));
        QCOMPARE(qAlpha(shown().pixel(36, 36)), 0x80);
    }

    void textIsCentredInItsColour() {
        key->setText("HHH");
        key->setFont(QFont(headunit::unitFontFamily(), 18));
        QPalette palette = key->palette();
        palette.setColor(QPalette::ButtonText, Qt::green);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::blue);
        key->setPalette(palette);
        const auto textRect = [](const QImage &image, const QColor &colour) {
            QRect rect;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    if (image.pixelColor(x, y) == colour) {
                        rect |= QRect(x, y, 1, 1);
                    }
                }
            }
            return rect;
        };
        const QRect text = textRect(shown(), Qt::green);
        QVERIFY(text.width() > 30);
        QVERIFY((text.center() - QPoint(36, 36)).manhattanLength() <= 4);
        key->setDown(true);
        QCOMPARE(textRect(shown(), Qt::green), text);
        key->setEnabled(false);
        QCOMPARE(textRect(shown(), Qt::blue), text);
    }

    void keyOfTextAloneHasAShape() {
        key->setIcon(QIcon());
        QCOMPARE(qAlpha(shown().pixel(36, 5)), 0);
        key->setText("OK");
        QCOMPARE(qAlpha(shown().pixel(36, 5)), 255);
        const QImage rest = shown();
        key->setDown(true);
        QVERIFY(shown() != rest);
        key->setDown(false);
        key->setFlat(true);
        QCOMPARE(qAlpha(shown().pixel(36, 5)), 0);
    }

    void nothingHovers() { QVERIFY(!key->testAttribute(Qt::WA_Hover)); }

    void colours() {
        QCOMPARE(headunit::colour::accent, QColor(11, 183, 237));
        QCOMPARE(QApplication::palette().color(QPalette::WindowText), QColor(Qt::white));
        QCOMPARE(QApplication::palette().color(QPalette::ButtonText), QColor(Qt::white));
        QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::WindowText), QColor("#57575F"));
        QCOMPARE(QApplication::palette().color(QPalette::Disabled, QPalette::ButtonText), QColor("#57575F"));
        QCOMPARE(QApplication::palette().color(QPalette::Highlight), QColor(11, 183, 237));
        QVERIFY(qApp->styleSheet().isEmpty());
    }

    void styleSheetOfALabelGoesOnWorking() {
        QLabel label("HHH", screen);
        label.setStyleSheet("color: #57575F;");
        label.ensurePolished();
        QCOMPARE(label.palette().color(QPalette::WindowText), QColor("#57575F"));
    }

    void metricsAndHints() {
        QStyle *style = QApplication::style();
        QCOMPARE(style->pixelMetric(QStyle::PM_ButtonShiftHorizontal), 0);
        QCOMPARE(style->pixelMetric(QStyle::PM_ButtonShiftVertical), 0);
        QCOMPARE(style->pixelMetric(QStyle::PM_ScrollBarExtent), 24);
        QCOMPARE(style->styleHint(QStyle::SH_EtchDisabledText), 0);
        QCOMPARE(style->styleHint(QStyle::SH_Widget_Animation_Duration), 0);
    }
};

UNIT_TEST_MAIN(TestHeadUnitStyle)
#include "tst_headunitstyle.moc"
