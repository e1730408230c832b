// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/deskwindow.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/host/screens/hardkeys.h"
#include "headunit/toolkit/unitapplication.h"
#include "headunit/virtualtime/virtualtime.h"
#include "keyevent.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

class TestDeskWindow : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void geometry();
    void middleOfALargerWindow_data();
    void middleOfALargerWindow();
    void exposedOnce();
    void keyboard_data();
    void keyboard();
    void hardKeys_data();
    void hardKeys();
    void heldVolumeKeyRepeats();
    void keysClick();

private:
    QScopedPointer<headunit::DeskWindow> m_window;
};

void TestDeskWindow::init() {
    m_window.reset(new headunit::DeskWindow);
    m_window->show();
    headunit::VirtualTime::instance()->advance(0);
}

void TestDeskWindow::geometry() {
    QCOMPARE(m_window->screen()->geometry(), QRect(0, 0, 1024, 600));
    QCOMPARE(m_window->height(), 600);
    QVERIFY(!m_window->hardKeys()->geometry().intersects(m_window->screen()->geometry()));
    QVERIFY(m_window->rect().contains(m_window->hardKeys()->geometry()));
}

void TestDeskWindow::middleOfALargerWindow_data() {
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QPoint>("origin");
    QTest::newRow("larger") << QSize(1336, 800) << QPoint(100, 100);
    QTest::newRow("higher") << QSize(1136, 639) << QPoint(0, 19);
    // A picture that does not fit is cut off on the right and below.
    QTest::newRow("smaller") << QSize(1000, 500) << QPoint(0, 0);
}

void TestDeskWindow::middleOfALargerWindow() {
    QFETCH(QSize, size);
    QFETCH(QPoint, origin);
    headunit::DeskWindow window(headunit::DeskWindow::Size::Any);
    window.show();
    QCOMPARE(window.size(), QSize(1136, 600));
    window.resize(size);
    headunit::VirtualTime::instance()->advance(0);
    QCOMPARE(window.screen()->geometry(), QRect(origin, QSize(1024, 600)));
    QCOMPARE(window.hardKeys()->geometry(), QRect(origin + QPoint(1024, 0), QSize(112, 600)));
    QCOMPARE(window.findChild<QWidget *>("key_desk")->pos(), origin + QPoint(1024, 566));
    const QImage seen = window.grab().toImage();
    const QRgb bezel = qRgb(0x05, 0x06, 0x08);
    for (const QPoint &corner : {QPoint(0, 0), QPoint(size.width() - 1, size.height() - 1)}) {
        if (!QRect(origin, QSize(1136, 600)).contains(corner)) {
            QCOMPARE(seen.pixel(corner), bezel);
        }
    }
}

void TestDeskWindow::exposedOnce() {
    headunit::DeskWindow window;
    QSignalSpy exposed(&window, SIGNAL(exposed()));
    window.show();
    headunit::VirtualTime::instance()->advance(0);
    QCOMPARE(exposed.count(), 1);
    window.hide();
    window.show();
    headunit::VirtualTime::instance()->advance(0);
    window.update();
    headunit::VirtualTime::instance()->advance(0);
    QCOMPARE(exposed.count(), 1);
}

void TestDeskWindow::keyboard_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("code");
    QTest::newRow("plus") << int(Qt::Key_Plus) << int(KeyEvent::VolumeUp);
    QTest::newRow("volume up") << int(Qt::Key_VolumeUp) << int(KeyEvent::VolumeUp);
    QTest::newRow("minus") << int(Qt::Key_Minus) << int(KeyEvent::VolumeDown);
    QTest::newRow("volume down") << int(Qt::Key_VolumeDown) << int(KeyEvent::VolumeDown);
    QTest::newRow("m") << int(Qt::Key_M) << int(KeyEvent::Mute);
    QTest::newRow("mute") << int(Qt::Key_VolumeMute) << int(KeyEvent::Mute);
    QTest::newRow("escape") << int(Qt::Key_Escape) << int(KeyEvent::Back);
    QTest::newRow("home") << int(Qt::Key_Home) << int(KeyEvent::Home);
    QTest::newRow("another") << int(Qt::Key_A) << 0;
}

void TestDeskWindow::keyboard() {
    QFETCH(int, key);
    QFETCH(int, code);
    QSignalSpy pressed(m_window->hardKeys(), SIGNAL(keyPressed(int)));
    QSignalSpy released(m_window->hardKeys(), SIGNAL(keyReleased(int)));
    QTest::keyClick(m_window.data(), Qt::Key(key));
    QCOMPARE(pressed.count(), code ? 1 : 0);
    QCOMPARE(released.count(), code ? 1 : 0);
    if (code) {
        QCOMPARE(pressed.at(0).at(0).toInt(), code);
        QCOMPARE(released.at(0).at(0).toInt(), code);
    }
}

void TestDeskWindow::hardKeys_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::newRow("home") << "hardkey_home" << int(KeyEvent::Home);
    QTest::newRow("back") << "hardkey_back" << int(KeyEvent::Back);
    QTest::newRow("volume up") << "hardkey_volume_up" << int(KeyEvent::VolumeUp);
    QTest::newRow("volume down") << "hardkey_volume_down" << int(KeyEvent::VolumeDown);
    QTest::newRow("mute") << "hardkey_mute" << int(KeyEvent::Mute);
}

void TestDeskWindow::hardKeys() {
    QFETCH(QString, name);
    QFETCH(int, code);
    QSignalSpy pressed(m_window->hardKeys(), SIGNAL(keyPressed(int)));
    QSignalSpy released(m_window->hardKeys(), SIGNAL(keyReleased(int)));
    QWidget *const key = m_window->findChild<QWidget *>(name);
    QVERIFY(key);
    QVERIFY(key->width() >= 80 && key->height() >= 80);
    QTest::mousePress(key, Qt::LeftButton);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(pressed.at(0).at(0).toInt(), code);
    QCOMPARE(released.count(), 0);
    QTest::mouseRelease(key, Qt::LeftButton);
    QCOMPARE(pressed.count(), 1);
    QCOMPARE(released.count(), 1);
    QCOMPARE(released.at(0).at(0).toInt(), code);
}

void TestDeskWindow::heldVolumeKeyRepeats() {
    for (const char *name :
         {"hardkey_volume_up", "hardkey_volume_down", "hardkey_back", "hardkey_home", "hardkey_mute"}) {
        QSignalSpy pressed(m_window->hardKeys(), SIGNAL(keyPressed(int)));
        QWidget *const key = m_window->findChild<QWidget *>(QString::fromLatin1(name));
        QTest::mousePress(key, Qt::LeftButton);
        headunit::VirtualTime::instance()->advance(499);
        QCOMPARE(pressed.count(), 1);
        headunit::VirtualTime::instance()->advance(1 + 120);
        // At 500 ms, and 120 ms later.
        QCOMPARE(pressed.count(), QByteArray(name).contains("volume") ? 3 : 1);
        QTest::mouseRelease(key, Qt::LeftButton);
        headunit::VirtualTime::instance()->advance(1000);
        QCOMPARE(pressed.count(), QByteArray(name).contains("volume") ? 3 : 1);
    }
}

void TestDeskWindow::keysClick() {
    // One click at touch-down, before the key acts, and none for what repeats.
    QStringList order;
    connect(&headunit::SoundModel::instance(), &headunit::SoundModel::beeped, this, [&order] { order << "beep"; });
    connect(m_window->hardKeys(), &headunit::HardKeys::keyPressed, this, [&order] { order << "key"; });
    QWidget *const key = m_window->findChild<QWidget *>("hardkey_volume_up");
    QTest::mousePress(key, Qt::LeftButton);
    QCOMPARE(order, QStringList({"beep", "key"}));
    headunit::VirtualTime::instance()->advance(500);
    QTest::mouseRelease(key, Qt::LeftButton);
    QCOMPARE(order, QStringList({"beep", "key", "key"}));
}

int main(int argc, char **argv) {
    headunit::prepareUnitApplication();
    new headunit::VirtualTime;  // Qt's from here on
    QApplication application(argc, argv);
    headunit::setUpUnitApplication();
    TestDeskWindow test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_deskwindow.moc"
