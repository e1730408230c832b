// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariantList>
#include <QVariantMap>

#include <functional>

namespace headunit {

/// Puts a set-up of a script in force as the desk does: \a settings are all that the store holds then, \a sound is the
/// state of the sound as soundToJson() writes it, \a shared what the shared store holds.
void restoreSetup(const QVariantMap &settings, const QVariantList &sound, const QVariantMap &shared,
                  const std::function<void()> &refreshFront);

}  // namespace headunit
