// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace headunit {

/// The desk's texts, in the language of the unit. \a english is the text in English, and the key of the others
/// (headunit/desk/texts/desk_<code>.ts); a text without a translation is shown in English.
///
/// Written as deskText("Clear"), or DESK_TEXT("Clear") in a table, so that a test finds all of them.
QString deskText(const char *english);

}  // namespace headunit

/// Marks a text of a table that deskText() is given later.
#define DESK_TEXT(english) english
