// SPDX-License-Identifier: Apache-2.0
#include "look.h"

#include "colours.h"

#include <QPushButton>

namespace audiosetting {

void Look::colourTexts(QWidget *screens) {
    QPalette palette = screens->palette();
    const QPalette::ColorRole roles[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText};
    for (QPalette::ColorRole role : roles) {
        palette.setColor(QPalette::Active, role, QColor(textColour));
        palette.setColor(QPalette::Inactive, role, QColor(textColour));
        palette.setColor(QPalette::Disabled, role, QColor(disabledTextColour));
    }
    screens->setPalette(palette);
}

void Look::dressKeys(QWidget *screen) {
    const QList<QPushButton *> keys = screen->findChildren<QPushButton *>();
    for (QPushButton *key : keys) {
        key->setStyle(&m_keyStyle);
    }
}

}  // namespace audiosetting
