// SPDX-License-Identifier: Apache-2.0
#include "appplugin.h"
#include "headunit/host/app/plugincatalog.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QTest>

using headunit::PluginCatalog;

namespace {

QString fixture(const char *name) {
    return QStringLiteral(FIXTURES "/%1.so").arg(QLatin1String(name));
}

}  // namespace

class TestPluginCatalog : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void loads();
    void refuses_data();
    void refuses();
    void goesOnAfterAFailure();
    void survivesATruncatedFile();
    void refusesTheSameTwice();
    void unloadDeletesTheApplication();
};

void TestPluginCatalog::loads() {
    PluginCatalog catalog;
    catalog.load(fixture("application"));
    QCOMPARE(catalog.failures(), QStringList());
    QCOMPARE(int(catalog.applications().size()), 1);
    const headunit::Application *application = catalog.find(QStringLiteral("audiosetting"));
    QVERIFY(application);
    QCOMPARE(application->id, QStringLiteral("audiosetting"));
    QCOMPARE(application->window, application->plugin->requestWindowInterface(headunit::applicationWindowId));
    QVERIFY(!catalog.find(QStringLiteral("other")));
    // Loading creates the application, and does not touch its window.
    QCOMPARE(application->root->property("calls").toStringList(), QStringList({QStringLiteral("create")}));
}

void TestPluginCatalog::refuses_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QStringLiteral("/nowhere/gone.so")
                             << QStringLiteral("gone.so: there is no such file (/nowhere/gone.so)");
    QTest::newRow("folder") << QStringLiteral(FIXTURES) << QStringLiteral("fixtures: is not a file");
    QTest::newRow("library without metadata")
        << QStringLiteral(FIXTURES "/../../lib/libcommon.so") << QStringLiteral("libcommon.so: is not a plug-in");
    QTest::newRow("wrong interface id")
        << fixture("wrongiid")
        << QStringLiteral(
               "wrongiid.so: is no application of this unit (interface id \"org.example.audiosettingPlugin\")");
    QTest::newRow("interface id without a name")
        << fixture("namelessiid")
        << QStringLiteral("namelessiid.so: is no application of this unit (interface id \"com.norvale.Qt.Plugin\")");
    QTest::newRow("no class") << fixture("noclass") << QStringLiteral("noclass.so: its metadata names no class");
    QTest::newRow("unresolved") << fixture("unresolved") << QStringLiteral("unresolved.so: cannot be loaded (");
    QTest::newRow("no application") << fixture("noapplication")
                                    << QStringLiteral("noapplication.so: offers no application interface (");
    QTest::newRow("no window 33") << fixture("wrongwindow") << QStringLiteral("wrongwindow.so: offers no window 33");
}

void TestPluginCatalog::refuses() {
    QFETCH(QString, file);
    QFETCH(QString, reason);
    PluginCatalog catalog;
    catalog.load(file);
    QCOMPARE(int(catalog.applications().size()), 0);
    QCOMPARE(catalog.failures().size(), 1);
    const QString failure = catalog.failures().first();
    if (reason.endsWith(QLatin1Char('('))) {
        // The loader's own reason follows.
        QVERIFY2(failure.startsWith(reason) && failure.size() > reason.size() + 1, qPrintable(failure));
    } else {
        QCOMPARE(failure, reason);
    }
}

void TestPluginCatalog::goesOnAfterAFailure() {
    QTemporaryDir folder;
    const QString textFile = folder.filePath(QStringLiteral("text.so"));
    QFile file(textFile);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("this is no library");
    file.close();
    const QString empty = folder.filePath(QStringLiteral("empty.so"));
    QFile emptyFile(empty);
    QVERIFY(emptyFile.open(QIODevice::WriteOnly));
    emptyFile.close();

    PluginCatalog catalog;
    catalog.load(textFile);
    catalog.load(fixture("application"));
    catalog.load(empty);
    catalog.load(fixture("second"));
    QCOMPARE(catalog.failures(),
             QStringList({QStringLiteral("text.so: is not a plug-in"), QStringLiteral("empty.so: is not a plug-in")}));
    QVERIFY(catalog.find(QStringLiteral("audiosetting")));
    QVERIFY(catalog.find(QStringLiteral("second")));
}

void TestPluginCatalog::survivesATruncatedFile() {
    QFile whole(fixture("application"));
    QVERIFY(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    QTemporaryDir folder;
    constexpr int cuts = 40;
    for (int i = 0; i < cuts; ++i) {
        const QString name = folder.filePath(QStringLiteral("cut%1.so").arg(i));
        QFile cut(name);
        QVERIFY(cut.open(QIODevice::WriteOnly));
        cut.write(bytes.left(bytes.size() * i / cuts));
        cut.close();
        PluginCatalog catalog;
        catalog.load(name);
        QCOMPARE(catalog.failures().size(), 1);
        QCOMPARE(int(catalog.applications().size()), 0);
    }
}

void TestPluginCatalog::refusesTheSameTwice() {
    PluginCatalog catalog;
    catalog.load(fixture("application"));
    catalog.load(fixture("application"));
    QCOMPARE(int(catalog.applications().size()), 1);
    QCOMPARE(catalog.failures(),
             QStringList({QStringLiteral("application.so: an application named audiosetting is loaded already")}));
}

void TestPluginCatalog::unloadDeletesTheApplication() {
    PluginCatalog catalog;
    catalog.load(fixture("application"));
    const QPointer<QObject> root = catalog.applications().front().root;
    QVERIFY(root);
    catalog.unload();
    QVERIFY(!root);
    QCOMPARE(int(catalog.applications().size()), 0);
}

QTEST_MAIN(TestPluginCatalog)
#include "tst_plugincatalog.moc"
