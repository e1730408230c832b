// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/desktext.h"

#include "headunit/toolkit/language.h"

#include <QTranslator>

namespace headunit {

namespace {

/// One language at a time. Not installed in the application: the unit's own screens need not be told.
struct DeskTexts {
    QString code = QStringLiteral("en");
    QTranslator translator;
};

}  // namespace

QString deskText(const char *english) {
    static DeskTexts texts;
    if (texts.code != Language::current()) {
        texts.code = Language::current();
        const bool read = texts.translator.load(QStringLiteral(":/headunit/desk/desk_%1.qm").arg(texts.code));
        if (!read && texts.code != QLatin1String("en")) {
            qWarning("the desk has no texts in the language \"%s\"", qUtf8Printable(texts.code));
        }
    }
    const QString text = texts.code == QLatin1String("en") ? QString() : texts.translator.translate("desk", english);
    return text.isEmpty() ? QString::fromUtf8(english) : text;
}

}  // namespace headunit
