// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace headunit {

/// The code of the language that was chosen last, in any run of the unit.
QString chosenLanguage();
/// Keeps the choice for the next start. A code of no language is not kept.
void setChosenLanguage(const QString &code);

}  // namespace headunit
