// SPDX-License-Identifier: Apache-2.0
// The store that applications share, and the announcement of changes.

#include "audiosettingsutils.h"
#include "check.h"
#include "settingsfunc.h"
#include "signallog.h"

using namespace conformance;

namespace {

const char request[] = "the request for Volume Settings from another application";

void set(const char *key, const QVariant &value) {
    mem::SettingsFunc::instance()->setValue(QLatin1String(key), 0, value, true);
}

int get(const char *key, int defaultValue) {
    return mem::SettingsFunc::instance()->getValue(QLatin1String(key), defaultValue);
}

}  // namespace

CHECK(sharedOneObject, "shared.one-object", "instance() is the same object at every call.", request) {
    expectTrue("the second call gives the object of the first",
               mem::SettingsFunc::instance() == mem::SettingsFunc::instance());
}

CHECK(sharedDefault, "shared.default",
      "A key that was never written, or holds no number, reads as the caller's default.", request) {
    expect("never written", 6, get("conformance/none", 6));
    set("conformance/text", QStringLiteral("three"));
    expect("a text", 6, get("conformance/text", 6));
}

CHECK(sharedReadAtOnce, "shared.read-at-once", "What was written is read back at once.", request) {
    set("SettingTouchPageType", 3);
    expect("after 3", 3, get("SettingTouchPageType", 0));
    set("SettingTouchPageType", 0);
    expect("after 0", 0, get("SettingTouchPageType", 5));
}

CHECK(sharedSilent, "shared.writes-are-silent", "Writing raises no signal: who writes for others raises it.", request) {
    SignalLog log;
    set("SettingTouchPageType", 3);
    pass(0);
    expect("signals", QStringList(), log.lines);
}

CHECK(sharedApart, "shared.apart", "The two stores have no key in common, and clear() leaves this one alone.",
      request) {
    set("conformance/a", 5);
    AudioSettingsUtils *const audio = AudioSettingsUtils::instance();
    expect("in the audio store", 1, audio->getValue(QStringLiteral("conformance/a"), 1));
    audio->setValue(QStringLiteral("conformance/b"), 0, 6, true);
    expect("of the audio store", 1, get("conformance/b", 1));
    audio->clear(QStringLiteral("/media/flash/nvm/factory/audiosettings.ini"));
    expect("after clear()", 5, get("conformance/a", 0));
}

RESTART_CHECK(sharedRestart, "shared.survives-restart", "The shared store keeps what was written over a restart.",
              request) {
    set("conformance/kept", 77);
}
AFTER_RESTART(sharedRestart) {
    expect("conformance/kept", 77, get("conformance/kept", 0));
}

CHECK(cacheReaches, "cache.reaches",
      "SettingsCacheSig() raised on the instance reaches who is connected, with its key.",
      "the tab bar under Defeat; a request for Volume Settings") {
    SignalLog log;
    QMetaObject::invokeMethod(mem::SettingsCache::instance(), "SettingsCacheSig",
                              Q_ARG(QString, QStringLiteral("ADV_AUDIO_SETTINGS")));
    pass(0);
    expect("signals", QStringList(QStringLiteral("SettingsCacheSig(ADV_AUDIO_SETTINGS)")), log.lines);
}
