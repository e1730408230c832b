// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audioservice.h"
#include "audiosettingsutils.h"
#include "settingscache.h"

#include <QStringList>

namespace conformance {

/// The signals of the contract, in their order, since it was made.
class SignalLog : public QObject {
    Q_OBJECT
public:
    SignalLog() {
        connect(qvaudio::AudioService::instance(), SIGNAL(audioVolumeChanged(int, int, int)), this,
                SLOT(volume(int, int, int)));
        connect(AudioSettingsUtils::instance(), SIGNAL(signal_flatCrossover()), this, SLOT(flatCrossover()));
        connect(AudioSettingsUtils::instance(), SIGNAL(signal_flatTimeDelay()), this, SLOT(flatTimeDelay()));
        connect(mem::SettingsCache::instance(), SIGNAL(SettingsCacheSig(QString)), this, SLOT(setting(QString)));
    }

    QStringList lines;

private Q_SLOTS:
    void volume(int mute, int vol, int type) {
        lines << QStringLiteral("audioVolumeChanged(%1, %2, %3)").arg(mute).arg(vol).arg(type);
    }
    void flatCrossover() { lines << QStringLiteral("signal_flatCrossover()"); }
    void flatTimeDelay() { lines << QStringLiteral("signal_flatTimeDelay()"); }
    void setting(const QString &key) { lines << QStringLiteral("SettingsCacheSig(%1)").arg(key); }
};

}  // namespace conformance
