// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/paneltools.h"

#include <QAction>
#include <QToolBar>

namespace headunit {

QAction *addTool(QWidget *panel, QToolBar *tools, const char *name, const QKeySequence &shortcut) {
    QAction *const action = tools->addAction(QString());
    action->setObjectName(QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    panel->addAction(action);
    tools->widgetForAction(action)->setObjectName(QStringLiteral("key_") + QLatin1String(name));
    return action;
}

void setToolText(QAction *action, const QString &text, const QString &tip) {
    action->setText(text);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(tip, action->shortcut().toString(QKeySequence::NativeText)));
}

}  // namespace headunit
