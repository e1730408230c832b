// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/panel.h"
#include "headunit/desk/setups/comparison.h"
#include "headunit/desk/setups/setupfile.h"

class QAction;
class QLabel;
class QListWidget;
class QPushButton;
class QTableWidget;
class QToolBar;
class QUndoView;

namespace headunit {

/// Set-ups: those that have a name, what one of them would change, A and B, and the changes that can be undone.
class SetupsPanel : public Panel {
    Q_OBJECT
public:
    SetupsPanel(DeskContext &context, QWidget *parent);

    void retranslate() override;

private:
    QAction *addTool(const char *name, const QKeySequence &shortcut, void (SetupsPanel::*slot)());
    QWidget *makeLists();
    QWidget *makePreview();
    void readNames();
    void showPreview();
    void showComparison();
    void saveAs(const QString &path);
    void open(const QString &path);
    void say(const QString &text);

    void askToSave();
    void apply();
    void remove();
    void askToImport();
    void askToExport();
    void toggle();
    void match();
    void copyToOther();

    DeskContext &m_context;
    Comparison m_comparison;
    SetupFile m_chosen;  ///< the set-up that the preview shows
    QString m_chosenName;
    QToolBar *const m_tools;
    QAction *const m_save;
    QAction *const m_apply;
    QAction *const m_remove;
    QAction *const m_import;
    QAction *const m_export;
    QAction *const m_toggle;
    QAction *const m_match;
    QAction *const m_copy;
    QLabel *const m_inForce;
    QListWidget *const m_names;
    QTableWidget *const m_preview;
    QLabel *const m_previewTitle;
    QLabel *const m_namesTitle;
    QLabel *const m_historyTitle;
    QUndoView *const m_steps;
    QLabel *const m_message;
};

}  // namespace headunit
