// SPDX-License-Identifier: Apache-2.0
#include "general/balancefadercontrol.h"

#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QPainter>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

#include <cstdlib>

using settings::balanceFaderControl;

namespace {

/// The value of a finger \a distance pixels from the origin: a step each 6 px, the next one from 4 px on, at most 15.
int stepsOf(int distance) {
    const int steps = std::min((std::abs(distance) + 2) / 6, 15);
    return distance < 0 ? -steps : steps;
}

QPixmap picture(const char *name) {
    return QPixmap(QStringLiteral(":/corvina_icon/%1.png").arg(QLatin1String(name)));
}

/// How far two pictures differ at the worst place, in one colour channel.
int difference(const QImage &a, const QImage &b) {
    if (a.size() != b.size()) {
        return 255;
    }
    int worst = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            worst = std::max(
                {worst, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return worst;
}

}  // namespace

class tst_BalanceFaderControl : public PageTest {
    Q_OBJECT

    /// A pad on the screen whose owner does not answer.
    struct Pad : balanceFaderControl {
        QSignalSpy changed{this, SIGNAL(balanceFaderChanged(int, int))};
        QPoint origin;

        explicit Pad(const QRect &geometry = QRect(0, 0, 240, 240))
            : balanceFaderControl(nullptr, geometry), origin(geometry.width() / 2 + 2, geometry.height() / 2) {}

        QString values() const { return QStringLiteral("%1,%2").arg(getValueX()).arg(getValueY()); }
        QStringList announced() {
            QStringList list;
            for (const QList<QVariant> &arguments : qAsConst(changed)) {
                list << QStringLiteral("%1,%2").arg(arguments[0].toInt()).arg(arguments[1].toInt());
            }
            changed.clear();
            return list;
        }
        /// As it is on the screen.
        QImage image() { return grab().toImage().convertToFormat(QImage::Format_RGB32); }
    };

    /// The expected pad: the parts in their order, the places given.
    static QImage composed(const QSize &size, const QPoint &horizontal, const QPoint &vertical, const QPoint &marker) {
        QImage image(Pad(QRect(QPoint(), size)).image().size(), QImage::Format_RGB32);
        image.fill(QWidget().palette().window().color());
        QPainter painter(&image);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRect(QPoint(), size), picture("balancefader_bg"));
        painter.drawPixmap(horizontal, picture("setup_bg_Balance_line_1_n"));
        painter.drawPixmap(vertical, picture("setup_bg_Balance_line_2_n"));
        painter.drawPixmap(marker, picture("audiosettings_select"));
        return image;
    }

    static QPoint horizontalLine(const Pad &pad) {
        const QPixmap line = picture("setup_bg_Balance_line_1_n");
        return QPoint((pad.width() - line.width()) / 2, pad.origin.y() - line.height() / 2);
    }
    static QPoint verticalLine(const Pad &pad) {
        const QPixmap line = picture("setup_bg_Balance_line_2_n");
        return QPoint(pad.origin.x() - line.width() / 2, (pad.height() - line.height()) / 2);
    }
    static QPoint markerAround(const QPoint &center) {
        const QPixmap marker = picture("audiosettings_select");
        return center - QPoint(marker.width() / 2, marker.height() / 2);
    }

private slots:
    void picturesExist() {
        for (const char *name :
             {"balancefader_bg", "setup_bg_Balance_line_1_n", "setup_bg_Balance_line_2_n", "audiosettings_select"}) {
            QVERIFY2(!picture(name).isNull(), name);
        }
    }

    void startsAtZeroInItsPlace() {
        QWidget parent;
        balanceFaderControl pad(&parent, QRect(17, 23, 211, 199));
        QCOMPARE(pad.parentWidget(), &parent);
        QCOMPARE(pad.geometry(), QRect(17, 23, 211, 199));
        QCOMPARE(pad.getValueX(), 0);
        QCOMPARE(pad.getValueY(), 0);
        QVERIFY(qobject_cast<QLabel *>(&pad));
    }

    void examples_data() {
        QTest::addColumn<QPoint>("distance");
        QTest::addColumn<int>("x");
        QTest::addColumn<int>("y");
        QTest::newRow("3 right") << QPoint(3, 0) << 0 << 0;
        QTest::newRow("4 right") << QPoint(4, 0) << 1 << 0;
        QTest::newRow("3 left") << QPoint(-3, 0) << 0 << 0;
        QTest::newRow("4 left") << QPoint(-4, 0) << -1 << 0;
        QTest::newRow("9 right") << QPoint(9, 0) << 1 << 0;
        QTest::newRow("10 right") << QPoint(10, 0) << 2 << 0;
        QTest::newRow("4 up") << QPoint(0, -4) << 0 << 1;
        QTest::newRow("4 down") << QPoint(0, 4) << 0 << -1;
        QTest::newRow("10 down, 9 left") << QPoint(-9, 10) << -1 << -2;
        QTest::newRow("200 left") << QPoint(-200, 0) << -15 << 0;
        QTest::newRow("200 up") << QPoint(0, -200) << 0 << 15;
        QTest::newRow("200 right and down") << QPoint(200, 200) << 15 << -15;
        QTest::newRow("90 right is full scale") << QPoint(90, 0) << 15 << 0;
        QTest::newRow("87 right is not") << QPoint(87, 0) << 14 << 0;
        QTest::newRow("94 right would be 16") << QPoint(94, 0) << 15 << 0;
        QTest::newRow("94 left would be -16") << QPoint(-94, 0) << -15 << 0;
    }
    void examples() {
        QFETCH(QPoint, distance);
        QFETCH(int, x);
        QFETCH(int, y);
        Pad pad;
        pad.updateValue(pad.origin + distance);
        QCOMPARE(pad.getValueX(), x);
        QCOMPARE(pad.getValueY(), y);
        QCOMPARE(pad.announced(), QStringList());
    }

    void everyPixelOnBothAxes() {
        for (const QSize &size : {QSize(240, 240), QSize(201, 333), QSize(1, 1)}) {
            Pad pad(QRect(QPoint(), size));
            for (int d = -1200; d <= 1200; ++d) {
                pad.updateValue(pad.origin + QPoint(d, 0));
                QCOMPARE(pad.getValueX(), stepsOf(d));
                QCOMPARE(pad.getValueY(), 0);
                pad.updateValue(pad.origin + QPoint(0, d));
                QCOMPARE(pad.getValueX(), 0);
                QCOMPARE(pad.getValueY(), stepsOf(-d));
            }
        }
    }

    void pressBeepsAndAnnounces() {
        Pad pad;
        show(&pad);
        finger::press(&pad, pad.origin + QPoint(10, -4));
        QCOMPARE(recording::take(), QStringList("doBeep(0)"));
        QCOMPARE(pad.announced(), QStringList("2,1"));
        QCOMPARE(pad.values(), QStringLiteral("2,1"));
        finger::release(&pad, pad.origin + QPoint(10, -4));
    }

    void moveAnnouncesWithoutABeep() {
        Pad pad;
        show(&pad);
        finger::press(&pad, pad.origin);
        recording::clear();
        pad.announced();
        finger::move(&pad, pad.origin + QPoint(-60, 0));
        finger::move(&pad, pad.origin + QPoint(-61, 0));  // every move, also one that changes no value
        finger::move(&pad, pad.origin + QPoint(-120, 119));
        QCOMPARE(pad.announced(), QStringList({"-10,0", "-10,0", "-15,-15"}));
        QCOMPARE(recording::take(), QStringList());
        finger::release(&pad, pad.origin);
    }

    void releaseTakesTheValuesSilently() {
        Pad pad;
        show(&pad);
        finger::press(&pad, pad.origin);
        pad.announced();
        recording::clear();
        // The release itself carries the position; the finger's last move is not told to the pad.
        QMouseEvent release(QEvent::MouseButtonRelease, pad.origin + QPoint(30, -12), Qt::LeftButton, Qt::NoButton,
                            Qt::NoModifier);
        QCoreApplication::sendEvent(&pad, &release);
        QCOMPARE(pad.values(), QStringLiteral("5,2"));
        QCOMPARE(pad.announced(), QStringList());
        QCOMPARE(recording::take(), QStringList());
        finger::release(&pad, pad.origin);
    }

    void timeAnnouncesNothing() {
        Pad pad;
        show(&pad);
        finger::press(&pad, pad.origin);
        finger::move(&pad, pad.origin + QPoint(30, 30));
        pad.announced();
        recording::clear();
        advance(10000);
        finger::release(&pad, pad.origin + QPoint(30, 30));
        advance(10000);
        QCOMPARE(pad.announced(), QStringList());
        QCOMPARE(recording::take(), QStringList());
    }

    void dragTimerRunsWhileTheFingerMoves() {
        Pad pad;
        show(&pad);
        const QTimer *const timer = pad.findChild<QTimer *>();
        QVERIFY(timer && timer->isSingleShot());
        finger::press(&pad, pad.origin);
        QVERIFY(!timer->isActive());
        finger::move(&pad, pad.origin + QPoint(6, 0));
        QVERIFY(timer->isActive());
        advance(499);
        finger::move(&pad, pad.origin + QPoint(12, 0));
        advance(499);
        QVERIFY(timer->isActive());
        advance(1);
        QVERIFY(!timer->isActive());
        finger::move(&pad, pad.origin);
        finger::release(&pad, pad.origin);
        QVERIFY(!timer->isActive());
    }

    void touchDoesNotMoveTheMarker() {
        Pad pad;
        show(&pad);
        const QImage before = pad.image();
        finger::press(&pad, pad.origin + QPoint(60, 60));
        finger::move(&pad, pad.origin + QPoint(90, 30));
        finger::release(&pad, pad.origin + QPoint(90, 30));
        QCOMPARE(pad.image(), before);
        pad.updatePos();
        QVERIFY(pad.image() != before);
    }

    void accessorsNeitherClampNorPaint() {
        Pad pad;
        show(&pad);
        const QImage before = pad.image();
        pad.setValueX(99);
        pad.setValueY(-99);
        QCOMPARE(pad.values(), QStringLiteral("99,-99"));
        QCOMPARE(pad.image(), before);
        QCOMPARE(pad.announced(), QStringList());
    }

    void emptyOperationsDoNothing() {
        Pad pad;
        show(&pad);
        pad.setValueX(3);
        pad.setBalance(7, 8);
        pad.onUpdateBalance();
        QCOMPARE(pad.values(), QStringLiteral("3,0"));
        QCOMPARE(pad.announced(), QStringList());
        QCOMPARE(recording::take(), QStringList());
    }

    void paintsItsPartsInOrder_data() {
        QTest::addColumn<QSize>("size");
        QTest::newRow("square") << QSize(240, 240);
        QTest::newRow("odd") << QSize(301, 255);
    }
    void paintsItsPartsInOrder() {
        QFETCH(QSize, size);
        picturesExist();
        Pad pad(QRect(QPoint(), size));
        const QImage expected = composed(size, horizontalLine(pad), verticalLine(pad), markerAround(pad.origin));
        QVERIFY2(difference(pad.image(), expected) <= 2,
                 qPrintable(QString::number(difference(pad.image(), expected))));
    }

    void markerTravelsOneHundredPixels() {
        picturesExist();
        Pad pad;
        // A step is 100 / 15 px, cut off: 1 is 6 px, 2 is 13 px, 15 is 100 px.
        for (int value = -15; value <= 15; ++value) {
            const int travel = (value < 0 ? -1 : 1) * (100 * std::abs(value) / 15);
            pad.setValueX(value);
            pad.setValueY(-value);
            pad.updatePos();
            const QImage expected = composed(pad.size(), horizontalLine(pad), verticalLine(pad),
                                             markerAround(pad.origin + QPoint(travel, travel)));
            QVERIFY2(difference(pad.image(), expected) <= 2, qPrintable(QString::number(value)));
        }
        QCOMPARE(pad.announced(), QStringList());
    }

    void partsCanBePlacedByHand() {
        picturesExist();
        Pad pad;
        pad.setcircleX(11);
        pad.setcircleY(22);
        pad.setVlineX(33);
        pad.setHlineY(44);
        const QImage expected = composed(pad.size(), QPoint(horizontalLine(pad).x(), 44),
                                         QPoint(33, verticalLine(pad).y()), QPoint(11, 22));
        QVERIFY(difference(pad.image(), expected) <= 2);
    }

    // Partial repaints leave the same on the screen as a full one.
    void partialRepaintsLeaveNothingBehind() {
        Pad pad;
        show(&pad);
        for (int value = 0; value < 40; ++value) {
            pad.setValueX(value % 31 - 15);
            pad.setValueY(value * 7 % 31 - 15);
            pad.updatePos();
            advance(20);
        }
        // Not grab(), which would paint all of it anew.
        const QImage screen = pad.screen()->grabWindow(pad.winId()).toImage().convertToFormat(QImage::Format_RGB32);
        Pad fresh;
        fresh.setValueX(pad.getValueX());
        fresh.setValueY(pad.getValueY());
        fresh.updatePos();
        QCOMPARE(screen, fresh.image());
    }

    void absurdValuesDoNotOverflow() {
        Pad pad;
        show(&pad);
        for (const int value : {INT_MAX, INT_MIN, 1 << 24}) {
            pad.setValueX(value);
            pad.setValueY(value);
            pad.updatePos();
            pad.image();
        }
        pad.setValueX(0);
        pad.setValueY(0);
        pad.updatePos();
        QCOMPARE(pad.image(), Pad().image());
    }

    void signalsAndSlots() {
        QCOMPARE(methods(balanceFaderControl::staticMetaObject),
                 QStringList({"signal balanceFaderChanged(int,int)", "slot onUpdateBalance()"}));
        QCOMPARE(balanceFaderControl::staticMetaObject.className(), "settings::balanceFaderControl");
    }
};

PAGE_TEST_MAIN(tst_BalanceFaderControl)
#include "tst_balancefadercontrol.moc"
