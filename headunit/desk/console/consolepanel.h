// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/console/consolemodel.h"
#include "headunit/desk/console/consolerecorder.h"
#include "headunit/desk/frame/panel.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;
class QToolBar;
class QToolButton;

namespace headunit {

/// The service console: what happens between the applications and the unit, in order, and which touch caused it.
class ConsolePanel : public Panel {
    Q_OBJECT
public:
    ConsolePanel(DeskContext &context, QWidget *parent);

    void retranslate() override;
    /// Writes the rows that are shown: JSON lines where the name ends in .jsonl, else text. Returns what went wrong.
    QString saveTo(const QString &path);

private:
    QAction *addTool(const char *name, const QKeySequence &shortcut);
    void addKinds();
    void setUpTable();
    void takeFilter();
    void updateCount();
    void updatePages();
    void scrollToEnd();
    void copySelection();
    void askToSave();

    ConsoleModel m_model;
    ConsoleRecorder m_recorder;
    QLineEdit *const m_words;
    QToolButton *const m_kinds;
    QList<QAction *> m_kindActions;
    QComboBox *const m_page;
    QToolBar *const m_tools;
    QAction *const m_pause;
    QAction *const m_follow;
    QAction *const m_clear;
    QAction *const m_copy;
    QAction *const m_save;
    QTableView *const m_table;
    QLabel *const m_count;
    bool m_following = false;  ///< the table is being moved to its end
};

}  // namespace headunit
