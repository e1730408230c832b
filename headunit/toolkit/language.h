// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QString>
#include <QVector>

namespace headunit {

/// The language of the unit's screens. GUI thread only.
///
/// Texts come from headunit/translations/: texts with numbers (headunit_<code>.ts) and texts of forms
/// (forms_<code>.ts, whose source texts are English).
class PLATFORM_API Language {
public:
    struct Name {
        QString code;    ///< "de"
        QString native;  ///< "Deutsch"
    };

    /// All languages of the unit, in the order in which a driver is offered them.
    static const QVector<Name> &all();

    /// Switches to a language while running: every widget receives QEvent::LanguageChange. False, with nothing
    /// changed, where the unit does not have that language.
    static bool set(const QString &code);

    /// Code of the language in force; "en" until set.
    static QString current();

    /// The text of that id: in the language in force, else in English, else empty.
    static QString text(int id);
};

}  // namespace headunit
