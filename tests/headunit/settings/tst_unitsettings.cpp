// SPDX-License-Identifier: Apache-2.0
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
    void uselessFactoryFile_data();
    void uselessFactoryFile();
    void customCurveIsFlat_data();
    void customCurveIsFlat();
    void damagedStoreStartsFromTheFactory();
    void rootThatCannotBe();
    void mainVolumeIsLimitedAtPowerUp_data();
    void mainVolumeIsLimitedAtPowerUp();
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
    QCOMPARE(audioStore().intValue("eq4", 0), 12);
    QVERIFY(sharedStore().values().isEmpty());
    audioStore().set("a", 1);
    sharedStore().set("b", 2);
    QVERIFY(saved());
    QVERIFY(QFile::exists(inRoot("factory/audiosettings.ini")));
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

void tst_UnitSettings::uselessFactoryFile_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("zeros") << QByteArray(500, 0);
    QTest::newRow("no factory file") << QByteArray("eq0=0\nhello\n");
    QTest::newRow("folder") << QByteArray();
}

/// Said once and set aside; what the unit shipped with serves at this start, at the next and for a reset.
void tst_UnitSettings::uselessFactoryFile() {
    QFETCH(QByteArray, text);
    const QString path = inRoot("factory/audiosettings.ini");
    QVERIFY(QDir().mkpath(text.isNull() ? path : inRoot("factory")));
    if (!text.isNull()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }
    LogWatch log;
    const QStringList problems = openSettings();
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.first().contains(path + ".damaged-1"), qPrintable(problems.first()));
    QCOMPARE(log.takeWarnings(), problems);
    QCOMPARE(audioStore().values(), shippedFactoryValues());
    QVERIFY(QFileInfo::exists(path + ".damaged-1") && !QFileInfo::exists(path));
    const FactoryState reset = factoryState("/media/flash/nvm/factory/audiosettings.ini");
    QCOMPARE(reset.values, shippedFactoryValues());
    QCOMPARE(reset.problem, QString());  // said already
    closeSettings();
    QCOMPARE(openSettings(), QStringList());
    QCOMPARE(audioStore().values(), shippedFactoryValues());
    QCOMPARE(log.takeWarnings(), QStringList());
}

void tst_UnitSettings::customCurveIsFlat_data() {
    QTest::addColumn<QVariantMap>("stored");
    QTest::newRow("new unit") << QVariantMap();
    QTest::newRow("one band") << QVariantMap{{"eq3", 7}};
    QTest::newRow("other settings") << QVariantMap{{"subwooferLevel", 4}};
}

/// Neither store nor factory file need name the custom curve.
void tst_UnitSettings::customCurveIsFlat() {
    QFETCH(QVariantMap, stored);
    QVERIFY(QDir().mkpath(inRoot("factory")));
    QFile file(inRoot("factory/audiosettings.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("subwooferLevel=9\n") > 0);
    file.close();
    if (!stored.isEmpty()) {
        SettingsStore store;
        store.open(inRoot("settings/audiosettings.json"), SettingsMap());
        for (auto it = stored.cbegin(); it != stored.cend(); ++it) {
            store.set(it.key(), it.value());
        }
        QVERIFY(QTest::qWaitFor([&store] { return store.flush(); }, 60000));
    }
    QCOMPARE(openSettings(), QStringList());
    for (int band = 0; band < 13; ++band) {
        const QString key = QString("eq%1").arg(band);
        QCOMPARE(audioStore().intValue(key, 0), stored.value(key, 12).toInt());
        const FactoryState reset = factoryState("/media/flash/nvm/factory/audiosettings.ini");
        QCOMPARE(reset.values.value(key).toInt(), 12);
    }
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
    openSettings();
    audioStore().set("a", 1);
    sharedStore().set("b", 1);
    QVERIFY(!flushSettings());
    QCOMPARE(audioStore().intValue("a", 0), 1);
    // Three files cannot be written, for one reason.
    const QStringList warnings = log.takeWarnings();
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().contains(file.fileName()), qPrintable(warnings.first()));
}

void tst_UnitSettings::mainVolumeIsLimitedAtPowerUp_data() {
    QTest::addColumn<QByteArray>("factory");
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QVariant>("expected");
    const QByteArray limit = "powerup/mainlimit=25\n";
    QTest::newRow("louder") << limit << QVariant(26) << QVariant(25);
    QTest::newRow("loudest") << limit << QVariant(40) << QVariant(25);
    QTest::newRow("at the limit") << limit << QVariant(25) << QVariant(25);
    QTest::newRow("quieter") << limit << QVariant(3) << QVariant(3);
    QTest::newRow("never set") << limit << QVariant() << QVariant();
    QTest::newRow("no volume") << limit << QVariant(41) << QVariant(41);  // whose readers take their default
    QTest::newRow("default above the limit") << QByteArray("powerup/mainlimit=9\n") << QVariant() << QVariant(9);
    QTest::newRow("limit of nothing") << QByteArray("powerup/mainlimit=0\n") << QVariant(12) << QVariant(0);
    QTest::newRow("limit that is none") << QByteArray("powerup/mainlimit=-1\n") << QVariant(40) << QVariant(40);
    QTest::newRow("limit in words") << QByteArray("powerup/mainlimit=low\n") << QVariant(40) << QVariant(40);
    QTest::newRow("no limit") << QByteArray("a=1\n") << QVariant(40) << QVariant(40);
}

void tst_UnitSettings::mainVolumeIsLimitedAtPowerUp() {
    QFETCH(QByteArray, factory);
    QFETCH(QVariant, stored);
    QFETCH(QVariant, expected);
    QVERIFY(QDir().mkpath(inRoot("factory")));
    QFile file(inRoot("factory/audiosettings.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(factory) == factory.size());
    file.close();
    openSettings();
    audioStore().set("inputgain0", stored);
    audioStore().set("inputgain1", 40);
    QVERIFY(saved());
    closeSettings();
    openSettings();
    QCOMPARE(audioStore().values().value("inputgain0"), stored);  // a look into the settings changes nothing
    int told = 0;
    setSoundListener([&told](SoundPart) { ++told; });
    limitMainVolume();
    QCOMPARE(audioStore().values().value("inputgain0"), expected);
    QCOMPARE(told, stored == expected ? 0 : 1);
    QCOMPARE(audioStore().intValue("inputgain1", 0), 40);
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
