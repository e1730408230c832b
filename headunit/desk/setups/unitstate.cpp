// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/unitstate.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/settings/audiokeys.h"
#include "headunit/settings/trace.h"
#include "headunit/settings/unitsettings.h"
#include "settingscache.h"

#include <QStringList>

namespace headunit {

UnitState currentState() {
    return {audioStore().values(), SoundModel::instance().state()};
}

void putInForce(const SettingsMap &keys, const SoundState *sound, const std::function<void()> &refreshFront) {
    SettingsStore &store = audioStore();
    QStringList names = keys.keys();
    names.sort();
    for (const QString &key : qAsConst(names)) {
        const QVariant before = store.values().value(key);
        const QVariant after = keys.value(key);
        if (sameValue(before, after)) {
            continue;
        }
        const QString text = after.isValid() ? traceValue(after) : QStringLiteral("its default");
        HEADUNIT_TRACE_KIND(Write, QStringLiteral("%1 = %2").arg(key, text),
                            QStringLiteral("store: %1 = %2").arg(key, text), key, before, after);
        store.set(key, after);
    }
    SoundModel &model = SoundModel::instance();
    model.restore();
    if (refreshFront) {
        refreshFront();
    }
    if (sound) {
        model.adopt(*sound);  // after the page, which may have sent what is stored
    }
    Q_EMIT mem::SettingsCache::instance()->SettingsCacheSig(QString::fromLatin1(keys::defeat.name));
}

}  // namespace headunit
