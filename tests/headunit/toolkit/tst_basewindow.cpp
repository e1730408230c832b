// SPDX-License-Identifier: Apache-2.0
#include "basewindow.h"
#include "headunit/settings/trace.h"
#include "keyevent.h"
#include "unittest.h"

#include <QPointer>
#include <QWidget>

class PlainWindow : public cm::BaseWindow {
    Q_OBJECT
public:
    bool empty() const { return m_flags.isEmpty() && m_texts.isEmpty() && m_values.isEmpty(); }
};

/// The base of application windows.
class TestBaseWindow : public QObject {
    Q_OBJECT

private slots:
    void answersOfAPlainWindow() {
        PlainWindow window;
        KeyEvent key(QEvent::KeyPress, KeyEvent::Home);
        QCOMPARE(window.attribute(), 0);
        QCOMPARE(window.backEvent(), 0);
        QCOMPARE(window.keyEvent(&key), 0);
        QCOMPARE(window.name(), QString("PlainWindow"));
        QVERIFY(!window.mainWidget());
        QVERIFY(window.empty());
    }

    void lifeCycleKeepsTheWidget() {
        PlainWindow window;
        QWidget widget;
        window.setMainWidget(&widget, 33);
        WindowInterface *interface = &window;
        interface->onCreate();
        interface->onShow();
        interface->onEnter();
        interface->onExit();
        interface->onHide();
        interface->onDestroy();
        QCOMPARE(interface->mainWidget(), &widget);
    }

    void anotherWidgetTakesItsPlace() {
        PlainWindow window;
        QWidget first;
        QWidget second;
        window.setMainWidget(&first, 33);
        window.setMainWidget(&second, 33);
        QCOMPARE(window.mainWidget(), &second);
        window.setMainWidget(nullptr, 33);
        QVERIFY(!window.mainWidget());
    }

    void deletedWidgetIsForgotten() {
        PlainWindow window;
        auto *widget = new QWidget;
        window.setMainWidget(widget, 33);
        delete widget;
        QVERIFY(!window.mainWidget());
    }

    void windowDoesNotOwnTheWidget() {
        QWidget widget;
        const QPointer<QWidget> alive(&widget);
        {
            PlainWindow window;
            window.setMainWidget(&widget, 33);
        }
        QVERIFY(alive);
    }

    void parentOwnsTheWindow() {
        auto *parent = new QObject;
        const QPointer<cm::BaseWindow> window(new cm::BaseWindow(parent));
        delete parent;
        QVERIFY(!window);
    }

    void handOverIsTraced() {
        QStringList calls;
        const headunit::TraceListener listener([&](const headunit::TraceEntry &entry) { calls << entry.call; });
        PlainWindow window;
        QWidget widget;
        window.setMainWidget(&widget, 33);
        window.setMainWidget(nullptr, 34);
        QCOMPARE(calls, (QStringList{"setMainWidget(QWidget, 33)", "setMainWidget(null, 34)"}));
    }
};

UNIT_TEST_MAIN(TestBaseWindow)
#include "tst_basewindow.moc"
