// SPDX-License-Identifier: Apache-2.0
// A host of its own: links the shipped library, knows one header of it, and drives the panel with a finger on the
// real services of the reference head unit.

#include "eq/eqwidget.h"

#include "headunit/virtualtime/virtualtime.h"
#include "platform/audioservice.h"
#include "platform/touchevent.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using audiosetting::EQWidget;
using qvaudio::AudioService;

namespace {

headunit::VirtualTime *s_time = nullptr;

/// A screen with the panel below a status bar, closed on the back gesture.
class Host : public QWidget {
public:
    Host() {
        resize(1024, 600);
        qApp->installEventFilter(this);
        m_panel = new EQWidget(this);
        m_panel->move(0, 48);
        show();
        s_time->advance(0);
    }

    EQWidget *panel() const { return m_panel; }
    QString text(const char *label) const { return findChild<QLabel *>(QLatin1String(label))->text(); }

    void tap(const char *key) {
        QPushButton *const button = findChild<QPushButton *>(QLatin1String(key));
        touch(&QTest::mousePress, button->mapTo(this, button->rect().center()));
        touch(&QTest::mouseRelease, button->mapTo(this, button->rect().center()));
        s_time->advance(0);
    }
    void press(QPoint at) { touch(&QTest::mousePress, at); }
    void release(QPoint at) { touch(&QTest::mouseRelease, at); }
    void move(QPoint at) { QTest::mouseMove(windowHandle(), at); }

    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == qApp && event->type() == TouchEvent::eventType() &&
            static_cast<TouchEvent *>(event)->code() == Qx::TouchBack) {
            delete m_panel;
            m_panel = nullptr;
        }
        return false;
    }

private:
    typedef void (*Touch)(QWindow *, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int);
    void touch(Touch send, QPoint at) { send(windowHandle(), Qt::LeftButton, Qt::NoModifier, at, -1); }

    EQWidget *m_panel = nullptr;
};

/// A place on a band's slider, on the screen: \a y counts from the slider's top.
QPoint onBand(int band, int y) {
    return QPoint(94 * band + 38 + 30, 130 + 60 + y);
}

}  // namespace

class tst_EqWidgetHost : public QObject {
    Q_OBJECT
private slots:
    void init() {
        AudioService *const audio = AudioService::instance();
        audio->setEQType(AudioEQFlat, true);
        for (int band = 0; band < 13; ++band) {
            audio->setCustomEq(0, band, true);
        }
    }

    void dragsReachTheService() {
        Host host;
        for (int band = 0; band < 10; ++band) {
            host.press(onBand(band, 200));
            QCOMPARE(int(AudioService::instance()->getCurrEQType()), int(AudioEQCustom));
            for (int y = 200; y >= 60; y -= 10) {
                host.move(onBand(band, y));
                s_time->advance(3);
            }
            host.release(onBand(band, 60));
            QCOMPARE(AudioService::instance()->getCustomEq(band), 7);  // y 58 to 74 is level 5
            QCOMPARE(host.text(qPrintable(QStringLiteral("val_%1").arg(band))), QStringLiteral("+7"));
        }
        for (int band = 10; band < 13; ++band) {
            QCOMPARE(AudioService::instance()->getCustomEq(band), 0);
        }
    }

    void keysStepThroughTheCurves() {
        Host host;
        host.tap("key_left");
        QCOMPARE(int(AudioService::instance()->getCurrEQType()), 1);
        QCOMPARE(host.text("val_2"), QStringLiteral("+5"));
        host.tap("key_right");
        host.tap("key_right");
        QCOMPARE(int(AudioService::instance()->getCurrEQType()), 16);
        host.tap("key_reset");
        QCOMPARE(int(AudioService::instance()->getCurrEQType()), 0);
    }

    void theBackGestureClosesThePanel() {
        Host host;
        host.tap("key_back");
        QVERIFY(!host.panel());
    }

    void beyondTheTenthBandNothingIsTouched() {
        Host host;
        host.press(onBand(10, 100));
        host.release(onBand(10, 100));
        QCOMPARE(int(AudioService::instance()->getCurrEQType()), 0);
    }

    void itsSignalsMayBeQueued() {
        QVERIFY(qRegisterMetaType<SettingPageType>("SettingPageType") > 0);
        EQWidget panel;
        int page = -1;
        connect(
            &panel, &EQWidget::eqSignalShowPage, this, [&page](SettingPageType shown) { page = shown; },
            Qt::QueuedConnection);
        Q_EMIT panel.eqSignalShowPage(SettingPageFactoryEq);
        s_time->advance(0);
        QCOMPARE(page, 4);
    }
};

int main(int argc, char **argv) {
    s_time = new headunit::VirtualTime;  // Qt's from here on
    QApplication application(argc, argv);
    tst_EqWidgetHost test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_eqwidget_host.moc"
