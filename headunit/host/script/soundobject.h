#pragma once

class QJSEngine;
class QJSValue;

namespace headunit {

/// The unit's sound state as an object of a script, with the names of SoundState.
QJSValue soundObject(QJSEngine &engine);

}  // namespace headunit
