// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/language.h"

#include "headunit/toolkit/texttables.h"

#include <QCoreApplication>

namespace headunit {

namespace {

/// Made when first asked for. It goes with the application, which must not keep a dangling translator.
TextTables &tables() {
    static TextTables *instance = nullptr;
    if (!instance) {
        instance = new TextTables(QStringLiteral(":/headunit/translations"));
        if (QCoreApplication::instance()) {
            QCoreApplication::installTranslator(instance);
        }
        qAddPostRoutine([] {
            delete instance;
            instance = nullptr;
        });
    }
    return *instance;
}

}  // namespace

const QVector<Language::Name> &Language::all() {
    static const QVector<Name> names = {
        {QStringLiteral("en"), QStringLiteral("English")},     {QStringLiteral("de"), QStringLiteral("Deutsch")},
        {QStringLiteral("fr"), QString::fromUtf8("Français")}, {QStringLiteral("es"), QString::fromUtf8("Español")},
        {QStringLiteral("ja"), QString::fromUtf8("日本語")},
    };
    return names;
}

bool Language::set(const QString &code) {
    if (code == current()) {
        return true;
    }
    for (const Name &name : all()) {
        if (name.code == code) {
            return tables().choose(code);
        }
    }
    return false;
}

QString Language::current() {
    return tables().code();
}

QString Language::text(int id) {
    return tables().text(id);
}

}  // namespace headunit
