// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

class QObject;

namespace conformance {

/// The calls that the plug-in makes across the contract, written as in code. Reads and the toolkit's widgets are left
/// out, and so is what the unit calls by itself.
///
/// This program defines the contract's functions, notes a call that comes from the plug-in's code, and hands every call
/// on to the unit's function, which the dynamic linker finds next. It takes shared libraries; where the unit's are
/// static, callsAreSeen() is false.
bool callsAreSeen();
/// Notes calls from the library that holds this object's code, from now on.
void recordCallsOf(const QObject *object);
/// The calls since the last time.
QStringList takeCalls();
void noteCall(const QString &call);

}  // namespace conformance
