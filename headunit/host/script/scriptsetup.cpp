// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/script/scriptsetup.h"

#include "headunit/desk/setups/soundjson.h"
#include "headunit/desk/setups/unitstate.h"
#include "headunit/settings/unitsettings.h"

#include <cmath>

namespace headunit {

namespace {

/// Numbers of scripts are real ones; settings are mostly whole.
QVariant asSetting(const QVariant &value) {
    const bool whole = value.userType() == QMetaType::Double && value.toDouble() == std::floor(value.toDouble());
    return whole ? QVariant(value.toInt()) : value;
}

/// The settings, and an invalid value for each key of \a present that is not among them.
SettingsMap instead(const SettingsMap &present, const QVariantMap &settings) {
    SettingsMap wanted;
    for (auto it = present.cbegin(); it != present.cend(); ++it) {
        wanted.insert(it.key(), QVariant());
    }
    for (auto it = settings.cbegin(); it != settings.cend(); ++it) {
        wanted.insert(it.key(), asSetting(it.value()));
    }
    return wanted;
}

}  // namespace

void restoreSetup(const QVariantMap &settings, const QVariantList &sound, const QVariantMap &shared,
                  const std::function<void()> &refreshFront) {
    const SettingsMap wanted = instead(sharedStore().values(), shared);
    for (auto it = wanted.cbegin(); it != wanted.cend(); ++it) {
        sharedStore().set(it.key(), it.value());
    }
    const SoundState state = soundFromJson(QJsonArray::fromVariantList(sound));
    putInForce(instead(audioStore().values(), settings), &state, refreshFront);
}

}  // namespace headunit
