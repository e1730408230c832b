// SPDX-License-Identifier: Apache-2.0
#include "platform/audiosettingsutils.h"

#include "headunit/settings/soundlistener.h"
#include "headunit/settings/trace.h"
#include "headunit/settings/unitroot.h"
#include "headunit/settings/unitsettings.h"
#include "logwatch.h"
#include "platform/settingscache.h"
#include "saved.h"

#include <QtTest>

using namespace headunit;

namespace {

const QString factoryPath = QStringLiteral("/media/flash/nvm/factory/audiosettings.ini");

struct Default {
    const char *key;
    int value;
};
const Default crossoverDefaults[] = {{"crossover/frontfreq", 0},
                                     {"crossover/fronty", 0},
                                     {"crossover/frontheigh", 506},
                                     {"crossover/frontlevel", 12},
                                     {"crossover/frontslope", 1},
                                     {"crossover/rearfreq", 0},
                                     {"crossover/reary", 0},
                                     {"crossover/rearheigh", 506},
                                     {"crossover/rearlevel", 12},
                                     {"crossover/rearslope", 1},
                                     {"crossover/subwooferfreq", 0},
                                     {"crossover/subwoofery", 0},
                                     {"crossover/subwooferheigh", 506},
                                     {"crossover/subwooferlevel", 12},
                                     {"crossover/subwooferslope", 1}};

}  // namespace

class tst_AudioSettingsUtils : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init();
    void cleanup();
    void neverWritten();
    void writesAreSeenAtOnce();
    void writesRaiseNoSignal();
    void textThatIsNoNumber();
    void flatCrossover();
    void flatTimeDelay();
    void defeat();
    void clear();
    void clearWithoutFactoryFile_data();
    void clearWithoutFactoryFile();
    void clearFromAnotherFile();
    void traced();

private:
    void restart() {
        QVERIFY(saved());
        closeSettings();
        openSettings();
    }
    QString factoryFile() const { return resolveUnitPath(factoryPath); }
    void writeFactory(const QByteArray &text) const {
        QVERIFY(QDir().mkpath(QFileInfo(factoryFile()).path()));
        QFile file(factoryFile());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    AudioSettingsUtils *const m_settings = AudioSettingsUtils::instance();
    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_AudioSettingsUtils::init() {
    m_folder = std::make_unique<QTemporaryDir>();
    setUnitRoot(m_folder->path());
    openSettings();
}

void tst_AudioSettingsUtils::cleanup() {
    setSoundListener({});
    QVERIFY(saved());
    closeSettings();
}

void tst_AudioSettingsUtils::neverWritten() {
    QCOMPARE(m_settings->getValue("subwooferLevel", 3), 3);
    QCOMPARE(m_settings->getValue("subwooferLevel", -9), -9);
    QCOMPARE(m_settings->getValue("Setup_Sub", true), true);
    QCOMPARE(m_settings->getValue("Setup_Sub", false), false);
}

void tst_AudioSettingsUtils::writesAreSeenAtOnce() {
    m_settings->setValue("subwooferLevel", 3, 7, true);
    m_settings->setValue("Setup_Sub", 0, true, true);
    QCOMPARE(m_settings->getValue("subwooferLevel", 3), 7);
    QCOMPARE(m_settings->getValue("Setup_Sub", false), true);
    QCOMPARE(m_settings->getValue("Setup_Sub", 0), 1);
    restart();
    QCOMPARE(m_settings->getValue("subwooferLevel", 3), 7);
    QCOMPARE(m_settings->getValue("Setup_Sub", 0), 1);
    m_settings->setValue("subwooferLevel", 3, 3, true);  // the default, written, is a value like any other
    QCOMPARE(m_settings->getValue("subwooferLevel", 5), 3);
}

void tst_AudioSettingsUtils::writesRaiseNoSignal() {
    QSignalSpy announced(mem::SettingsCache::instance(), SIGNAL(SettingsCacheSig(QString)));
    QSignalSpy crossover(m_settings, SIGNAL(signal_flatCrossover()));
    QSignalSpy delay(m_settings, SIGNAL(signal_flatTimeDelay()));
    m_settings->setValue("crossover/frontfreq", 0, 3, true);
    m_settings->setValue("timing/DATA_TYPE0", 0, 3, true);
    m_settings->setValue("ADV_AUDIO_SETTINGS", 0, 1, true);
    m_settings->clear(factoryPath);
    QCOMPARE(announced.count() + crossover.count() + delay.count(), 0);
}

void tst_AudioSettingsUtils::textThatIsNoNumber() {
    m_settings->setValue("a", 0, "loud", true);
    QCOMPARE(m_settings->getValue("a", 5), 5);
    QCOMPARE(m_settings->getValue("a", true), true);
}

void tst_AudioSettingsUtils::flatCrossover() {
    for (const Default &entry : crossoverDefaults) {
        m_settings->setValue(entry.key, entry.value, entry.value + 2, true);
    }
    m_settings->setValue("crossover/type", 0, 2, true);
    m_settings->setValue("crossover/PRESET_FRONT_FREQ0", 0, 4, true);
    m_settings->setValue("crossover/PRESET_SWITCH0", false, true, true);
    m_settings->setValue("timing/DATA_TYPE0", 0, 9, true);
    QStringList order;
    setSoundListener([&](SoundPart part) {
        order << (part == SoundPart::Crossover ? "sound" : "other part");
        for (const Default &entry : crossoverDefaults) {
            QCOMPARE(m_settings->getValue(entry.key, -1), entry.value);
        }
    });
    const auto connection =
        connect(m_settings, &AudioSettingsUtils::signal_flatCrossover, this, [&order] { order << "signal"; });
    m_settings->flatCrossover();
    disconnect(connection);
    QCOMPARE(order, QStringList({"sound", "signal"}));
    QCOMPARE(m_settings->getValue("crossover/type", -1), 2);
    QCOMPARE(m_settings->getValue("crossover/PRESET_FRONT_FREQ0", -1), 4);
    QCOMPARE(m_settings->getValue("crossover/PRESET_SWITCH0", false), true);
    QCOMPARE(m_settings->getValue("timing/DATA_TYPE0", -1), 9);
    restart();
    for (const Default &entry : crossoverDefaults) {
        QCOMPARE(m_settings->getValue(entry.key, -1), entry.value);
    }
}

void tst_AudioSettingsUtils::flatTimeDelay() {
    for (int output = 0; output < 6; ++output) {
        m_settings->setValue(QString("timing/DATA_TYPE%1").arg(output), 0, output + 1, true);
    }
    m_settings->setValue("timing/type", 0, 1, true);
    m_settings->setValue("timing/PRESETS0_DATA1", 0, 5, true);
    m_settings->setValue("crossover/frontfreq", 0, 9, true);
    QStringList order;
    setSoundListener([&](SoundPart part) {
        order << (part == SoundPart::Delays ? "sound" : "other part");
        for (int output = 0; output < 6; ++output) {
            QCOMPARE(m_settings->getValue(QString("timing/DATA_TYPE%1").arg(output), -1), 0);
        }
    });
    const auto connection =
        connect(m_settings, &AudioSettingsUtils::signal_flatTimeDelay, this, [&order] { order << "signal"; });
    m_settings->flatTimeDelay();
    disconnect(connection);
    QCOMPARE(order, QStringList({"sound", "signal"}));
    QCOMPARE(m_settings->getValue("timing/type", -1), 1);
    QCOMPARE(m_settings->getValue("timing/PRESETS0_DATA1", -1), 5);
    QCOMPARE(m_settings->getValue("crossover/frontfreq", -1), 9);
}

void tst_AudioSettingsUtils::defeat() {
    QVector<SoundPart> parts;
    setSoundListener([&parts](SoundPart part) { parts << part; });
    m_settings->setValue("ADV_AUDIO_SETTINGS", 0, true, true);
    QCOMPARE(parts.size(), 0);
    m_settings->updateDefeatSetup();
    QCOMPARE(parts, QVector<SoundPart>{SoundPart::Defeat});
}

void tst_AudioSettingsUtils::clear() {
    restart();  // the unit's own factory file is there, and would come later otherwise
    writeFactory("subwooferLevel=6\n[crossover]\nrearfreq=2\n");
    restart();
    m_settings->setValue("subwooferLevel", 3, 12, true);
    m_settings->setValue("subwooferphase", 0, 1, true);
    m_settings->setValue("crossover/PRESET_SWITCH0", false, true, true);
    QVector<SoundPart> parts;
    setSoundListener([&](SoundPart part) {
        parts << part;
        QCOMPARE(m_settings->getValue("subwooferLevel", 3), 6);
    });
    LogWatch log;
    m_settings->clear(factoryPath);
    QCOMPARE(parts, QVector<SoundPart>{SoundPart::All});
    const auto check = [this] {
        QCOMPARE(m_settings->getValue("subwooferLevel", 3), 6);
        QCOMPARE(m_settings->getValue("crossover/rearfreq", 0), 2);
        QCOMPARE(m_settings->getValue("subwooferphase", 0), 0);
        QCOMPARE(m_settings->getValue("crossover/PRESET_SWITCH0", false), false);
    };
    check();
    setSoundListener({});
    restart();
    check();
    QCOMPARE(log.takeWarnings(), QStringList());
}

void tst_AudioSettingsUtils::clearWithoutFactoryFile_data() {
    QTest::addColumn<QString>("kind");
    for (const char *kind : {"missing", "folder", "huge", "binary"}) {
        QTest::newRow(kind) << QString(kind);
    }
}

void tst_AudioSettingsUtils::clearWithoutFactoryFile() {
    QFETCH(QString, kind);
    audioStore().set("kept", 1);  // not a first start, so no factory file is put there
    QVERIFY(saved());
    closeSettings();
    QVERIFY(QFile::remove(factoryFile()));
    QFile file(factoryFile());
    if (kind == "folder") {
        QVERIFY(QDir().mkpath(factoryFile()));
    } else if (kind == "huge") {
        QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(Q_INT64_C(1) << 33));
    } else if (kind == "binary") {
        writeFactory(QByteArray("eq0=1\n\x00\xff", 8));
    }
    file.close();
    LogWatch log;
    openSettings();
    m_settings->setValue("subwooferLevel", 3, 12, true);
    m_settings->clear(factoryPath);
    const QStringList warnings = log.takeWarnings();
    QCOMPARE(warnings.size(), 1);
    QVERIFY2(warnings.first().contains(factoryFile()), qPrintable(warnings.first()));
    QCOMPARE(audioStore().values(), shippedFactoryValues());
    QCOMPARE(m_settings->getValue("subwooferLevel", 3), 3);
    restart();
    QCOMPARE(m_settings->getValue("subwooferLevel", 3), 3);
    QCOMPARE(m_settings->getValue("kept", 0), 0);
}

void tst_AudioSettingsUtils::clearFromAnotherFile() {
    QFile file(resolveUnitPath("/other.ini"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("subwooferLevel=1\n") > 0);
    file.close();
    m_settings->clear("/other.ini");
    QCOMPARE(m_settings->getValue("subwooferLevel", 3), 1);
}

void tst_AudioSettingsUtils::traced() {
    QStringList lines;
    TraceListener listener([&lines](const TraceEntry &entry) { lines << entry.call + " -> " + entry.meaning; });
    const auto take = [&lines] {
        const QStringList taken = lines;
        lines.clear();
        return taken;
    };
    m_settings->setValue("subwooferLevel", 3, 4, true);
    QCOMPARE(take(), QStringList{"setValue(\"subwooferLevel\", 3, 4, true) -> store: subwooferLevel = 4"});
    m_settings->getValue("subwooferLevel", 3);
    QCOMPARE(take(), QStringList());
    listener.setReads(TraceListener::WithReads);
    m_settings->getValue("subwooferLevel", 3);
    m_settings->getValue("Setup_Sub", false);
    QCOMPARE(take(), QStringList({"getValue(\"subwooferLevel\", 3) -> store: subwooferLevel is 4",
                                  "getValue(\"Setup_Sub\", false) -> store: Setup_Sub is false"}));
    m_settings->flatTimeDelay();
    const QStringList flat = take();
    QCOMPARE(flat.size(), 7);
    QCOMPARE(flat.first(), QString("flatTimeDelay() -> all six delays 0 ms"));
    QCOMPARE(flat.last(), QString("timing/DATA_TYPE5 = 0 -> store: timing/DATA_TYPE5 = 0"));
    m_settings->flatCrossover();
    QCOMPARE(take().size(), 16);
    m_settings->updateDefeatSetup();
    m_settings->setValue("ADV_AUDIO_SETTINGS", 0, 1, true);
    m_settings->updateDefeatSetup();
    m_settings->clear(factoryPath);
    const QStringList cleared = take();
    QCOMPARE(cleared.mid(0, 4),
             QStringList({"updateDefeatSetup() -> Defeat off: sound processing in force",
                          "setValue(\"ADV_AUDIO_SETTINGS\", 0, 1, true) -> store: ADV_AUDIO_SETTINGS = 1",
                          "updateDefeatSetup() -> Defeat on: sound processing bypassed",
                          "clear(\"" + factoryPath + "\") -> all audio settings to the factory state"}));
    // Then each key that the reset changes: 2 that were set, 6 delays and 15 of the crossover that were made flat.
    QCOMPARE(cleared.size(), 4 + 2 + 6 + 15);
    QCOMPARE(cleared.at(4), QString("ADV_AUDIO_SETTINGS = its default -> store: ADV_AUDIO_SETTINGS = its default"));
}

QTEST_GUILESS_MAIN(tst_AudioSettingsUtils)
#include "tst_audiosettingsutils.moc"
