// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "platformapi.h"

#include <QString>

class QFont;
class QWidget;

/// Helpers of the unit's common system library. One object per process.
class PLATFORM_API CommSystemUtils {
public:
    static CommSystemUtils *instance();

    /// Gives the unit's default font family to the children of \a parent whose object names begin with
    /// \a prefix; each keeps its own size and weight.
    void sync_default_font(QWidget *parent, const QString &prefix);
    /// Gives \a font to the children of \a parent whose object names begin with \a prefix.
    void sync_custom_font(QWidget *parent, QFont &font, const QString &prefix);

private:
    CommSystemUtils();
    ~CommSystemUtils();
};
