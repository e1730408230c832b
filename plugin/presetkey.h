#pragma once

#include <QIcon>

class QAbstractButton;

namespace audiosetting {

// The two preset keys that the Crossover and the Timing page have: a hold saves, a click recalls.

/// The pictures of preset key 0 or 1: a plain key while the preset is empty, a numbered one when it is saved.
QIcon presetIcon(int preset, bool saved);

/// Marks a key whose hold has just saved, so that the click which ends the hold does not recall.
void setLongClick(QAbstractButton *key, bool on);
bool longClick(const QAbstractButton *key);

}  // namespace audiosetting
