// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/chosenlanguage.h"

#include "headunit/toolkit/language.h"
#include "settingsfunc.h"

namespace headunit {

namespace {

// The language last chosen, as a number in the order of Language::all().
const QLatin1String languageKey("UnitLanguage");

}  // namespace

QString chosenLanguage() {
    const int number = mem::SettingsFunc::instance()->getValue(languageKey, 0);
    const QVector<Language::Name> &all = Language::all();
    return number >= 0 && number < all.size() ? all[number].code : Language::current();
}

void setChosenLanguage(const QString &code) {
    const QVector<Language::Name> &all = Language::all();
    for (int number = 0; number < all.size(); ++number) {
        if (all[number].code == code) {
            mem::SettingsFunc::instance()->setValue(languageKey, 0, number, true);
        }
    }
}

}  // namespace headunit
