// SPDX-License-Identifier: Apache-2.0
#include "platform/appplugin.h"
#include "platform/windowinterface.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QFile>
#include <QLabel>
#include <QPluginLoader>
#include <QPushButton>

/// The plug-in that was built against the recording platform's SDK, loaded and driven as a host does it.
class tst_Sdk : public PageTest {
    Q_OBJECT
private slots:
    // First, for Qt keeps a library in the process once it is loaded.
    void bringsItsPictures() {
        const QString picture = QStringLiteral(":/corvina_icon/settings_icn_back_n.png");
        QVERIFY(!QFile::exists(picture));
        QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
        QVERIFY(loader.load());
        QVERIFY(!QPixmap(picture).isNull());
    }

    void needsNoOtherHeadUnit() {
        QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
        QVERIFY2(loader.load(), qPrintable(loader.errorString()));
        QFile maps(QStringLiteral("/proc/self/maps"));
        QVERIFY(maps.open(QIODevice::ReadOnly));
        const QByteArray mapped = maps.readAll();
        QVERIFY(mapped.contains(PLUGIN_FILE));
        QVERIFY(mapped.contains(CONTRACT_LIBRARY));
        for (const char *library : {"libtopui", "libcommon", "libqvaudio", "libmcuservice"}) {
            QVERIFY2(!mapped.contains(library), library);
        }
    }

    void loadsAndWorks() {
        QPluginLoader loader(QStringLiteral(PLUGIN_FILE));
        const auto plugin = qobject_cast<AppPlugin *>(loader.instance());
        QVERIFY2(plugin, qPrintable(loader.errorString()));
        plugin->create();
        QCOMPARE(plugin->windowInterfaceID(), QList<int>({33}));
        WindowInterface *const window = plugin->requestWindowInterface(33);
        QVERIFY(window);

        window->onCreate();
        window->onShow();
        QCOMPARE(recording::take(), QStringList({"setMainWidget(audiosetting::MainWidget, 33)",
                                                 "BaseWindow::onCreate()", "sethide(true)", "BaseWindow::onShow()"}));
        QWidget *const widget = window->mainWidget();
        show(widget);
        CHILD(QLabel, title, widget, "Txt_title");
        CHILD(QPushButton, phase, widget, "key_Phase_180");
        QCOMPARE(title->text(), QStringLiteral("#1065"));
        finger::tap(phase);
        QCOMPARE(recording::take(),
                 QStringList({"doBeep(0)", "setValue(\"subwooferphase\", 0, 1, true)", "setSubwooferPhase(1)"}));
        CHILD(QPushButton, back, widget, "key_return");
        finger::tap(back);
        advance(0);
        QCOMPARE(recording::take(), QStringList({"doBeep(0)", "postTouch(15, -1, -1, 0)"}));

        delete widget;
        QVERIFY(!window->mainWidget());
        delete loader.instance();
    }
};

PAGE_TEST_MAIN(tst_Sdk)
#include "tst_sdk.moc"
