// SPDX-License-Identifier: Apache-2.0
#include "tests/audiosetting/forms/pages.h"
#include "tests/platform/pagetest.h"
#include "tests/platform/testmain.h"

#include <QAbstractButton>
#include <QDir>
#include <QLabel>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

/// A line of a form's table: name, class, geometry ("*": ours to choose, or set by the page) and properties. Among them
/// are all pictures that the widget names in the form, "state/on:picture"; "shows:" is what it shows where it names
/// none.
struct Row {
    QString name;
    QString type;
    QString geometry;
    QStringList properties;
};

struct Table {
    QList<Row> rows;
    bool ownGeometry = false;
};

constexpr int fingertip = 80;  // px, the least side of a key where the geometry is ours

const QDir forms(QStringLiteral(FORMS));

Table tableOf(const QString &form) {
    Table table;
    QFile file(QStringLiteral(TABLES "/%1.txt").arg(form));
    if (!file.open(QIODevice::ReadOnly)) {
        return table;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        QStringList words = line.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (words.isEmpty() || words.first().startsWith(QLatin1Char('#'))) {
            continue;
        }
        if (words.first() == QLatin1String("own-geometry")) {
            table.ownGeometry = true;
        } else {
            table.rows << Row{words.value(0), words.value(1), words.value(2), words.mid(3)};
        }
    }
    return table;
}

/// The contents of a form's file.
struct Form {
    QString formClass;
    QStringList names;  ///< of the widgets, the form's own first
    QStringList pictures;
    QHash<QString, QStringList> named;  ///< the pictures that each widget names, as its row has them
};

/// A picture as the tables name it.
QString shortName(const QString &file) {
    static const QRegularExpression own(QStringLiteral("^:/corvina_icon/(\\w+)\\.png$"));
    const auto match = own.match(file);
    return match.hasMatch() ? match.captured(1) : file;
}

/// Reads a property with the pictures that it names: states of an icon, a pixmap, a style sheet, a label button's.
QStringList readPictures(QXmlStreamReader &xml) {
    static const QRegularExpression state(QStringLiteral("^(normal|disabled|active|selected)(on|off)$"));
    static const QRegularExpression url(QStringLiteral("url\\((.*?)\\)"));
    const QString property = xml.attributes().value(QLatin1String("name")).toString();
    QStringList list;
    while (xml.readNextStartElement()) {
        const QString element = xml.name().toString();
        if (element == QLatin1String("iconset")) {
            while (!xml.isEndElement() || xml.name() != QLatin1String("iconset")) {
                const auto match = state.match(xml.name().toString());
                if (xml.isStartElement() && match.hasMatch()) {
                    list << QStringLiteral("%1/%2:%3")
                                .arg(match.captured(1), match.captured(2), shortName(xml.readElementText().trimmed()));
                }
                xml.readNext();
            }
        } else if (element == QLatin1String("pixmap")) {
            list << QStringLiteral("pixmap:") + shortName(xml.readElementText().trimmed());
        } else if (element == QLatin1String("string")) {
            const QString text = xml.readElementText();
            const auto match = url.match(text);
            if (match.hasMatch()) {
                list << QStringLiteral("style:") + shortName(match.captured(1));
            }
        } else if (element == QLatin1String("url") && xml.readNextStartElement()) {
            list << property + QLatin1Char(':') + xml.readElementText().trimmed();
            xml.skipCurrentElement();
        } else {
            xml.skipCurrentElement();
        }
    }
    return list;
}

bool isPicture(const QString &property) {
    static const QRegularExpression picture(
        QStringLiteral("^((normal|disabled|active|selected)/(on|off)|pixmap|style|bgPath\\w+):"));
    return picture.match(property).hasMatch();
}

Form readForm(const QString &form) {
    Form result;
    QFile file(forms.filePath(form + QStringLiteral(".ui")));
    if (!file.open(QIODevice::ReadOnly)) {
        return result;
    }
    const QByteArray bytes = file.readAll();
    QXmlStreamReader xml(bytes);
    QString widget;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("widget")) {
            widget = xml.attributes().value(QLatin1String("name")).toString();
            result.names << widget;
        } else if (xml.isStartElement() && xml.name() == QLatin1String("property")) {
            result.named[widget] << readPictures(xml);
        } else if (xml.isStartElement() && xml.name() == QLatin1String("class") && result.formClass.isEmpty()) {
            result.formClass = xml.readElementText();
        }
    }
    if (xml.hasError()) {
        result.formClass = xml.errorString();
    }
    static const QRegularExpression picture(QStringLiteral(":/[A-Za-z0-9_/@]+\\.png"));
    auto match = picture.globalMatch(QString::fromUtf8(bytes));
    while (match.hasNext()) {
        result.pictures << match.next().captured();
    }
    result.pictures.removeDuplicates();
    return result;
}

QString pictureFile(const QString &name) {
    return QStringLiteral(":/corvina_icon/%1.png").arg(name);
}

bool hasSomethingOnIt(const QString &file) {
    const QImage image = QImage(file).convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 0) {
                return true;
            }
        }
    }
    return false;
}

/// Whether a button shows the picture in the state named, "disabled/on".
bool showsPicture(const QAbstractButton *button, const QString &state, const QString &name) {
    static const QStringList modes{"normal", "disabled", "active", "selected"};
    const auto mode = static_cast<QIcon::Mode>(modes.indexOf(state.section(QLatin1Char('/'), 0, 0)));
    const QIcon::State on = state.endsWith(QLatin1String("/on")) ? QIcon::On : QIcon::Off;
    const QPixmap expected(pictureFile(name));
    return !expected.isNull() && button->icon().pixmap(expected.size(), mode, on).toImage() == expected.toImage();
}

/// The faults of a widget according to one property of its row; empty where nothing is.
QString wrongProperty(const QWidget *widget, const QString &property) {
    const QString key = property.section(QLatin1Char(':'), 0, 0);
    const QString value = property.section(QLatin1Char(':'), 1);
    const auto label = qobject_cast<const QLabel *>(widget);
    const auto button = qobject_cast<const QAbstractButton *>(widget);
    bool right = false;
    if (key == QLatin1String("text")) {
        const QString text = QString(value).replace(QLatin1Char('_'), QLatin1Char(' '));
        right = label ? label->text() == text : button && button->text() == text;
    } else if (key == QLatin1String("points")) {
        right = widget->font().pointSize() == value.toInt();
    } else if (key == QLatin1String("center")) {
        right = label && label->alignment() == Qt::AlignCenter;
    } else if (key == QLatin1String("through")) {
        right = widget->testAttribute(Qt::WA_TransparentForMouseEvents);
    } else if (key == QLatin1String("checkable")) {
        right = button && button->isCheckable();
    } else if (key == QLatin1String("ltr")) {
        right = widget->layoutDirection() == Qt::LeftToRight && widget->testAttribute(Qt::WA_SetLayoutDirection);
    } else if (key == QLatin1String("shows")) {
        right =
            button && showsPicture(button, value.section(QLatin1Char(':'), 0, 0), value.section(QLatin1Char(':'), 1));
    } else if (key.contains(QLatin1Char('/'))) {
        right = button && showsPicture(button, key, value);
    } else if (isPicture(property)) {
        right = true;  // compared with the form itself
    }
    return right ? QString() : property;
}

}  // namespace

/// Walks every form of forms/: the file itself, its table, and the page that is built of it.
class tst_Forms : public PageTest {
    Q_OBJECT

    static void addForms() {
        QTest::addColumn<QString>("form");
        const QStringList files = forms.entryList({"*.ui"}, QDir::Files);
        QVERIFY(files.size() >= 5);
        for (const QString &file : files) {
            const QString form = file.chopped(3);
            QTest::newRow(qPrintable(form)) << form;
        }
    }

private slots:
    void fileIsSound_data() { addForms(); }
    void fileIsSound() {
        QFETCH(QString, form);
        const Form file = readForm(form);
        QCOMPARE(file.formClass, form);
        QCOMPARE(file.names.first(), form);
        QStringList unique = file.names;
        unique.removeDuplicates();
        QCOMPARE(file.names, unique);
        for (const QString &picture : file.pictures) {
            QVERIFY2(hasSomethingOnIt(picture), qPrintable(picture));
        }
    }

    void tableNamesEveryWidget_data() { addForms(); }
    void tableNamesEveryWidget() {
        QFETCH(QString, form);
        QStringList inTable;
        const Table table = tableOf(form);
        for (const Row &row : table.rows) {
            inTable << row.name;
        }
        QStringList inFile = readForm(form).names.mid(1);
        inTable.sort();
        inFile.sort();
        QCOMPARE(inFile, inTable);
    }

    void everyWidgetNamesThePicturesOfItsRow_data() { addForms(); }
    void everyWidgetNamesThePicturesOfItsRow() {
        QFETCH(QString, form);
        const Form file = readForm(form);
        const Table table = tableOf(form);
        QVERIFY2(!table.rows.isEmpty(), "no table for this form");
        QStringList wrong;
        for (const Row &row : table.rows) {
            QStringList expected;
            for (const QString &property : row.properties) {
                if (isPicture(property)) {
                    expected << property;
                }
            }
            QStringList named = file.named.value(row.name);
            expected.sort();
            named.sort();
            if (named != expected) {
                wrong << QStringLiteral("%1 names %2, not %3")
                             .arg(row.name, named.join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
            }
        }
        QCOMPARE(wrong, QStringList());
    }

    void widget_data() {
        QTest::addColumn<QString>("form");
        QTest::addColumn<int>("index");
        const QStringList files = forms.entryList({"*.ui"}, QDir::Files);
        for (const QString &file : files) {
            const QString form = file.chopped(3);
            const Table table = tableOf(form);
            for (int i = 0; i < table.rows.size(); ++i) {
                QTest::newRow(qPrintable(form + QLatin1Char('/') + table.rows[i].name)) << form << i;
            }
        }
    }
    void widget() {
        QFETCH(QString, form);
        QFETCH(int, index);
        const Row row = tableOf(form).rows.at(index);
        const auto page = pageOf(form);
        QVERIFY(page);
        const QWidget *const widget = page->findChild<QWidget *>(row.name);
        QVERIFY(widget);
        QVERIFY2(widget->inherits(row.type.toLatin1()), widget->metaObject()->className());
        if (row.geometry != QLatin1String("*")) {
            const QRect g = widget->geometry();
            QCOMPARE(QStringLiteral("%1,%2,%3,%4").arg(g.x()).arg(g.y()).arg(g.width()).arg(g.height()), row.geometry);
        }
        QStringList wrong;
        for (const QString &property : row.properties) {
            wrong << wrongProperty(widget, property);
        }
        wrong.removeAll(QString());
        QCOMPARE(wrong, QStringList());
    }

    // Whatever lies over a key lets touches through, keys lie apart, and none leaves the page.
    void everyKeyCanBeTouched_data() { addForms(); }
    void everyKeyCanBeTouched() {
        QFETCH(QString, form);
        QWidget window;
        const auto page = pageOf(form);
        QVERIFY2(page, "tests/forms/pages.cpp has no line for this form");
        page->setParent(&window);
        page->show();
        window.resize(page->size());
        show(&window);
        const bool ownGeometry = tableOf(form).ownGeometry;
        QRegion taken;
        QStringList wrong;
        const QList<QAbstractButton *> keys = page->findChildren<QAbstractButton *>();
        for (QAbstractButton *key : keys) {
            const QRect place(key->mapTo(page.get(), QPoint()), key->size());
            if (!key->isVisible() || !page->rect().contains(place) || key->visibleRegion().isEmpty()) {
                continue;  // out of sight: scrolled away, or a part of another widget
            }
            QWidget *const touched = page->childAt(place.center());
            if (touched != key) {
                wrong << QStringLiteral("%1 is covered by %2").arg(key->objectName(), touched->objectName());
            }
            if (taken.intersects(place)) {
                wrong << QStringLiteral("%1 overlaps another key").arg(key->objectName());
            }
            if (ownGeometry && (place.width() < fingertip || place.height() < fingertip)) {
                wrong << QStringLiteral("%1 is smaller than a fingertip").arg(key->objectName());
            }
            taken += place;
        }
        QCOMPARE(wrong, QStringList());
    }

    void everythingIsInsideThePage_data() {
        QTest::addColumn<QString>("form");
        const QStringList files = forms.entryList({"*.ui"}, QDir::Files);
        for (const QString &file : files) {
            if (tableOf(file.chopped(3)).ownGeometry) {  // other places stand in the tables
                QTest::newRow(qPrintable(file)) << file.chopped(3);
            }
        }
    }
    void everythingIsInsideThePage() {
        QFETCH(QString, form);
        const auto page = pageOf(form);
        QStringList wrong;
        const QList<QWidget *> widgets = page->findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (!page->rect().contains(QRect(widget->mapTo(page.get(), QPoint()), widget->size()))) {
                wrong << widget->objectName();
            }
        }
        QCOMPARE(wrong, QStringList());
    }

    // A page may only write and send at its loading and first showing what belongs to it.
    void loadingWritesAndSendsNothingElse_data() { addForms(); }
    void loadingWritesAndSendsNothingElse() {
        QFETCH(QString, form);
        // The channels send their filters whenever the page is shown; sliders announce where they are set.
        static const QHash<QString, QString> own{
            {"Audiosetting_right_crossover_widget",
             "^(setValue\\(\"crossover/(front|rear|subwoofer)(slope|freq)\"|setCrossoverFrontFreq|setCrossoverRearFreq|"
             "setLPFValue)"},
            {"Audiovolumsettings", "^(setVolumeLevel|audioVolumeChanged)"},
        };
        QWidget window;
        const auto page = pageOf(form);
        QVERIFY(page);
        page->setParent(&window);
        page->show();
        window.resize(page->size());
        show(&window);
        advance(10000);
        QStringList calls = recording::take();
        const QRegularExpression allowed(own.value(form, QStringLiteral("^$")));
        calls.erase(std::remove_if(calls.begin(), calls.end(),
                                   [&](const QString &call) { return allowed.match(call).hasMatch(); }),
                    calls.end());
        QCOMPARE(calls, QStringList());
    }
};

PAGE_TEST_MAIN(tst_Forms)
#include "tst_forms.moc"
