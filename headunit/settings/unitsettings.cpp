// SPDX-License-Identifier: Apache-2.0
#include "unitsettings.h"

#include "audiokeys.h"
#include "damagedfile.h"
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

/// A factory state that says nothing of the custom curve means a flat one. Its readers would take the lowest value
/// there is for it, -12 dB in all bands.
FactoryState withCustomCurve(FactoryState state) {
    for (int band = 0; band < keys::bands; ++band) {
        const QString key = QString::fromLatin1(keys::flatBand.name).arg(band);
        if (!state.values.contains(key)) {
            state.values.insert(key, keys::flatBand.defaultValue);
        }
    }
    return state;
}

/// Reads the factory file, and on the first start puts it there. Returns what went wrong, a line that is also in the
/// log. A file that cannot be used is set aside, so that this is said once.
QString openFactory(bool noSettings) {
    Factory &opened = factory();
    QString problem;
    if (noSettings && !pathExists(opened.path)) {
        problem = installFactoryFile(opened.path);
    }
    opened.state = withCustomCurve(readFactoryFile(opened.path));
    if (!opened.state.problem.isEmpty() && !opened.state.missing) {
        QString newName;
        QString reason;
        const bool aside = setDamagedFileAside(opened.path, &newName, &reason);
        problem = opened.state.problem + (aside ? QStringLiteral("; set aside as %1").arg(newName)
                                                : QStringLiteral("; cannot be set aside: %1").arg(reason));
        opened.state.problem.clear();  // a reset need not say it again
    }
    if (!problem.isEmpty()) {
        qWarning("%s", qUtf8Printable(problem));
    }
    return problem;
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
    QStringList problems = {openFactory(!pathExists(audioPath))};
    problems << audioStore().open(audioPath, factory().state.values);
    problems << sharedStore().open(resolveUnitPath(sharedFile), SettingsMap());
    problems.removeAll(QString());
    for (int band = 0; band < keys::bands; ++band) {
        const QString key = QString::fromLatin1(keys::flatBand.name).arg(band);
        if (!audioStore().values().contains(key)) {
            audioStore().set(key, keys::flatBand.defaultValue);  // whoever reads it
        }
    }
    notifySound(SoundPart::All);
    return problems;
}

void limitMainVolume() {
    const int highest = keys::powerUpLimit.defaultValue;
    const int limit = toInt(factory().state.values.value(QString::fromLatin1(keys::powerUpLimit.name)), highest);
    const QString key = QString::fromLatin1(keys::channelLevel.name).arg(0);
    const int level = audioStore().intValue(key, keys::channelLevel.defaultValue);
    // A value that is no volume at all is left to its readers, who take their default.
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
    return path == factory().path ? factory().state : withCustomCurve(readFactoryFile(path));
}

}  // namespace headunit
