// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QString>

/// The unit's table of texts in the language in force. docs/porting.md lists the ids. A switch of language reaches the
/// widgets as QEvent::LanguageChange, and the texts of the forms through the application's QTranslator.
class PLATFORM_API Translator {
public:
    /// The text of that id, or an empty text where the table has none.
    static QString translate(int id);
};
