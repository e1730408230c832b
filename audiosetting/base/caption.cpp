#include "caption.h"

#include <QLabel>

namespace audiosetting {

void setCaptionEnabled(QLabel *caption, bool enabled) {
    const QString sheet = enabled ? QStringLiteral("color: #FFF;") : QStringLiteral("color: #57575F;");
    // Setting a style sheet polishes the widget anew even when the text is the same.
    if (caption->styleSheet() != sheet) {
        caption->setStyleSheet(sheet);
    }
}

}  // namespace audiosetting
