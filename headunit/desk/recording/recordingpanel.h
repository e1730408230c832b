// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/console/consolemodel.h"
#include "headunit/desk/console/consolerecorder.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/desk/recording/touchrecorder.h"

class QAction;
class QLabel;
class QPlainTextEdit;
class QToolBar;

namespace headunit {

/// Recordings of what is touched, as scripts, and reports of problems, which have one in them.
class RecordingPanel : public Panel {
    Q_OBJECT
public:
    RecordingPanel(DeskContext &context, QWidget *parent);

    void retranslate() override;

private:
    QAction *addTool(const char *name, const QKeySequence &shortcut, void (RecordingPanel::*slot)());
    void record();
    void askToSave();
    void askToReport();
    void save(const QString &path);
    void report(const QString &path);
    void takeLines(const QStringList &lines);
    void showState();

    TouchRecorder m_recorder;
    ConsoleModel m_trace;  ///< what happens while the panel is there
    ConsoleRecorder m_traceRecorder;
    QToolBar *const m_tools;
    QAction *const m_record;
    QAction *const m_save;
    QAction *const m_report;
    QLabel *const m_state;
    QPlainTextEdit *const m_script;
    QLabel *const m_wordsTitle;
    QPlainTextEdit *const m_words;
    QLabel *const m_message;
};

}  // namespace headunit
