// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/console/consolerow.h"
#include "headunit/desk/frame/deskcontext.h"
#include "headunit/settings/trace.h"

#include <QObject>

namespace headunit {

class ConsoleModel;

/// Puts what happens into the console's rows, while it lives: calls across the contract, touches, log lines.
class ConsoleRecorder : public QObject {
    Q_OBJECT
public:
    ConsoleRecorder(DeskContext &context, ConsoleModel &model);
    ~ConsoleRecorder() override;

    /// Whether calls that only read are recorded.
    void setReads(bool on);
    /// A line of the log; from any thread.
    Q_INVOKABLE void takeLogLine(const QString &text);

private:
    void takeEntry(const TraceEntry &entry);
    void takeTouch(const Touch &touch);
    void append(ConsoleRow row);

    DeskContext &m_context;
    ConsoleModel &m_model;
    TraceListener m_listener;
};

}  // namespace headunit
