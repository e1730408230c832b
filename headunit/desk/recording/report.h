// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/recording/archive.h"

namespace headunit {

class ConsoleModel;
struct PersonalNames;

/// What a report of a problem holds beside what the unit itself knows.
struct ReportParts {
    QString words;      ///< what somebody says went wrong
    QString recording;  ///< script; empty where nothing was recorded
    QByteArray trace;   ///< rows of the console as JSON lines
};

/// The files of a report: words, set-up, recording, trace and versions. None of them names the user, their home folder
/// or their machine.
QVector<ArchiveEntry> reportEntries(const ReportParts &parts, const PersonalNames &names);

/// The console's last rows as JSON lines.
QByteArray traceLines(const ConsoleModel &rows);

}  // namespace headunit
