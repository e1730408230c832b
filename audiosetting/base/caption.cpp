// SPDX-License-Identifier: Apache-2.0
#include "caption.h"

#include "colours.h"

#include <QLabel>

namespace audiosetting {

void setCaptionEnabled(QLabel *caption, bool enabled) {
    static const QString disabledSheet = QStringLiteral("color: %1;").arg(QColor(disabledTextColour).name().toUpper());
    const QString sheet = enabled ? QStringLiteral("color: #FFF;") : disabledSheet;
    // Setting a style sheet polishes the widget anew even when the text is the same.
    if (caption->styleSheet() != sheet) {
        caption->setStyleSheet(sheet);
    }
}

}  // namespace audiosetting
