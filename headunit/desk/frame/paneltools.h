// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QKeySequence>

class QAction;
class QToolBar;
class QWidget;

namespace headunit {

/// Adds an action to \a tools that has \a shortcut wherever the focus is in \a panel. It is called \a name, and its key
/// "key_" and that.
QAction *addTool(QWidget *panel, QToolBar *tools, const char *name, const QKeySequence &shortcut);

/// Sets text and tool tip, which says the shortcut, too.
void setToolText(QAction *action, const QString &text, const QString &tip);

}  // namespace headunit
