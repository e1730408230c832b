// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QPixmap>

class QLabel;

namespace audiosetting {

/// Pixels of the display for each pixel of a widget. Qt 5's QPaintDevice::devicePixelRatio() knows whole numbers only.
qreal displayDensity();

/// A picture that code draws itself, by its name below ":/corvina_icon/" and without ".png": on a dense display the
/// dense rendering, with the display's density. Icons need no help: there Qt chooses.
QPixmap picture(const char *name);
/// The same, by its whole path without ".png": ":/halverv2_icon/eq_txt".
QPixmap pictureAt(const QString &path);

/// Gives labels whose picture comes from their form the dense rendering of it where the display is dense.
void showPicture(const QList<QLabel *> &labels, const char *name);

}  // namespace audiosetting
