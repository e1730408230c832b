// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

namespace headunit {

/// What a script calls \a widget of \a window, or the nearest of its parents that has a name: the object name, with
/// those of parents before it as long as others that are visible have the same. \a named is that widget. Empty where
/// no name tells it from others.
QString objectPath(const QWidget *window, const QWidget *widget, const QWidget **named);

}  // namespace headunit
