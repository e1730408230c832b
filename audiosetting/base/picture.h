#pragma once

#include <QPixmap>

namespace audiosetting {

/// A picture that code draws itself, by its name below ":/corvina_icon/" and without ".png": on a dense display the
/// dense rendering, with its device pixel ratio set. Icons need no help: there Qt chooses.
QPixmap picture(const char *name);
/// The same, by its whole path without ".png": ":/halverv2_icon/eq_txt".
QPixmap pictureAt(const QString &path);

}  // namespace audiosetting
