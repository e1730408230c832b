// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

// Marks what the head unit's libraries export and the plug-in imports.
#define PLATFORM_API Q_DECL_EXPORT
