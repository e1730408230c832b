// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

namespace headunit {

/// \a text in one line: a file's name may well hold a line's end.
QString oneLine(const QString &text);

/// A line, or more, on standard output.
void print(const QString &text);
/// One line on standard error that begins with the program's name.
void say(const QString &text);

/// The line that no thread is to be had, at the first call.
void sayNoThread();

/// Has Qt's messages go the same way, each as one line.
void takeMessages();

/// Whether lines wait for whoever reads them, as at first; a program that runs by itself is read in its own time. Where
/// they do not wait, a reader that stands still misses lines, and is told how many once it goes on.
void setLinesWait(bool wait);

/// Why what was printed did not all arrive, or an empty text.
QString printingProblem();

/// Has standard input, output and error lead nowhere where whoever started the process closed them. Otherwise the next
/// files that are opened would take their places, and lines would go into them.
void keepStandardDescriptors();

}  // namespace headunit
