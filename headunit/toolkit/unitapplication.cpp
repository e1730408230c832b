// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/unitapplication.h"

#include "headunit/toolkit/headunitstyle.h"
#include "headunit/toolkit/language.h"
#include "headunit/toolkit/unitfolder.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QLocale>
#include <QPalette>

namespace headunit {

namespace {

const int defaultPointSize = 18;  // 24 pixels, the size of captions

QPalette unitPalette() {
    QPalette palette;
    const QPair<QPalette::ColorRole, QColor> roles[] = {
        {QPalette::Window, colour::background},
        {QPalette::Base, colour::surface},
        {QPalette::AlternateBase, colour::raised},
        {QPalette::Button, colour::raised},
        {QPalette::Light, colour::hairline},
        {QPalette::Midlight, colour::hairline},
        {QPalette::Mid, colour::surface},
        {QPalette::Dark, colour::background},
        {QPalette::Shadow, colour::background},
        {QPalette::WindowText, colour::text},
        {QPalette::Text, colour::text},
        {QPalette::ButtonText, colour::text},
        {QPalette::BrightText, colour::text},
        {QPalette::Highlight, colour::accent},
        {QPalette::HighlightedText, colour::background},
        {QPalette::Link, colour::accent},
    };
    for (const auto &role : roles) {
        palette.setColor(role.first, role.second);
    }
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, colour::disabledText);
    }
    return palette;
}

}  // namespace

void prepareUnitApplication() {
    const QString fontRoot = unitFolder() + QStringLiteral("/fontroot");
    if (QFile::exists(fontRoot + QStringLiteral(HEADUNIT_FONTS))) {
        qputenv("FONTCONFIG_SYSROOT", QFile::encodeName(fontRoot));
        qputenv("FONTCONFIG_FILE", "/fonts.conf");
    } else {
        qWarning("The unit's fonts are not in %s: texts are drawn in whatever the desk has", HEADUNIT_FONTS);
    }
    // The attribute covers fonts, the variable the widgets' own idea of their screen.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    qputenv("QT_FONT_DPI", "96");
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setDesktopSettingsAware(false);
    QLocale::setDefault(QLocale::c());
}

void setUpUnitApplication() {
    QApplication::setStyle(new HeadUnitStyle);
    QApplication::setPalette(unitPalette());
    QApplication::setFont(QFont(unitFontFamily(), defaultPointSize));
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    Language::current();  // installs the texts, so that forms are translated from the first one on
}

QString unitFontFamily() {
    return QStringLiteral("Roboto");
}

}  // namespace headunit
