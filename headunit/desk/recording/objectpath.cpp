// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/recording/objectpath.h"

#include <QStringList>
#include <QWidget>

#include <algorithm>

namespace headunit {

namespace {

/// How many visible widgets below \a parent the names lead to, each a descendant of the one before.
int count(const QWidget *parent, const QStringList &names) {
    QList<const QWidget *> found = {parent};
    for (const QString &name : names) {
        QList<const QWidget *> next;
        for (const QWidget *widget : qAsConst(found)) {
            for (const QWidget *child : widget->findChildren<QWidget *>()) {
                const bool meant =
                    child->objectName() == name || name == QLatin1String(child->metaObject()->className());
                if (meant) {
                    next << child;
                }
            }
        }
        found = next;
    }
    return static_cast<int>(
        std::count_if(found.begin(), found.end(), [](const QWidget *widget) { return widget->isVisible(); }));
}

bool canStandInAPath(const QWidget *widget) {
    return !widget->objectName().isEmpty() && !widget->objectName().contains(QLatin1Char('/'));
}

}  // namespace

QString objectPath(const QWidget *window, const QWidget *widget, const QWidget **named) {
    while (widget && widget != window && !canStandInAPath(widget)) {
        widget = widget->parentWidget();
    }
    *named = widget;
    QStringList names;
    for (; widget && widget != window; widget = widget->parentWidget()) {
        if (canStandInAPath(widget)) {
            names.prepend(widget->objectName());
            if (count(window, names) == 1) {
                return names.join(QLatin1Char('/'));
            }
        }
    }
    return QString();
}

}  // namespace headunit
