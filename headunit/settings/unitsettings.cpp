// SPDX-License-Identifier: Apache-2.0
#include "unitsettings.h"

#include "audiokeys.h"
#include "damagedfile.h"
#include "settingswriter.h"
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
    std::unique_ptr<SettingsWriter> installer;  ///< of the first start, so that the screen does not wait for the disk
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

/// All of the unit's files, as one line says that they cannot be written.
SettingsWriter::FailingWriters failingWriters() {
    static const auto failing = std::make_shared<std::atomic<int>>(0);
    return failing;
}

/// Reads the factory file, and on the first start puts it there. Returns what went wrong, a line that is also in the
/// log. A file that cannot be used is set aside, so that this is said once.
QString openFactory(bool noSettings) {
    Factory &opened = factory();
    QString problem;
    if (noSettings && !pathExists(opened.path)) {
        opened.installer = std::make_unique<SettingsWriter>(
            opened.path, Snapshot(), 0,
            [path = opened.path](const Snapshot &, QString *reason) {
                *reason = pathExists(path) ? QString() : installFactoryFile(path);
                return reason->isEmpty();
            },
            std::make_shared<SaveClock>(), failingWriters());
        opened.installer->replaceAll(SettingsMap());
        opened.state.values = shippedFactoryValues();
        opened.state = withCustomCurve(opened.state);
        return problem;
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
    static SettingsStore store(std::make_shared<SaveClock>(), failingWriters());
    return store;
}

SettingsStore &sharedStore() {
    static SettingsStore store(std::make_shared<SaveClock>(), failingWriters());
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
    const bool installed = !factory().installer || factory().installer->flush(SettingsWriter::finishTimeMs);
    const bool audioSaved = audioStore().flush();
    return sharedStore().flush() && audioSaved && installed;
}

void closeSettings() {
    audioStore().close();
    sharedStore().close();
    factory() = Factory();
    *failingWriters() = 0;
}

FactoryState factoryState(const QString &unitPath) {
    const QString path = resolveUnitPath(unitPath);
    return path == factory().path ? factory().state : withCustomCurve(readFactoryFile(path));
}

}  // namespace headunit
