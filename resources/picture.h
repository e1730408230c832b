#pragma once

#include <QPixmap>

namespace audiosetting {

/// A picture that code draws itself, by its name below ":/corvina_icon/" and without ".png": on a dense display the
/// dense rendering, with its device pixel ratio set. Icons and forms need no help: there Qt chooses.
QPixmap picture(const char *name);

}  // namespace audiosetting
