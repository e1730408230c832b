// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platform/horizontalslider.h"
#include "tests/platform/finger.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMetaMethod>
#include <QPalette>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

/// The common parts of the tests of Volume Settings and Source Gain: finding and touching the parts of their rows.
namespace sliderpage {

inline QWidget *contents(QWidget *page) {
    return page->findChild<QWidget *>(QStringLiteral("scrollAreaWidgetContents"));
}

inline QScrollBar *scrollBar(QWidget *page) {
    return page->findChild<QScrollArea *>(QStringLiteral("scrollArea"))->verticalScrollBar();
}

/// The slider that lies over a placeholder of the form.
inline HorizontalSlider *slider(QWidget *page, const char *placeholder) {
    const QLabel *const label = page->findChild<QLabel *>(QLatin1String(placeholder));
    const auto sliders = page->findChildren<HorizontalSlider *>();
    for (HorizontalSlider *slider : sliders) {
        if (label && slider->parentWidget() == label->parentWidget() && slider->geometry() == label->geometry()) {
            return slider;
        }
    }
    return nullptr;
}

/// Scrolls a part of the page into view.
inline void reveal(QWidget *page, QWidget *part) {
    page->findChild<QScrollArea *>(QStringLiteral("scrollArea"))->ensureWidgetVisible(part, 0, 0);
}

/// The colour between the first two rows of a page whose own background would be \a own and that lies on \a background.
inline QColor colourBetweenRows(QWidget *page, const QColor &own, const QColor &background) {
    page->window()->setPalette(QPalette(background));
    page->setPalette(QPalette(own));
    return page->window()->grab().toImage().pixelColor(page->mapTo(page->window(), QPoint(600, 170)));
}

/// Where a value lies on a slider that shares its width evenly among \a count values from \a first on.
inline QPoint placeOf(const HorizontalSlider *slider, int first, int count, int value) {
    return QPoint((value - first) * (slider->width() - 1) / (count - 1), slider->height() / 2);
}

/// The signatures of a class's slots (or signals) with their arguments' names, in the order of their declaration.
inline QStringList signatures(const QMetaObject &meta, QMetaMethod::MethodType type) {
    QStringList lines;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == type) {
            QStringList arguments;
            for (int a = 0; a < method.parameterCount(); ++a) {
                arguments << QString::fromLatin1(method.parameterTypes().at(a) + ' ' + method.parameterNames().at(a));
            }
            lines << QString::fromLatin1(method.name() + '(') + arguments.join(QLatin1String(", ")) + QLatin1Char(')');
        }
    }
    return lines;
}

/// A row of a form's table.
struct FormRow {
    const char *name;
    const char *className;
    QRect geometry;
};

/// Compares the children of \a parent that the form made, in any order, with a table.
inline void compareForm(QWidget *parent, const QList<FormRow> &rows) {
    QStringList expected;
    for (const FormRow &row : rows) {
        expected << QLatin1String(row.name);
        QWidget *const widget = parent->findChild<QWidget *>(QLatin1String(row.name), Qt::FindDirectChildrenOnly);
        QVERIFY2(widget, row.name);
        QCOMPARE(widget->metaObject()->className(), row.className);
        QCOMPARE(widget->geometry(), row.geometry);
    }
    QStringList names;
    const auto children = parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        if (!child->objectName().isEmpty()) {
            names << child->objectName();
        }
    }
    names.sort();
    expected.sort();
    QCOMPARE(names, expected);
}

}  // namespace sliderpage
