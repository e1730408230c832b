// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/stage.h"

#include "headunit/host/app/applicationguard.h"
#include "headunit/host/screens/fadingpicture.h"
#include "headunit/virtualtime/virtualtime.h"
#include "keyevent.h"
#include "windowinterface.h"

#include <QApplication>
#include <QPalette>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>

namespace {

QStringList g_calls;

/// Writes down what is called, and whether its widget was visible then.
class Window : public WindowInterface {
public:
    explicit Window(const QString &name) : m_name(name) {}

    void onCreate() override {
        note("onCreate");
        if (!m_widget && hasWidget) {
            m_widget = new QWidget;
        }
    }
    void onDestroy() override { note("onDestroy"); }
    void onShow() override { note("onShow"); }
    void onHide() override { note("onHide"); }
    void onEnter() override { note("onEnter"); }
    void onExit() override { note("onExit"); }
    int attribute() override { return 0; }
    int backEvent() override { return answer; }
    int keyEvent(KeyEvent *event) override {
        g_calls << QStringLiteral("%1 key %2").arg(m_name).arg(event->key());
        return answer;
    }
    QString name() override { return m_name; }
    QWidget *mainWidget() const override { return m_widget; }

    bool shows() const {
        const QWidget *const widget = m_widget.data();
        return widget && widget->isVisible();
    }

    QPointer<QWidget> m_widget;
    bool hasWidget = true;
    int answer = 0;

private:
    void note(const char *call) {
        g_calls << QStringLiteral("%1 %2%3").arg(m_name, QLatin1String(call),
                                                 shows() ? QStringLiteral(" shown") : QString());
    }

    const QString m_name;
};

}  // namespace

class TestStage : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void opens();
    void opensTheOneInFrontAgain();
    void leaves();
    void opensAgain();
    void changesOver();
    void fadesFromOneToTheOther();
    void opensWhatHasNoWidget();
    void offersKeysAndBack();
    void shutsDown();
    void survivesADeletedWidget();

private:
    QScopedPointer<QWidget> m_screen;
    QScopedPointer<headunit::ApplicationGuard> m_guard;
    QScopedPointer<headunit::Stage> m_stage;
    QScopedPointer<Window> m_a;
    QScopedPointer<Window> m_b;
};

void TestStage::init() {
    m_screen.reset(new QWidget);
    m_screen->resize(1024, 600);
    m_screen->show();
    m_guard.reset(new headunit::ApplicationGuard);
    m_stage.reset(new headunit::Stage(m_screen.data(), *m_guard));
    m_a.reset(new Window(QStringLiteral("a")));
    m_b.reset(new Window(QStringLiteral("b")));
    g_calls.clear();
}

void TestStage::cleanup() {
    m_stage.reset();
    m_screen.reset();
}

void TestStage::opens() {
    QSignalSpy changed(m_stage.data(), SIGNAL(frontChanged()));
    QVERIFY(m_stage->open(m_a.data()));
    QCOMPARE(g_calls, QStringList({"a onCreate", "a onShow", "a onEnter shown"}));
    QCOMPARE(m_stage->front(), m_a.data());
    QCOMPARE(m_a->m_widget->parentWidget(), m_screen.data());
    QCOMPARE(m_a->m_widget->geometry(), QRect(0, 0, 1024, 600));
    QCOMPARE(changed.count(), 1);
}

void TestStage::opensTheOneInFrontAgain() {
    m_stage->open(m_a.data());
    g_calls.clear();
    QVERIFY(m_stage->open(m_a.data()));
    QCOMPARE(g_calls, QStringList());
}

void TestStage::leaves() {
    m_stage->open(m_a.data());
    g_calls.clear();
    QSignalSpy changed(m_stage.data(), SIGNAL(frontChanged()));
    m_stage->leave();
    QCOMPARE(g_calls, QStringList({"a onExit shown", "a onHide"}));
    QVERIFY(!m_stage->front());
    QCOMPARE(changed.count(), 1);
    m_stage->leave();
    QCOMPARE(g_calls.size(), 2);
}

void TestStage::opensAgain() {
    m_stage->open(m_a.data());
    QWidget *const widget = m_a->m_widget;
    m_stage->leave();
    g_calls.clear();
    m_stage->open(m_a.data());
    QCOMPARE(g_calls, QStringList({"a onCreate", "a onShow", "a onEnter shown"}));
    QCOMPARE(m_a->m_widget.data(), widget);
    // Above whatever came onto the stage meanwhile.
    m_stage->leave();
    QWidget other(m_screen.data());
    other.setGeometry(m_screen->rect());
    other.show();
    m_stage->open(m_a.data());
    QCOMPARE(m_screen->childAt(10, 10), widget);
}

void TestStage::changesOver() {
    m_stage->open(m_a.data());
    g_calls.clear();
    m_stage->open(m_b.data());
    QCOMPARE(g_calls, QStringList({"a onExit shown", "a onHide", "b onCreate", "b onShow", "b onEnter shown"}));
    QCOMPARE(m_screen->childAt(10, 10), m_b->m_widget.data());
}

void TestStage::fadesFromOneToTheOther() {
    const auto dress = [](QWidget *widget, Qt::GlobalColor colour) {
        QPalette palette;
        palette.setColor(QPalette::Window, colour);
        widget->setPalette(palette);
        widget->setAutoFillBackground(true);
    };
    const auto middle = [this] { return m_screen->grab().toImage().pixelColor(512, 300); };
    headunit::VirtualTime *const time = headunit::VirtualTime::instance();
    m_stage->open(m_a.data());
    dress(m_a->m_widget, Qt::black);
    time->advance(headunit::Stage::fadeMilliseconds);
    QCOMPARE(middle(), QColor(Qt::black));
    m_stage->open(m_b.data());
    dress(m_b->m_widget, Qt::white);
    // At first what was there is still seen, but the new one has the input; then ever less of it.
    QCOMPARE(middle(), QColor(Qt::black));
    QCOMPARE(m_screen->childAt(512, 300), m_b->m_widget.data());
    time->advance(headunit::Stage::fadeMilliseconds / 2);
    QVERIFY2(qAbs(middle().red() - 128) <= 2, qPrintable(middle().name()));
    time->advance(headunit::Stage::fadeMilliseconds / 2);
    QCOMPARE(middle(), QColor(Qt::white));
    QCOMPARE(m_screen->findChildren<headunit::FadingPicture *>().size(), 0);
    // Leaving fades, too, over whatever is shown instead.
    m_stage->leave();
    QWidget other(m_screen.data());
    other.setGeometry(m_screen->rect());
    dress(&other, Qt::black);
    other.show();
    other.raise();
    m_stage->raiseFade();
    QCOMPARE(middle(), QColor(Qt::white));
    time->advance(headunit::Stage::fadeMilliseconds);
    QCOMPARE(middle(), QColor(Qt::black));
}

void TestStage::opensWhatHasNoWidget() {
    m_stage->open(m_a.data());
    m_b->hasWidget = false;
    QVERIFY(!m_stage->open(m_b.data()));
    QVERIFY(!m_stage->front());
    QVERIFY(!m_a->shows());
}

void TestStage::offersKeysAndBack() {
    KeyEvent event(QEvent::KeyPress, KeyEvent::VolumeUp);
    QVERIFY(!m_stage->offerKey(&event));
    QVERIFY(!m_stage->offerBack());
    m_stage->open(m_a.data());
    g_calls.clear();
    QVERIFY(!m_stage->offerKey(&event));
    QVERIFY(!m_stage->offerBack());
    m_a->answer = 1;
    QVERIFY(m_stage->offerKey(&event));
    QVERIFY(m_stage->offerBack());
    QCOMPARE(g_calls, QStringList({"a key 1", "a key 1"}));
}

void TestStage::shutsDown() {
    m_stage->open(m_a.data());
    m_stage->open(m_b.data());
    const QPointer<QWidget> widget = m_a->m_widget;
    g_calls.clear();
    m_stage->shutDown();
    QCOMPARE(g_calls, QStringList({"b onExit shown", "b onHide", "a onDestroy", "b onDestroy"}));
    QVERIFY(widget);
    m_stage->releaseWidgets();
    QVERIFY(!widget);
    m_stage->shutDown();
    QCOMPARE(g_calls.size(), 4);
}

void TestStage::survivesADeletedWidget() {
    m_stage->open(m_a.data());
    delete m_a->m_widget;
    g_calls.clear();
    m_stage->leave();
    QCOMPARE(g_calls, QStringList({"a onExit", "a onHide"}));
    QVERIFY(m_stage->open(m_a.data()));
    QVERIFY(m_a->shows());
    m_stage->shutDown();
    m_stage->releaseWidgets();
}

int main(int argc, char **argv) {
    new headunit::VirtualTime;  // Qt's from here on
    QApplication application(argc, argv);
    TestStage test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_stage.moc"
