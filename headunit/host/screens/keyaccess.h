// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>

namespace headunit {

/// What screen readers and test tools learn of the host's keys: that they are buttons, and what they are called.
/// A factory for QAccessible::installFactory().
QAccessibleInterface *makeKeyAccess(const QString &className, QObject *object);

}  // namespace headunit
