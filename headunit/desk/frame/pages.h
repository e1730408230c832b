// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QPoint;
class QWidget;

namespace headunit {

// Which page of the unit a widget belongs to. A page is known by the name of its class.

/// The page that \a widget is part of, by the name of its class; empty where it belongs to none.
QString pageOf(const QWidget *widget);
/// The page that the screen shows.
QString frontPage(const QWidget *screen);
/// A page's title, in the language in force; for a page that is not known, the name of its class.
QString pageTitle(const QString &page);

}  // namespace headunit
