// SPDX-License-Identifier: Apache-2.0
#include "eq/sliderbarwidget.h"

#include "tests/audiosetting/eq/eqreference.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <limits>

using cm::SliderBarWidget;

namespace {

const int minimum = std::numeric_limits<int>::min();
const int maximum = std::numeric_limits<int>::max();

const QRect frame(0, 0, 36, 164);

QImage knobPicture(const QSize &size = QSize(36, 27)) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.fillRect(image.rect().adjusted(2, 2, -2, -2), QColor(220, 225, 230));
    return image;
}

QList<int> gains() {
    QList<int> list;
    for (int gain = 12; gain >= -12; --gain) {
        list << gain;
    }
    return list;
}

/// A slider as the EQ page sets it up.
class Slider : public SliderBarWidget {
public:
    explicit Slider(QWidget *parent = nullptr) : SliderBarWidget(parent) {
        setGeometry(frame);
        setId(7);
        setImage(m_image);
        addFreqLevel(gains());
        setBarWidth(16);
        setCenterPoint(reference::pageCenters, 25);
        setBorderPoint(reference::pageBorders, 25);
    }

private:
    QImage m_picture = knobPicture();
    QImage *m_image = &m_picture;
};

/// Notes a slider's signals in the log.
void noteSignals(SliderBarWidget &slider) {
    const auto note = [](const char *name) {
        return [name](int section, int value) {
            recording::note(QStringLiteral("%1(%2, %3)").arg(QLatin1String(name)).arg(section).arg(value));
        };
    };
    QObject::connect(&slider, &SliderBarWidget::press, note("press"));
    QObject::connect(&slider, &SliderBarWidget::release, note("release"));
    QObject::connect(&slider, &SliderBarWidget::valueChanged, note("valueChanged"));
}

QImage picture(QWidget &widget) {
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

/// The contents of the window's buffer, without painting anything anew.
QImage onScreen(const QWidget &window) {
    return window.screen()->grabWindow(window.winId()).toImage();
}

/// The slider drawn plainly, step by step.
QImage drawn(const QWidget &widget, const QImage &knob, int barWidth, int point, const QString &text) {
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(11, 183, 237, 255));
    painter.drawRoundedRect((knob.width() - barWidth) / 2, point, barWidth, widget.height() - point, 5, 5);
    painter.drawImage(0, point, knob);
    QFont font = widget.font();
    font.setPointSize(19);
    painter.setFont(font);
    painter.setPen(QColor(17, 17, 17));
    painter.drawText(QRect(0, point, knob.width(), knob.height()), Qt::AlignCenter,
                     painter.fontMetrics().elidedText(text, Qt::ElideMiddle, knob.width()));
    return image;
}

/// The largest difference of a colour channel between two pictures of the same size.
int difference(const QImage &a, const QImage &b) {
    int most = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            for (int d : {qRed(p) - qRed(q), qGreen(p) - qGreen(q), qBlue(p) - qBlue(q), qAlpha(p) - qAlpha(q)}) {
                most = qMax(most, qAbs(d));
            }
        }
    }
    return most;
}

}  // namespace

class tst_SliderBarWidget : public PageTest {
    Q_OBJECT
private slots:
    void declaresThreeSignalsInOrder() {
        QCOMPARE(methods(SliderBarWidget::staticMetaObject),
                 QStringList({"signal press(int,int)", "signal release(int,int)", "signal valueChanged(int,int)"}));
    }

    void startsAtLevelZeroWithThirteenPointsOfZero() {
        SliderBarWidget slider(nullptr);
        QCOMPARE(slider.getLevel(), 0);
        QCOMPARE(slider.level2Point(12), 0);
        QCOMPARE(slider.point2Level(-1), 0);
        QCOMPARE(slider.point2Level(0), 13);
        QCOMPARE(slider.lastTouchY(), 0);
    }

    void levelsStandAtTheirCentrePoints() {
        Slider slider;
        for (int level = 0; level <= 24; ++level) {
            slider.setBarLevel(level);
            QCOMPARE(slider.level2Point(level), reference::pageCenters[level]);
        }
    }

    void aCountOfCentrePointsOutOfRangeIsTwentyFour_data() {
        QTest::addColumn<unsigned int>("count");
        QTest::addColumn<int>("kept");
        QTest::newRow("13") << 13u << 13;
        QTest::newRow("24") << 24u << 24;
        QTest::newRow("25") << 25u << 25;
        QTest::newRow("26") << 26u << 24;
        QTest::newRow("-1") << unsigned(-1) << 24;
        QTest::newRow("least") << unsigned(minimum) << 24;
    }
    void aCountOfCentrePointsOutOfRangeIsTwentyFour() {
        QFETCH(unsigned int, count);
        QFETCH(int, kept);
        std::array<int, 25> points;
        for (int i = 0; i < 25; ++i) {
            points[i] = 100 + i;
        }
        Slider slider;
        slider.setCenterPoint(points.data(), count);
        slider.setBarLevel(kept - 1);
        QCOMPARE(slider.level2Point(kept - 1), 100 + kept - 1);
        slider.setBarLevel(kept);
        QCOMPARE(slider.level2Point(kept), 100);
    }

    void theCurrentLevelDecidesWhetherPointsAreKnown() {
        Slider slider;
        slider.setCenterPoint(reference::pageCenters, 20);
        slider.setBarLevel(19);
        QCOMPARE(slider.level2Point(3), 16);
        slider.setBarLevel(20);
        QCOMPARE(slider.level2Point(3), 0);
    }

    void touchZonesEndBeforeTheirBorders() {
        Slider slider;
        for (int y = -20; y <= 200; ++y) {
            int level = 0;
            while (level < 24 && y >= reference::pageBorders[level]) {
                ++level;
            }
            QCOMPARE(slider.point2Level(y), level);
        }
        QCOMPARE(slider.point2Level(134), 23);
        QCOMPARE(slider.point2Level(135), 24);
        QCOMPARE(slider.point2Level(minimum), 0);
        QCOMPARE(slider.point2Level(maximum), 24);
    }

    void aSmallBorderTableEndsInItsCount() {
        Slider slider;
        const int borders[] = {10, 20, 30};
        slider.setBorderPoint(borders, 3);
        QCOMPARE(slider.point2Level(9), 0);
        QCOMPARE(slider.point2Level(29), 2);
        QCOMPARE(slider.point2Level(30), 3);
        slider.setBorderPoint(borders, 0);
        QCOMPARE(slider.point2Level(0), 0);
    }

    void settingALevelKeepsItAsItIsAndSaysNothing_data() {
        QTest::addColumn<int>("level");
        for (int level : {0, 12, 24, 25, 30, -1, minimum, maximum}) {
            QTest::addRow("%d", level) << level;
        }
    }
    void settingALevelKeepsItAsItIsAndSaysNothing() {
        QFETCH(int, level);
        Slider slider;
        noteSignals(slider);
        show(&slider);
        slider.setBarLevel(level);
        advance(0);
        QCOMPARE(slider.getLevel(), level);
        const bool known = level >= 0 && level <= 24;
        QCOMPARE(slider.level2Point(level), known ? reference::pageCenters[level] : 0);
        QCOMPARE(recording::take(), QStringList());
    }

    void stepsWrapAtTheirOwnEnds_data() {
        QTest::addColumn<bool>("next");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        const QList<std::pair<int, int>> next{{0, 1}, {12, 13}, {23, 24}, {24, 1}, {30, 1}, {maximum, 1}, {-5, -4}};
        for (const auto &step : next) {
            QTest::addRow("next from %d", step.first) << true << step.first << step.second;
        }
        const QList<std::pair<int, int>> prev{{24, 23}, {12, 11}, {1, 0}, {0, 23}, {-3, 23}, {minimum, 23}, {30, 29}};
        for (const auto &step : prev) {
            QTest::addRow("prev from %d", step.first) << false << step.first << step.second;
        }
    }
    void stepsWrapAtTheirOwnEnds() {
        QFETCH(bool, next);
        QFETCH(int, from);
        QFETCH(int, to);
        Slider slider;
        noteSignals(slider);
        slider.setBarLevel(from);
        next ? slider.clickNext() : slider.clickPrev();
        QCOMPARE(slider.getLevel(), to);
        QCOMPARE(recording::take(), QStringList{QStringLiteral("valueChanged(7, %1)").arg(to)});
    }

    void aFingerIsAnnounced() {
        QWidget screen;
        screen.resize(600, 600);
        Slider slider(&screen);
        slider.move(200, 200);
        noteSignals(slider);
        show(&screen);
        finger::press(&slider, QPoint(18, 0));  // where the level is already
        QCOMPARE(recording::take(), QStringList({"press(7, 0)"}));
        finger::move(&slider, QPoint(18, 70));
        QCOMPARE(recording::take(), QStringList({"valueChanged(7, 12)", "press(7, 12)"}));
        finger::move(&slider, QPoint(20, 71));  // the same level
        QCOMPARE(recording::take(), QStringList({"press(7, 12)"}));
        finger::move(&slider, QPoint(300, 390));  // far outside: the finger is kept
        QCOMPARE(recording::take(), QStringList({"valueChanged(7, 24)", "press(7, 24)"}));
        finger::move(&slider, QPoint(18, -190));
        QCOMPARE(recording::take(), QStringList({"valueChanged(7, 0)", "press(7, 0)"}));
        finger::move(&slider, QPoint(18, 28));
        recording::clear();
        finger::release(&slider, QPoint(18, 28));
        QCOMPARE(recording::take(), QStringList({"release(7, 5)"}));
        finger::press(&slider, QPoint(18, 28));
        finger::release(&slider, QPoint(18, 28));
        QCOMPARE(recording::take(), QStringList({"press(7, 5)", "release(7, 5)"}));
    }

    void aReleaseElsewhereMovesTheSliderFirst() {
        Slider slider;
        noteSignals(slider);
        show(&slider);
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(18, 28), Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&slider, &release);
        QCOMPARE(recording::take(), QStringList({"valueChanged(7, 5)", "release(7, 5)"}));
    }

    void everyTouchZoneGivesItsLevel() {
        Slider slider;
        show(&slider);
        for (int level = 0; level <= 24; ++level) {
            finger::tap(&slider, QPoint(3, reference::touchY(reference::pageBorders, level)));
            QCOMPARE(slider.getLevel(), level);
        }
    }

    void anAnswerThatMovesTheSliderIsWhatPressCarries() {
        Slider slider;
        show(&slider);
        QObject::connect(&slider, &SliderBarWidget::valueChanged, [&] { slider.setBarLevel(3); });
        noteSignals(slider);
        finger::press(&slider, QPoint(18, 70));
        QCOMPARE(recording::take().last(), QStringLiteral("press(7, 3)"));
    }

    void paintingKeepsTheLastTouchOnTheBar() {
        Slider slider;
        show(&slider);
        finger::tap(&slider, QPoint(18, 100));
        picture(slider);
        QCOMPARE(slider.lastTouchY(), 100);
        finger::press(&slider, QPoint(18, 0));
        finger::release(&slider, QPoint(18, 0));
        picture(slider);
        QCOMPARE(slider.lastTouchY(), 14);  // half of 27, rounded up
        finger::tap(&slider, QPoint(18, 163));
        picture(slider);
        QCOMPARE(slider.lastTouchY(), 164 - 14);
    }

    void everyTouchRepaints() {
        Slider slider;
        show(&slider);
        // The level stays as it is; that it is painted shows in what painting does to the last touch.
        typedef void (*Touch)(QWidget *, const QPoint &);
        for (const Touch touch : {Touch(finger::press), Touch(finger::move), Touch(finger::release)}) {
            touch(&slider, QPoint(18, 4));
            QCOMPARE(slider.getLevel(), 0);
            QCOMPARE(slider.lastTouchY(), 14);
        }
    }

    void isPaintedAsPrescribedAtEveryLevel() {
        Slider slider;
        show(&slider);
        const QImage knob = knobPicture();
        for (int level = 0; level <= 24; ++level) {
            slider.setBarLevel(level);
            const int point = reference::pageCenters[level];
            const int off = difference(picture(slider), drawn(slider, knob, 16, point, QString::number(12 - level)));
            QVERIFY2(off <= 3, qPrintable(QStringLiteral("level %1 differs by %2").arg(level).arg(off)));
        }
    }

    void coloursAreExact() {
        Slider slider;
        show(&slider);
        for (int level : {0, 12, 23}) {
            slider.setBarLevel(level);
            QCOMPARE(picture(slider).pixelColor(18, 155), QColor(11, 183, 237, 255));
        }
        // A number of many pixels: its darkest one is all ink.
        slider.addFreqLevel({88});
        slider.setBarLevel(0);
        QColor darkest = Qt::white;
        const QImage image = picture(slider);
        for (int y = 4; y < 23; ++y) {
            for (int x = 4; x < 32; ++x) {
                const QColor colour = image.pixelColor(x, y);
                darkest = colour.lightness() < darkest.lightness() ? colour : darkest;
            }
        }
        QCOMPARE(darkest, QColor(17, 17, 17));
    }

    void theScreenFollowsTheKnob() {
        // Partial repaints leave the same on the screen as a picture painted at once.
        QWidget screen;
        screen.setGeometry(0, 0, 60, 200);
        QPalette plain = screen.palette();
        plain.setColor(QPalette::Window, QColor(10, 20, 30));
        screen.setPalette(plain);
        Slider slider(&screen);
        slider.move(12, 20);
        show(&screen);
        for (int level : {24, 0, 12, 13, 3, 22, 23, 24, 30, 5, -2, 11}) {
            slider.setBarLevel(level);
            advance(0);
            const QImage seen = onScreen(screen);
            slider.update();
            advance(0);
            QCOMPARE(seen, onScreen(screen));
        }
    }

    void aLevelWithoutANumberHasAnEmptyKnob() {
        Slider slider;
        show(&slider);
        const QImage knob = knobPicture();
        slider.setBarLevel(30);
        QVERIFY(difference(picture(slider), drawn(slider, knob, 16, 0, QString())) <= 3);
        slider.addFreqLevel({1, 2});
        slider.setBarLevel(1);
        QVERIFY(difference(picture(slider), drawn(slider, knob, 16, 5, QStringLiteral("2"))) <= 3);
        slider.setBarLevel(2);
        QVERIFY(difference(picture(slider), drawn(slider, knob, 16, 11, QString())) <= 3);
    }

    void aNumberTooWideIsElidedInTheMiddle() {
        Slider slider;
        show(&slider);
        slider.addFreqLevel({-1234567});
        const QImage image = picture(slider);
        QVERIFY(difference(image, drawn(slider, knobPicture(), 16, 0, QStringLiteral("-1234567"))) <= 3);
    }

    void newPartsAreSeenAtOnce() {
        Slider slider;
        show(&slider);
        slider.setBarLevel(12);
        picture(slider);
        QImage small = knobPicture(QSize(30, 20));
        QImage *image = &small;
        slider.setImage(image);
        QVERIFY(difference(picture(slider), drawn(slider, small, 16, 67, QStringLiteral("0"))) <= 3);
        slider.setBarWidth(6);
        QVERIFY(difference(picture(slider), drawn(slider, small, 6, 67, QStringLiteral("0"))) <= 3);
        QFont font = slider.font();
        font.setItalic(true);
        slider.setFont(font);
        QVERIFY(difference(picture(slider), drawn(slider, small, 6, 67, QStringLiteral("0"))) <= 3);
        slider.resize(36, 120);
        QVERIFY(difference(picture(slider), drawn(slider, small, 6, 67, QStringLiteral("0"))) <= 3);
    }

    void whatTheOwnerDrawsIntoTheKnobIsPainted() {
        QImage knob = knobPicture();
        QImage *image = &knob;
        Slider slider;
        slider.setImage(image);
        show(&slider);
        for (int level : {12, 24}) {
            slider.setBarLevel(level);
            picture(slider);
        }
        QPainter(&knob).fillRect(6, 6, 24, 14, Qt::red);
        for (int level : {12, 24}) {
            slider.setBarLevel(level);
            const int point = reference::pageCenters[level];
            QVERIFY(difference(picture(slider), drawn(slider, knob, 16, point, QString::number(12 - level))) <= 3);
        }
        knob.setPixelColor(2, 2, Qt::green);
        QVERIFY(difference(picture(slider), drawn(slider, knob, 16, 137, QStringLiteral("-12"))) <= 3);
        knob = knobPicture(QSize(30, 20));  // an image of another size in the same place
        QVERIFY(difference(picture(slider), drawn(slider, knob, 16, 137, QStringLiteral("-12"))) <= 3);
    }

    void aBarTooShortForItsCornersIsDrawnAllTheSame() {
        Slider slider;
        slider.resize(36, 75);
        show(&slider);
        slider.setBarLevel(12);  // 8 px are left for the bar
        QVERIFY(difference(picture(slider), drawn(slider, knobPicture(), 16, 67, QStringLiteral("0"))) <= 3);
        slider.setBarLevel(20);  // none are left
        QVERIFY(difference(picture(slider), drawn(slider, knobPicture(), 16, 111, QString())) <= 3);
    }

    void worksWithoutAKnob() {
        SliderBarWidget slider(nullptr);
        slider.setGeometry(frame);
        show(&slider);
        QImage *none = nullptr;
        slider.setImage(none);
        slider.setBarLevel(1);
        finger::tap(&slider, QPoint(5, 50));
        QCOMPARE(slider.getLevel(), 13);
        QCOMPARE(qAlpha(picture(slider).pixel(4, 100)), 255);  // the bar, centred on the left edge
        QCOMPARE(qAlpha(picture(slider).pixel(12, 100)), 0);
    }

    void theKnobStaysItsOwners() {
        QImage *image = new QImage(knobPicture());
        {
            SliderBarWidget slider(nullptr);
            slider.setImage(image);
        }
        QCOMPARE(image->size(), QSize(36, 27));
        delete image;
    }
};

PAGE_TEST_MAIN(tst_SliderBarWidget)
#include "tst_sliderbarwidget.moc"
