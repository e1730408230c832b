// SPDX-License-Identifier: Apache-2.0
#include "platform/settingsfunc.h"

#include "trace.h"
#include "unitsettings.h"

namespace mem {

using headunit::traceCall;
using headunit::traceValue;

struct SettingsFunc::Private {
    headunit::SettingsStore &store = headunit::sharedStore();
};

SettingsFunc::SettingsFunc() : d(new Private) {}

SettingsFunc::~SettingsFunc() {
    delete d;
}

SettingsFunc *SettingsFunc::instance() {
    static SettingsFunc settings;
    return &settings;
}

int SettingsFunc::getValue(const QString &key, int defaultValue) {
    const int value = d->store.intValue(key, defaultValue);
    HEADUNIT_TRACE_READ(traceCall("SettingsFunc::getValue", {key, defaultValue}),
                        QStringLiteral("shared store: %1 is %2").arg(key).arg(value));
    return value;
}

void SettingsFunc::setValue(const QString &key, const QVariant &defaultValue, const QVariant &value, bool save) {
    HEADUNIT_TRACE_KIND(Write, traceCall("SettingsFunc::setValue", {key, defaultValue, value, save}),
                        QStringLiteral("shared store: %1 = %2").arg(key, traceValue(value)), key,
                        d->store.values().value(key), value);
    d->store.set(key, value);
}

}  // namespace mem
