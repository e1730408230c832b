#include "headunit/settings/unitsettings.h"

#include "headunit/settings/soundlistener.h"
#include "headunit/settings/unitroot.h"
#include "logwatch.h"
#include "platform/settingscache.h"
#include "platform/settingsfunc.h"
#include "saved.h"

#include <QtTest>

using namespace headunit;

class tst_UnitSettings : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void resolves_data();
    void resolves();
    void defaultRoot();
    void firstStart();
    void factoryFileIsNotPutBack();
    void damagedStoreStartsFromTheFactory();
    void rootThatCannotBe();
    void soundFollowsTheOpening();
    void sharedSettings();
    void announcement();

private:
    QString inRoot(const QString &path) const { return m_folder->filePath("media/flash/nvm/" + path); }
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_UnitSettings::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    setUnitRoot(m_folder->path());
}

void tst_UnitSettings::cleanup() {
    setSoundListener({});
    closeSettings();
    setUnitRoot(QString());
}

void tst_UnitSettings::resolves_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("below");
    QTest::newRow("absolute") << "/media/flash/x.ini"
                              << "/media/flash/x.ini";
    QTest::newRow("relative") << "x.ini"
                              << "/x.ini";
    QTest::newRow("untidy") << "//media/./flash//a/../x.ini"
                            << "/media/flash/x.ini";
    QTest::newRow("never outside") << "/../../etc/passwd"
                                   << "/etc/passwd";
    QTest::newRow("nothing") << ""
                             << "/";
}

void tst_UnitSettings::resolves() {
    QFETCH(QString, path);
    QFETCH(QString, below);
    QCOMPARE(resolveUnitPath(path), m_folder->path() + below);
}

void tst_UnitSettings::defaultRoot() {
    setUnitRoot(QString());
    QVERIFY(unitRoot().startsWith(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    setUnitRoot("some/folder");
    QCOMPARE(unitRoot(), QDir::current().absoluteFilePath("some/folder"));
}

void tst_UnitSettings::firstStart() {
    QCOMPARE(openSettings(), QStringList());
    QVERIFY(QFile::exists(inRoot("factory/audiosettings.ini")));
    QCOMPARE(audioStore().intValue("eq4", 0), 12);
    QVERIFY(sharedStore().values().isEmpty());
    audioStore().set("a", 1);
    sharedStore().set("b", 2);
    QVERIFY(saved());
    QVERIFY(QFile::exists(inRoot("settings/audiosettings.json")));
    QVERIFY(QFile::exists(inRoot("settings/sharedsettings.json")));
    closeSettings();
    QVERIFY(audioStore().values().isEmpty());
    QCOMPARE(openSettings(), QStringList());
    QCOMPARE(audioStore().intValue("a", 0), 1);
    QCOMPARE(sharedStore().intValue("b", 0), 2);
}

void tst_UnitSettings::factoryFileIsNotPutBack() {
    openSettings();
    audioStore().set("a", 1);
    QVERIFY(saved());
    closeSettings();
    QVERIFY(QFile::remove(inRoot("factory/audiosettings.ini")));
    QCOMPARE(openSettings(), QStringList());  // nobody needs it until a reset
    QVERIFY(!QFile::exists(inRoot("factory/audiosettings.ini")));
    const FactoryState state = factoryState("/media/flash/nvm/factory/audiosettings.ini");
    QVERIFY2(state.problem.contains(inRoot("factory/audiosettings.ini")), qPrintable(state.problem));
}

void tst_UnitSettings::damagedStoreStartsFromTheFactory() {
    QVERIFY(QDir().mkpath(inRoot("settings")));
    QFile file(inRoot("settings/audiosettings.json"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{") == 1);
    file.close();
    QVERIFY(QDir().mkpath(inRoot("factory")));
    QFile factory(inRoot("factory/audiosettings.ini"));
    QVERIFY(factory.open(QIODevice::WriteOnly) && factory.write("subwooferLevel=9\n") > 0);
    factory.close();
    LogWatch log;
    const QStringList problems = openSettings();
    QCOMPARE(problems.size(), 1);
    QVERIFY(problems.first().contains(file.fileName()));
    QCOMPARE(log.takeWarnings(), problems);
    QCOMPARE(audioStore().intValue("subwooferLevel", 3), 9);
}

void tst_UnitSettings::rootThatCannotBe() {
    QFile file(m_folder->filePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    setUnitRoot(file.fileName());
    LogWatch log;
    QVERIFY(!openSettings().isEmpty());
    audioStore().set("a", 1);
    QVERIFY(!flushSettings());
    QCOMPARE(audioStore().intValue("a", 0), 1);
    QVERIFY(log.takeWarnings().join('\n').contains(file.fileName()));
}

void tst_UnitSettings::soundFollowsTheOpening() {
    QVector<SoundPart> parts;
    setSoundListener([&parts](SoundPart part) { parts << part; });
    openSettings();
    QCOMPARE(parts, QVector<SoundPart>{SoundPart::All});
}

void tst_UnitSettings::sharedSettings() {
    openSettings();
    mem::SettingsFunc *settings = mem::SettingsFunc::instance();
    QSignalSpy spy(mem::SettingsCache::instance(), SIGNAL(SettingsCacheSig(QString)));
    QCOMPARE(settings->getValue("SettingTouchPageType", 0), 0);
    settings->setValue("SettingTouchPageType", 0, 3, true);
    QCOMPARE(settings->getValue("SettingTouchPageType", 0), 3);
    QCOMPARE(spy.count(), 0);
    QVERIFY(audioStore().intValue("SettingTouchPageType", -1) == -1);
    QVERIFY(saved());
    closeSettings();
    openSettings();
    QCOMPARE(settings->getValue("SettingTouchPageType", 0), 3);
}

void tst_UnitSettings::announcement() {
    QSignalSpy spy(mem::SettingsCache::instance(), SIGNAL(SettingsCacheSig(QString)));
    Q_EMIT mem::SettingsCache::instance()->SettingsCacheSig("ADV_AUDIO_SETTINGS");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toString(), QString("ADV_AUDIO_SETTINGS"));
}

QTEST_GUILESS_MAIN(tst_UnitSettings)
#include "tst_unitsettings.moc"
