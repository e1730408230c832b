// SPDX-License-Identifier: Apache-2.0
#include "app/plugin.h"

#include "app/mainwindow.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QPointer>

using audiosetting::Plugin;

/// The plug-in's entry points, as the plug-in loader finds them in the library.
extern "C" QObject *qt_plugin_instance();

class tst_Plugin : public PageTest {
    Q_OBJECT
private slots:
    void offersOneWindowAndNoSource() {
        Plugin plugin;
        QCOMPARE(plugin.windowInterfaceID(), QList<int>({33}));
        QCOMPARE(plugin.sourceInterfaceID(), QList<int>());
    }

    void createDoesNothing() {
        Plugin plugin;
        plugin.create();
        QVERIFY(plugin.children().isEmpty());
        QCOMPARE(recording::take(), QStringList());
    }

    void isFoundThroughItsInterface() {
        Plugin plugin;
        QObject *const object = &plugin;
        QCOMPARE(qobject_cast<AppPlugin *>(object), static_cast<AppPlugin *>(&plugin));
        QCOMPARE(object->metaObject()->className(), "audiosetting::Plugin");
        QCOMPARE(qobject_interface_iid<AppPlugin *>(), "com.norvale.Plugin.AppPlugin/1.0");
    }

    void createsItsWindowOnce() {
        Plugin plugin;
        WindowInterface *const window = plugin.requestWindowInterface(33);
        QVERIFY(window);
        QCOMPARE(plugin.requestWindowInterface(33), window);
        QCOMPARE(plugin.children().size(), 1);
        const auto object = qobject_cast<audiosetting::MainWindow *>(plugin.children().first());
        QVERIFY(object);
        QCOMPARE(static_cast<WindowInterface *>(object), window);
        // The host has not asked for its content yet.
        QVERIFY(!window->mainWidget());
        QCOMPARE(recording::take(), QStringList());
    }

    void knowsNoOtherWindow_data() {
        QTest::addColumn<int>("id");
        for (const int id : {0, 1, 32, 34, -33, 33 + 256, INT_MAX, INT_MIN}) {
            QTest::addRow("%d", id) << id;
        }
    }
    void knowsNoOtherWindow() {
        QFETCH(int, id);
        Plugin plugin;
        QVERIFY(!plugin.requestWindowInterface(id));
        QVERIFY(plugin.children().isEmpty());
        plugin.requestWindowInterface(33);
        QVERIFY(!plugin.requestWindowInterface(id));
    }

    void hasNoSource() {
        Plugin plugin;
        for (const int id : {0, 1, 33, -1}) {
            QVERIFY(!plugin.requestSourceInterface(id));
        }
        QVERIFY(plugin.children().isEmpty());
    }

    void ownsItsWindow() {
        const auto plugin = new Plugin;
        plugin->requestWindowInterface(33);
        const QPointer<QObject> window = plugin->children().first();
        delete plugin;
        QVERIFY(window.isNull());
    }

    void entryPointMakesOneRootObject() {
        QObject *const root = qt_plugin_instance();
        QVERIFY(qobject_cast<AppPlugin *>(root));
        QCOMPARE(qt_plugin_instance(), root);
        delete root;
        const QPointer<QObject> next = qt_plugin_instance();
        QVERIFY(next);
        delete next;
    }
};

PAGE_TEST_MAIN(tst_Plugin)
#include "tst_plugin.moc"
