// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QObject;

namespace headunit {

class ScriptTarget;

// Remote control of the running unit: commands are JavaScript with the functions of scripts, a JSON object a line, over
// a local socket that only the unit's owner reaches. It needs the script engine, so it stands in the same library.

/// Lets a controller in until the object that it returns is deleted. Null, with the reason in \a problem, if that
/// cannot be. Exported by the script library under the name startRemoteEntryName.
using StartRemoteEntry = QObject *(*)(ScriptTarget *target, QString *problem);
constexpr char startRemoteEntryName[] = "headunitStartRemote";

/// Has the unit with the same root do \a command, or with "-" each line of standard input. What comes of it goes to
/// standard output. Returns the process's exit code: 1 where a command fails, 2 where the unit cannot be reached or
/// refuses. Exported likewise.
using ControlEntry = int (*)(const QString *command);
constexpr char controlEntryName[] = "headunitControl";

/// What the unit takes from a controller.
namespace remote {

constexpr int longestCommand = 64 * 1024;  ///< bytes of the line
constexpr int longestResult = 1024 * 1024;
constexpr int mostWaiting = 64;         ///< commands that were sent before the answers of others came
constexpr int longestComputing = 2000;  ///< ms of processor time between two returns to the unit's own work

// Members of a line to the unit ...
constexpr char commandKey[] = "command";
constexpr char folderKey[] = "folder";  ///< where pictures go
// ... and from it: any number of printed lines, then what came of the command, or the reason for an end.
constexpr char printedKey[] = "printed";
constexpr char resultKey[] = "result";  ///< JSON text; absent where there is no value
constexpr char errorKey[] = "error";
constexpr char refusedKey[] = "refused";

}  // namespace remote

}  // namespace headunit
