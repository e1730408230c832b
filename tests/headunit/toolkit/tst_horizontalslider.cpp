// SPDX-License-Identifier: Apache-2.0
#include "horizontalslider.h"
#include "unittest.h"

#include <QPainter>
#include <QPaintEvent>
#include <QPointer>
#include <QTemporaryDir>

namespace {

const QRect place(30, 20, 638, 72);
const int knobWidth = 40;
const int travel = 638 - knobWidth;

}  // namespace

/// The level slider. Its knob is 40 pixels wide here, so that 598 pixels are left for it to move.
class TestHorizontalSlider : public QObject {
    Q_OBJECT

    QTemporaryDir dir;
    QWidget *screen = nullptr;
    HorizontalSlider *slider = nullptr;
    QStringList log;

    QString picture(const QString &name, const QSize &size, const QColor &colour) {
        const QString path = dir.filePath(name);
        QPixmap pixmap(size);
        pixmap.fill(colour);
        if (!pixmap.save(path)) {
            qFatal("Cannot write %s", qPrintable(path));
        }
        return path;
    }

    HorizontalSlider *make(int min, int end) {
        auto *made = new HorizontalSlider(place, screen);
        made->setShowSlider(true);
        made->setFreqRange(min, end);
        made->addSliderImage(picture("knob.png", QSize(knobWidth, 60), Qt::red));
        made->setAddPage(picture("add.png", QSize(638, 16), Qt::green));
        made->setSubPage(picture("sub.png", QSize(638, 16), Qt::blue));
        connect(made, &HorizontalSlider::valueChanged, this,
                [this](int index, int value) { log << QString("%1 %2").arg(index).arg(value); });
        return made;
    }

    /// The drawn slider, with the knob painted over.
    QImage withoutNumber() {
        QImage image = slider->grab().toImage();
        QPainter painter(&image);
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                const QColor colour = image.pixelColor(x, y);
                if (colour != QColor(Qt::green) && colour != QColor(Qt::blue)) {
                    image.setPixelColor(x, y, Qt::red);
                }
            }
        }
        return image;
    }

    /// Dark pixels of the knob: what is written there.
    int ink() {
        const QImage image = slider->grab().toImage();
        int count = 0;
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 6; y < 66; ++y) {
                const QColor colour = image.pixelColor(x, y);
                count += colour.red() < 128 && colour.green() < 40 && colour.blue() < 40;
            }
        }
        return count;
    }

    static int centreOf(int index, int steps) { return knobWidth / 2 + qRound(double(index) * travel / steps); }

private slots:
    void init() {
        screen = new QWidget;
        screen->resize(800, 200);
        slider = make(0, 41);
        screen->show();
        log.clear();
    }

    void cleanup() { delete screen; }

    void geometryIsTheGivenOne() { QCOMPARE(slider->geometry(), place); }

    void everyValueHasItsPlace() {
        for (int value = 40; value >= 0; --value) {
            log.clear();
            finger::press(slider, QPoint(centreOf(value, 40), 36));
            QCOMPARE(slider->value(), value);
            QCOMPARE(log, QStringList(QString("%1 %1").arg(value)));
            finger::release(slider, QPoint(centreOf(value, 40), 36));
            QCOMPARE(log.size(), 1);
        }
    }

    void wholeWidgetTakesTheFinger_data() {
        QTest::addColumn<QPoint>("at");
        QTest::addColumn<int>("value");
        QTest::newRow("left edge") << QPoint(0, 36) << 0;
        QTest::newRow("right edge") << QPoint(637, 36) << 40;
        QTest::newRow("top") << QPoint(319, 0) << 20;
        QTest::newRow("bottom") << QPoint(319, 71) << 20;
        QTest::newRow("nearer below") << QPoint(20 + 7, 36) << 0;  // a step is 14.95 pixels
        QTest::newRow("nearer above") << QPoint(20 + 8, 36) << 1;
    }

    void wholeWidgetTakesTheFinger() {
        QFETCH(QPoint, at);
        QFETCH(int, value);
        slider->setCurrentLevel(13);
        finger::tap(slider, at);
        QCOMPARE(slider->value(), value);
    }

    void dragSignalsEachChangeOnce() {
        finger::press(slider, QPoint(centreOf(10, 40), 36));
        for (int x = centreOf(10, 40); x <= centreOf(14, 40); ++x) {
            finger::move(slider, QPoint(x, 36));
        }
        finger::release(slider, QPoint(centreOf(14, 40), 36));
        QCOMPARE(log, (QStringList{"10 10", "11 11", "12 12", "13 13", "14 14"}));
    }

    void dragBeyondTheEndsStays() {
        finger::press(slider, QPoint(centreOf(38, 40), 36));
        finger::move(slider, QPoint(900, 100));
        QCOMPARE(slider->value(), 40);
        finger::move(slider, QPoint(-300, -100));
        QCOMPARE(slider->value(), 0);
        finger::release(slider, QPoint(-300, -100));
        QCOMPARE(log, (QStringList{"38 38", "40 40", "0 0"}));
    }

    void setValueSignalsChangesOnly() {
        slider->setValue(16);
        slider->setValue(16);
        slider->setValue(0);
        QCOMPARE(log, (QStringList{"16 16", "0 0"}));
    }

    void firstValueIsZeroAndNoChange() {
        QCOMPARE(slider->value(), 0);
        slider->setValue(0);
        QCOMPARE(log, QStringList());
    }

    void setCurrentLevelIsSilent() {
        slider->setCurrentLevel(22);
        QCOMPARE(slider->value(), 22);
        slider->setValue(22);
        QCOMPARE(log, QStringList());
    }

    void negativeRangeCountsItsIndexFromTheLeft() {
        delete slider;
        slider = make(-10, 11);
        slider->show();
        slider->setValue(-10);
        slider->setValue(10);
        finger::tap(slider, QPoint(centreOf(10, 20), 36));
        QCOMPARE(log, (QStringList{"0 -10", "20 10", "10 0"}));
    }

    void valueOutsideIsKeptAndDrawnAtTheNearerEnd() {
        slider->setValue(40);
        const QImage atEnd = withoutNumber();
        slider->setValue(55);
        QCOMPARE(slider->value(), 55);
        QCOMPARE(log.last(), QString("40 55"));
        QCOMPARE(withoutNumber(), atEnd);
        slider->setValue(-3);
        QCOMPARE(slider->value(), -3);
        QCOMPARE(log.last(), QString("0 -3"));
        const QImage below = withoutNumber();
        slider->setValue(0);
        QCOMPARE(withoutNumber(), below);
        QVERIFY(below != atEnd);
    }

    void fingerOnAValueOutsideTakesTheEnd() {
        slider->setCurrentLevel(55);
        finger::tap(slider, QPoint(637, 36));
        QCOMPARE(log, QStringList("40 40"));
    }

    void moveStateIsTheFinger() {
        QVERIFY(!slider->getMoveState());
        bool during = false;
        connect(slider, &HorizontalSlider::valueChanged, this, [&] { during = slider->getMoveState(); });
        finger::press(slider, QPoint(300, 36));
        QVERIFY(slider->getMoveState());
        QVERIFY(during);
        finger::move(slider, QPoint(310, 36));
        QVERIFY(slider->getMoveState());
        finger::release(slider, QPoint(310, 36));
        QVERIFY(!slider->getMoveState());
        slider->setValue(3);
        QVERIFY(!during);
    }

    void moveStateEndsWithHiddenOrDisabledSlider() {
        finger::press(slider, QPoint(300, 36));
        slider->hide();
        QVERIFY(!slider->getMoveState());
        slider->show();
        finger::release(screen, QPoint(1, 1));
        finger::press(slider, QPoint(300, 36));
        slider->setEnabled(false);
        QVERIFY(!slider->getMoveState());
    }

    void deletedByItsOwnSignal() {
        connect(slider, &HorizontalSlider::valueChanged, this, [this] { delete slider; });
        const QPointer<HorizontalSlider> alive(slider);
        finger::press(slider, QPoint(300, 36));
        QVERIFY(!alive);
        finger::release(screen, QPoint(300, 36));
    }

    void drawsFillKnobAndRest() {
        slider->setValue(20);
        const QImage image = slider->grab().toImage();
        const int centre = centreOf(20, 40);
        QCOMPARE(image.pixelColor(centre, 10), QColor(Qt::red));
        QCOMPARE(image.pixelColor(centre - knobWidth / 2, 36), QColor(Qt::red));
        QCOMPARE(image.pixelColor(centre - knobWidth / 2 - 1, 36), QColor(Qt::green));
        QCOMPARE(image.pixelColor(centre + knobWidth / 2, 36), QColor(Qt::blue));
        QCOMPARE(image.pixelColor(2, 28), QColor(Qt::green));  // the track is centred: 28 to 43
        QVERIFY(image.pixelColor(2, 27) != QColor(Qt::green));
        QCOMPARE(image.pixelColor(635, 43), QColor(Qt::blue));
    }

    void withoutKnobTheFillCoversTheWholeWidth() {
        slider->setShowSlider(false);
        slider->setValue(40);
        QCOMPARE(slider->grab().toImage().pixelColor(637, 36), QColor(Qt::green));
        slider->setValue(0);
        QCOMPARE(slider->grab().toImage().pixelColor(0, 36), QColor(Qt::blue));
    }

    void trackPictureOfAnotherWidthKeepsItsEnds() {
        QPixmap ends(40, 16);
        ends.fill(Qt::green);
        {
            QPainter painter(&ends);
            painter.fillRect(0, 0, 8, 16, Qt::yellow);
            painter.fillRect(32, 0, 8, 16, Qt::cyan);
        }
        const QString path = dir.filePath("ends.png");
        QVERIFY(ends.save(path));
        slider->setAddPage(path);
        slider->setShowSlider(false);
        slider->setValue(40);
        const QImage image = slider->grab().toImage();
        QCOMPARE(image.pixelColor(7, 36), QColor(Qt::yellow));
        QCOMPARE(image.pixelColor(300, 36), QColor(Qt::green));
        QCOMPARE(image.pixelColor(631, 36), QColor(Qt::cyan));
    }

    void knobCarriesTheValue() {
        QHash<int, QImage> knobs;
        for (int value : {0, 1, 7, 10, 11, 40}) {
            slider->setValue(value);
            advance(0);
            QVERIFY2(ink() > 20, qPrintable(QString::number(value)));
            const QImage knob = slider->grab(QRect(centreOf(value, 40) - 20, 6, 40, 60)).toImage();
            for (const QImage &other : qAsConst(knobs)) {
                QVERIFY(knob != other);
            }
            knobs[value] = knob;
        }
        // Also under the finger, and a value that has no place of its own.
        finger::press(slider, QPoint(centreOf(7, 40), 36));
        QCOMPARE(slider->grab(QRect(centreOf(7, 40) - 20, 6, 40, 60)).toImage(), knobs[7]);
        finger::release(slider, QPoint(centreOf(7, 40), 36));
        slider->setCurrentLevel(41);
        QVERIFY(slider->grab(QRect(centreOf(40, 40) - 20, 6, 40, 60)).toImage() != knobs[40]);
    }

    void withoutKnobNoValue() {
        slider->setShowSlider(false);
        slider->setValue(20);
        const QImage image = slider->grab().toImage();
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, 36);
            QVERIFY(colour == QColor(Qt::green) || colour == QColor(Qt::blue));
        }
    }

    void rangeThatSpansZeroHasSigns() {
        slider->setValue(7);
        const int plain = ink();
        delete slider;
        slider = make(-10, 11);
        slider->show();
        slider->setValue(7);
        QVERIFY(ink() > plain);
        const int plus = ink();
        slider->setValue(-7);
        QVERIFY(ink() > plain);
        QVERIFY(ink() < plus);
    }

    void rangeThatSpansZeroFillsFromZero() {
        delete slider;
        slider = make(-10, 11);
        slider->show();
        const int zero = centreOf(10, 20);
        const auto colourAt = [this](int x) { return slider->grab().toImage().pixelColor(x, 36); };
        slider->setValue(5);
        QCOMPARE(colourAt(5), QColor(Qt::blue));
        QCOMPARE(colourAt(zero - 1), QColor(Qt::blue));
        QCOMPARE(colourAt(zero), QColor(Qt::green));
        QCOMPARE(colourAt(centreOf(15, 20) - knobWidth / 2 - 1), QColor(Qt::green));
        QCOMPARE(colourAt(centreOf(15, 20) + knobWidth / 2), QColor(Qt::blue));
        slider->setValue(-5);
        QCOMPARE(colourAt(5), QColor(Qt::blue));
        QCOMPARE(colourAt(centreOf(5, 20) + knobWidth / 2), QColor(Qt::green));
        QCOMPARE(colourAt(zero - 1), QColor(Qt::green));
        QCOMPARE(colourAt(zero), QColor(Qt::blue));
        slider->setValue(0);
        QCOMPARE(colourAt(zero - knobWidth / 2 - 1), QColor(Qt::blue));
        QCOMPARE(colourAt(zero + knobWidth / 2), QColor(Qt::blue));
    }

    void rangeOfNegativesFillsFromTheLeft() {
        delete slider;
        slider = make(-20, -9);
        slider->show();
        slider->setValue(-15);
        QCOMPARE(slider->grab().toImage().pixelColor(5, 36), QColor(Qt::green));
    }

    void zeroMarkIsSeenAtEveryValue() {
        delete slider;
        slider = make(-10, 11);
        slider->show();
        const int zero = centreOf(10, 20);
        QPixmap track(638, 72);
        track.fill(Qt::transparent);
        {
            QPainter painter(&track);
            painter.fillRect(0, 28, 638, 16, Qt::blue);
            painter.fillRect(zero - 2, 0, 4, 5, Qt::white);
            painter.fillRect(zero - 2, 67, 4, 5, Qt::white);
        }
        const QString path = dir.filePath("mark.png");
        QVERIFY(track.save(path));
        slider->setSubPage(path);
        for (int value : {-10, -3, -1, 0, 1, 4, 10}) {
            slider->setValue(value);
            const QImage image = slider->grab().toImage();
            for (int x = zero - 2; x < zero + 2; ++x) {
                QCOMPARE(image.pixelColor(x, 2), QColor(Qt::white));
                QCOMPARE(image.pixelColor(x, 70), QColor(Qt::white));
            }
        }
    }

    void stepRepaintsWhatItChangesOnly() {
        struct Watcher : public QObject {
            QRegion painted;
            bool eventFilter(QObject *, QEvent *event) override {
                if (event->type() == QEvent::Paint) {
                    painted |= static_cast<QPaintEvent *>(event)->region();
                }
                return false;
            }
        } watcher;
        slider->setValue(20);
        advance(0);
        slider->installEventFilter(&watcher);
        slider->setValue(21);
        advance(0);
        const QRect painted = watcher.painted.boundingRect();
        QVERIFY(painted.left() >= centreOf(20, 40) - knobWidth / 2 - 1);
        QVERIFY(painted.right() <= centreOf(21, 40) + knobWidth / 2 + 1);
        QVERIFY(painted.contains(QPoint(centreOf(20, 40) - knobWidth / 2, 36)));
        QVERIFY(painted.contains(QPoint(centreOf(21, 40) + knobWidth / 2 - 1, 36)));
        watcher.painted = QRegion();
        slider->setValue(21);
        advance(0);
        QVERIFY(watcher.painted.isEmpty());
    }

    void emptyRangeAndMissingPicturesAreHarmless() {
        HorizontalSlider bare(QRect(0, 0, 100, 20), nullptr);
        bare.setFreqRange(5, 5);
        bare.addSliderImage(":/no/such/picture.png");
        bare.show();
        finger::tap(&bare, QPoint(50, 10));
        QCOMPARE(bare.value(), 5);
        bare.setFreqRange(0, 2);
        bare.resize(0, 0);
        bare.grab();
    }
};

UNIT_TEST_MAIN(TestHorizontalSlider)
#include "tst_horizontalslider.moc"
