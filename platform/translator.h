#pragma once

#include "platformapi.h"

#include <QString>

/// The unit's table of texts in the language in force.
class PLATFORM_API Translator {
public:
    /// The text of that id, or an empty text where the table has none.
    static QString translate(int id);
};
