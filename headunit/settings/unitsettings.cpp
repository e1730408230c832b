#include "unitsettings.h"

#include "audiokeys.h"
#include "soundlistener.h"
#include "unitroot.h"

namespace headunit {

namespace {

const QString audioFile = QStringLiteral("/media/flash/nvm/settings/audiosettings.json");
const QString sharedFile = QStringLiteral("/media/flash/nvm/settings/sharedsettings.json");
const QString factoryFile = QStringLiteral("/media/flash/nvm/factory/audiosettings.ini");

struct Factory {
    QString path;  ///< on this machine
    FactoryState state;
};

Factory &factory() {
    static Factory instance;
    return instance;
}

}  // namespace

SettingsStore &audioStore() {
    static SettingsStore store;
    return store;
}

SettingsStore &sharedStore() {
    static SettingsStore store;
    return store;
}

QStringList openSettings() {
    const QString audioPath = resolveUnitPath(audioFile);
    factory().path = resolveUnitPath(factoryFile);
    const bool firstStart = !pathExists(audioPath) && !pathExists(factory().path);
    if (firstStart) {
        installFactoryFile(factory().path);
    }
    factory().state = readFactoryFile(factory().path);
    QStringList problems = {audioStore().open(audioPath, factory().state.values),
                            sharedStore().open(resolveUnitPath(sharedFile), SettingsMap())};
    problems.removeAll(QString());
    notifySound(SoundPart::All);
    return problems;
}

void limitMainVolume() {
    const int highest = keys::powerUpLimit.defaultValue;
    const int limit = toInt(factory().state.values.value(QString::fromLatin1(keys::powerUpLimit.name)), highest);
    const QString key = QString::fromLatin1(keys::channelLevel.name).arg(0);
    const int level = audioStore().intValue(key, keys::channelLevel.defaultValue);
    // What is no volume at all is left to its readers, who take their default.
    if (limit >= 0 && level > limit && level <= highest) {
        audioStore().set(key, limit);
        notifySound(SoundPart::All);
    }
}

bool flushSettings() {
    const bool audioSaved = audioStore().flush();
    return sharedStore().flush() && audioSaved;
}

void closeSettings() {
    audioStore().close();
    sharedStore().close();
    factory() = Factory();
}

FactoryState factoryState(const QString &unitPath) {
    const QString path = resolveUnitPath(unitPath);
    return path == factory().path ? factory().state : readFactoryFile(path);
}

}  // namespace headunit
