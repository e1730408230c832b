// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "factoryfile.h"
#include "settingsstore.h"

#include <QStringList>

namespace headunit {

/// The store behind AudioSettingsUtils.
SettingsStore &audioStore();
/// The store behind mem::SettingsFunc.
SettingsStore &sharedStore();

/// Opens both stores below the unit's root, and reads the factory file so that a reset need not wait for the disk; the
/// sound follows. Where the root has neither audio settings nor a factory file (the first start), the factory file
/// that ships with this unit is put there, on a thread of its own; one that cannot be read is set aside, and the text
/// built into this library serves instead. An audio store without a file of its own starts from the factory state, and
/// one without a custom curve gets a flat one. Returns what went wrong, a readable line each, which is also in the log.
/// Without this call, the stores work in memory only.
QStringList openSettings();
/// Lowers a main volume above the limit that the factory file names, and the sound follows: however loud it was when
/// the unit went off, nobody is startled when it comes on.
void limitMainVolume();
/// Saves both stores now, as for an orderly shutdown, and waits for it (a few seconds at most). False if that fails.
bool flushSettings();
/// Saves and forgets both stores.
void closeSettings();

/// The factory state behind a path of the unit: what openSettings() read, or any other file as it is now.
FactoryState factoryState(const QString &unitPath);

}  // namespace headunit
