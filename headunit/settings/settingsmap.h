// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

namespace headunit {

/// Settings by key. A value is a bool, an int, a qlonglong (whole numbers beyond int), a double or a QString.
using SettingsMap = QHash<QString, QVariant>;

/// \a value as one of the types above; an invalid QVariant for what cannot be kept.
QVariant storableValue(const QVariant &value);
/// Equal in type and value: 1 and true differ.
bool sameValue(const QVariant &a, const QVariant &b);

/// A whole number within int, and also "12", 12.0, true (1) and false (0); anything else is \a defaultValue.
int toInt(const QVariant &value, int defaultValue);
/// A truth value, and also any number (true unless 0), "true", "false" and numbers written as text; anything
/// else is \a defaultValue.
bool toBool(const QVariant &value, bool defaultValue);

}  // namespace headunit
