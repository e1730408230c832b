// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/recording/recordingpanel.h"

#include "headunit/desk/frame/deskcontext.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/savefile.h"
#include "headunit/desk/recording/namescrubber.h"
#include "headunit/desk/recording/report.h"

#include <QAction>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSaveFile>
#include <QToolBar>
#include <QVBoxLayout>

namespace headunit {

namespace {

constexpr int space = 6;
constexpr int wordsHeight = 72;
constexpr double millisecondsPerSecond = 1000;

QString withShortcut(const QString &text, const QAction *action) {
    return QStringLiteral("%1 (%2)").arg(text, action->shortcut().toString(QKeySequence::NativeText));
}

}  // namespace

RecordingPanel::RecordingPanel(DeskContext &context, QWidget *parent)
    : Panel(parent),
      m_recorder(context),
      m_traceRecorder(context, m_trace),
      m_tools(new QToolBar(this)),
      m_record(addTool("record", Qt::Key_F9, &RecordingPanel::record)),
      m_save(addTool("save", QKeySequence::Save, &RecordingPanel::askToSave)),
      m_report(addTool("report", Qt::CTRL + Qt::Key_R, &RecordingPanel::askToReport)),
      m_state(new QLabel(this)),
      m_script(new QPlainTextEdit(this)),
      m_wordsTitle(new QLabel(this)),
      m_words(new QPlainTextEdit(this)),
      m_message(new QLabel(this)) {
    m_record->setCheckable(true);
    m_record->setShortcutContext(Qt::ApplicationShortcut);  // with the unit's window in front
    m_state->setObjectName(QStringLiteral("recording_state"));
    m_state->setContentsMargins(space, 0, space, 0);
    m_script->setObjectName(QStringLiteral("recording_script"));
    m_script->setReadOnly(true);
    m_script->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_words->setObjectName(QStringLiteral("recording_words"));
    m_words->setTabChangesFocus(true);
    m_words->setFixedHeight(wordsHeight);
    m_message->setObjectName(QStringLiteral("recording_message"));
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->setWordWrap(true);
    m_tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_tools->addWidget(m_state);
    auto *const rest = new QVBoxLayout;
    rest->setContentsMargins(space, 0, space, 2);
    rest->setSpacing(4);
    rest->addWidget(m_script, 1);
    rest->addWidget(m_wordsTitle);
    rest->addWidget(m_words);
    rest->addWidget(m_message);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_tools);
    layout->addLayout(rest, 1);
    connect(&m_recorder, &TouchRecorder::changed, this, &RecordingPanel::takeLines);
}

QAction *RecordingPanel::addTool(const char *name, const QKeySequence &shortcut, void (RecordingPanel::*slot)()) {
    QAction *const action = m_tools->addAction(QString());
    action->setObjectName(QStringLiteral("recording_") + QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    m_tools->widgetForAction(action)->setObjectName(QStringLiteral("recording_key_") + QLatin1String(name));
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void RecordingPanel::record() {
    if (m_recorder.isRecording()) {
        m_recorder.stop();
    } else {
        m_script->clear();
        m_trace.clear();
        m_message->clear();
        m_recorder.start();
    }
    showState();
}

void RecordingPanel::takeLines(const QStringList &lines) {
    for (const QString &line : lines) {
        m_script->appendPlainText(line);
    }
    showState();
}

void RecordingPanel::showState() {
    const bool recording = m_recorder.isRecording();
    m_record->setChecked(recording);
    m_record->setText(recording ? deskText("Stop") : deskText("Record"));
    const bool empty = !recording && m_recorder.touches() == 0;
    m_save->setEnabled(!empty);
    const double seconds = double(m_recorder.length()) / millisecondsPerSecond;
    const QString counted = deskText("%1 touches, %2 s").arg(m_recorder.touches()).arg(seconds, 0, 'f', 1);
    m_state->setText(recording ? deskText("Recording: %1").arg(counted)
                     : empty   ? deskText("Nothing is recorded yet")
                               : counted);
}

void RecordingPanel::askToSave() {
    askWhereToSave(this, deskText("Save the recording"), {deskText("Script (*.js)")},
                   [this](const QString &path) { save(path); });
}

void RecordingPanel::save(const QString &path) {
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(m_recorder.script().toUtf8()) >= 0 && file.commit();
    m_message->setText(written ? deskText("Saved in %1; headunit --script plays it").arg(path)
                               : QStringLiteral("%1: %2").arg(path, file.errorString()));
}

void RecordingPanel::askToReport() {
    askWhereToSave(this, deskText("Report a problem"), {deskText("Archive (*.tar.gz)")},
                   [this](const QString &path) { report(path); });
}

void RecordingPanel::report(const QString &path) {
    m_trace.flush();
    ReportParts parts;
    parts.words = m_words->toPlainText();
    parts.recording = m_recorder.touches() > 0 ? m_recorder.script() : QString();
    parts.trace = traceLines(m_trace);
    const QString problem = writeArchive(path, reportEntries(parts, personalNames()));
    m_message->setText(problem.isEmpty() ? deskText("Saved in %1; look into it before you send it").arg(path)
                                         : problem);
}

void RecordingPanel::retranslate() {
    m_record->setToolTip(withShortcut(
        deskText("Records what is touched as a script. The unit starts anew, at its home screen."), m_record));
    m_save->setText(deskText("Save…"));
    m_save->setToolTip(withShortcut(deskText("Saves the recording as a script that headunit --script plays"), m_save));
    m_report->setText(deskText("Report a problem…"));
    m_report->setToolTip(withShortcut(
        deskText("Packs set-up, recording, console and versions into one archive that does not name you"), m_report));
    m_script->setAccessibleName(deskText("Recording as a script"));
    m_script->setPlaceholderText(
        deskText("A recording starts as the unit does: on the home screen, with what is set now."));
    m_wordsTitle->setText(deskText("What went wrong, for the report"));
    m_words->setAccessibleName(deskText("What went wrong, for the report"));
    m_message->setAccessibleName(deskText("Result"));
    showState();
}

}  // namespace headunit
