// SPDX-License-Identifier: Apache-2.0
#pragma once

class QAbstractButton;
class QObject;
class QPushButton;

namespace audiosetting {

// Preset keys, as the EQ, the Crossover and the Timing page have them: a hold saves, a short press recalls.

const int presetHold = 1500;  ///< ms for which a preset key is held to save

/// Calls that slot of \a page when \a key has been held for presetHold.
void saveOnHold(QPushButton *key, QObject *page, const char *slot);

/// Gives the key of preset 0 or 1 its pictures: those of an empty preset, or numbered ones when it is saved. Cheap when
/// nothing changes.
void showPreset(QAbstractButton *key, int preset, bool saved);

/// Marks a key whose hold has just saved, so that the click which ends the hold does not recall.
void setLongClick(QAbstractButton *key, bool on);
bool longClick(const QAbstractButton *key);
/// Takes the mark away when a finger that has left the key lifts: no click ends such a hold, and the mark would swallow
/// the next one. Once for each key.
void endLongClickBesideKey(QAbstractButton *key);

}  // namespace audiosetting
