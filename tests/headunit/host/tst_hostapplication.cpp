// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/hostapplication.h"

#include "touchevent.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

using headunit::HostApplication;

// The application object: the finger, and the events that applications post to it.
class TestHostApplication : public QObject {
    Q_OBJECT

    struct FollowingWidget : QWidget {
        using QWidget::QWidget;
        void mousePressEvent(QMouseEvent *) override { calls << QStringLiteral("press"); }
        void mouseMoveEvent(QMouseEvent *) override { calls << QStringLiteral("move"); }
        void mouseReleaseEvent(QMouseEvent *) override { calls << QStringLiteral("release"); }
        QStringList calls;
    };

    /// A page in a screen, as the window system sees them: all events go to the window.
    struct Screen {
        QWidget window;
        QWidget page{&window};
        QPushButton key{&page};
        FollowingWidget pad{&page};

        Screen() {
            window.resize(200, 100);
            page.resize(200, 100);
            key.setGeometry(0, 0, 80, 80);
            pad.setGeometry(100, 0, 80, 80);
            window.show();
        }
    };

private Q_SLOTS:
    void announcesTouches();
    void aKeyHeldWhileItsPageGoesDoesNotAct_data();
    void aKeyHeldWhileItsPageGoesDoesNotAct();
    void nothingFollowsTheFingerUnseen();
};

void TestHostApplication::announcesTouches() {
    QSignalSpy touched(qApp, SIGNAL(touched(int)));
    QCoreApplication::postEvent(qApp, new TouchEvent(Qx::TouchBack, -1, -1));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(touched.count(), 1);
    QCOMPARE(touched.first().first().toInt(), 15);
}

void TestHostApplication::aKeyHeldWhileItsPageGoesDoesNotAct_data() {
    QTest::addColumn<bool>("moves");
    QTest::addColumn<bool>("comesBack");
    QTest::newRow("still finger") << false << false;
    QTest::newRow("finger that moves") << true << false;
    QTest::newRow("page comes back under the finger") << false << true;
}

void TestHostApplication::aKeyHeldWhileItsPageGoesDoesNotAct() {
    QFETCH(bool, moves);
    QFETCH(bool, comesBack);
    Screen screen;
    QWindow *const window = screen.window.windowHandle();
    QSignalSpy clicked(&screen.key, SIGNAL(clicked()));
    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(40, 40));
    QVERIFY(screen.key.isDown());
    screen.page.hide();
    QVERIFY(!screen.key.isDown());
    if (moves) {
        QTest::mouseMove(window, QPoint(44, 40));
        QVERIFY(!screen.key.isDown());
    }
    if (comesBack) {
        screen.page.show();
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(44, 40));
    QCOMPARE(clicked.count(), 0);
    screen.page.show();
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(40, 40));
    QCOMPARE(clicked.count(), 1);
}

void TestHostApplication::nothingFollowsTheFingerUnseen() {
    Screen screen;
    QWindow *const window = screen.window.windowHandle();
    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(140, 40));
    QTest::mouseMove(window, QPoint(144, 40));
    QCOMPARE(screen.pad.calls, QStringList({"press", "move"}));
    screen.page.hide();
    QTest::mouseMove(window, QPoint(150, 40));
    // The release still comes: what counts a finger as down must learn that it is up.
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(150, 40));
    QCOMPARE(screen.pad.calls, QStringList({"press", "move", "release"}));
}

int main(int argc, char **argv) {
    HostApplication application(argc, argv);
    TestHostApplication test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_hostapplication.moc"
