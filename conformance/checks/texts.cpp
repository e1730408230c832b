// SPDX-License-Identifier: Apache-2.0
// Texts and fonts.

#include "check.h"
#include "commsystemutils.h"
#include "finger.h"
#include "keys.h"
#include "translator.h"
#include "unit.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QLabel>

using namespace conformance;

namespace {

const char fonts[] = "captions: their size and whether they fit";

struct Screen {
    QWidget screen;
    QLabel caption{&screen};
    QLabel other{&screen};
    QWidget box{&screen};
    QLabel deeper{&box};

    Screen() {
        caption.setObjectName(QStringLiteral("Txt_title"));
        deeper.setObjectName(QStringLiteral("Txt_deeper"));
        other.setObjectName(QStringLiteral("label_Txt_x"));
        for (QLabel *label : {&caption, &other, &deeper}) {
            QFont font(QStringLiteral("no such family"), 36);
            font.setBold(true);
            label->setFont(font);
        }
    }
};

class LanguageWatch : public QWidget {
public:
    int changes = 0;

protected:
    void changeEvent(QEvent *event) override { changes += event->type() == QEvent::LanguageChange; }
};

}  // namespace

CHECK(textKnown, "text.known", "translate() has a text for each of the 39 ids that the application asks for.",
      "captions stay empty") {
    for (int id : textIds) {
        expectTrue(QStringLiteral("text %1").arg(id), !Translator::translate(id).isEmpty());
    }
}

CHECK(textEnglish, "text.apart", "Each id has a text of its own.", "captions say the wrong thing") {
    // Titles and rows that stand side by side.
    QStringList seen;
    for (int id : {1065, 1066, 1067, 1068, 1069, 1070, 1071, 1072, 1076, 262, 231, 361, 14, 15, 16}) {
        const QString text = Translator::translate(id);
        expectTrue(QStringLiteral("text %1, \"%2\", stands once").arg(id).arg(text), !seen.contains(text));
        seen << text;
    }
}

CHECK(textUnknown, "text.unknown", "An id that the table lacks has an empty text.", "the band-adjust panel's name") {
    for (int id : {0, -1, 987654}) {
        expect(QStringLiteral("text %1").arg(id), QString(), Translator::translate(id));
    }
}

CHECK(textLanguage, "text.language",
      "A switch of language changes the texts, and sends every widget one LanguageChange.",
      "captions stay in the old language") {
    const Unit &unit = *conformanceUnit();
    if (!unit.setLanguage || !unit.otherLanguage) {
        skip(QStringLiteral("the unit has no second language"));
        return;
    }
    unit.setLanguage("en");
    const QString english = Translator::translate(1070);
    LanguageWatch widget;
    show(&widget);
    widget.changes = 0;
    unit.setLanguage(unit.otherLanguage);
    pass(0);
    expectTrue(QStringLiteral("text 1070 is not \"%1\" any more").arg(english), Translator::translate(1070) != english);
    expect("LanguageChange", 1, widget.changes);
    unit.setLanguage("en");
    pass(0);
    expect("text 1070 in English again", english, Translator::translate(1070));
}

CHECK(textForms, "text.forms", "The texts of the forms are translated, too, through the application's translators.",
      "General, the settings root and others stay English") {
    const Unit &unit = *conformanceUnit();
    if (!unit.setLanguage || !unit.otherLanguage) {
        skip(QStringLiteral("the unit has no second language"));
        return;
    }
    unit.setLanguage(unit.otherLanguage);
    pass(0);
    const char *const forms[][2] = {{"Audiosetting_right_general_widget", "Advanced"},
                                    {"Audiosetting_right_timing_widget", "Front Left 1"}};
    for (const auto &form : forms) {
        const QString translated = QCoreApplication::translate(form[0], form[1]);
        expectTrue(QStringLiteral("\"%1\" of %2 has a translation").arg(QLatin1String(form[1]), QLatin1String(form[0])),
                   translated != QLatin1String(form[1]));
    }
}

CHECK(fontDefault, "font.default", "sync_default_font() gives the unit's family to children whose names begin so.",
      fonts) {
    Screen screen;
    CommSystemUtils::instance()->sync_default_font(&screen.screen, QStringLiteral("Txt_"));
    for (QLabel *label : {&screen.caption, &screen.deeper}) {
        expectTrue(label->objectName() + QStringLiteral(" has another family"),
                   label->font().family() != QStringLiteral("no such family"));
    }
    expect("the family of another child", QStringLiteral("no such family"), screen.other.font().family());
}

CHECK(fontSize, "font.default-keeps", "sync_default_font() keeps each child's size and weight.", fonts) {
    Screen screen;
    CommSystemUtils::instance()->sync_default_font(&screen.screen, QStringLiteral("Txt_"));
    expect("size", 36, screen.caption.font().pointSize());
    expect("bold", true, screen.caption.font().bold());
}

CHECK(fontCustom, "font.custom", "sync_custom_font() gives that font to children whose names begin so.", fonts) {
    Screen screen;
    QFont font(QApplication::font().family(), 22);
    CommSystemUtils::instance()->sync_custom_font(&screen.screen, font, QStringLiteral("Txt_"));
    expect("the caption's size", 22, screen.caption.font().pointSize());
    expect("the deeper one's size", 22, screen.deeper.font().pointSize());
    expect("another child's size", 36, screen.other.font().pointSize());
}

CHECK(fontDpi, "font.96-dpi", "The unit draws at 96 dots per inch: 18 pt are 24 px.", fonts) {
    QWidget screen;
    expect("logical dots per inch", 96, screen.logicalDpiY());
    expect("pixels of 18 pt", 24, QFontInfo(QFont(QApplication::font().family(), 18)).pixelSize());
}

CHECK(fontWidth, "font.fits", "The unit's family is narrow enough for the forms.", "EQ: the knobs read \"...\"") {
    // The tightest places of the screens, with the texts that stand there.
    const struct {
        const char *text;
        int points, room;
    } places[] = {{"-12", 16, 36}, {"6.3k", 16, 64}, {"Reset audio settings", 24, 420}};
    for (const auto &place : places) {
        QFont font = QApplication::font();
        font.setPointSize(place.points);
        const int width = QFontMetrics(font).width(QLatin1String(place.text));
        expectTrue(QStringLiteral("\"%1\" of %2 pt fits into %3 px (it takes %4)")
                       .arg(QLatin1String(place.text))
                       .arg(place.points)
                       .arg(place.room)
                       .arg(width),
                   width <= place.room);
    }
}

CHECK(fontBeforeSheet, "look.no-style-sheet", "The unit sets no style sheet for the whole application.",
      "every page: each widget's first showing becomes dearer, and the screens lose their look") {
    expect("style sheet", QString(), qApp->styleSheet());
}
