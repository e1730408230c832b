// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QVariant>

namespace headunit {

/// The kinds of the console's rows, in the order in which they are offered.
enum class RowKind { Touch, Call, Write, Announcement, Posted, Window, Read, Log };
constexpr int rowKinds = 8;

/// One row of the service console: what happened, as it happened. Its text is made when it is seen.
struct ConsoleRow {
    RowKind kind = RowKind::Call;
    bool press = false;  ///< of a touch: its beginning, which stands above what it caused
    int touch = 0;       ///< number of the touch that it belongs to; 0: none so far
    qint64 time = 0;     ///< ms since 1970
    QString page;        ///< that caused it, see pageOf()
    QString call;        ///< setCrossoverFrontFreq(3, 2, 10)
    QString meaning;     ///< front high-pass 63 Hz, 12 dB/oct, -2 dB
    // Of a write:
    QString key;
    QVariant before;
    QVariant after;
};

/// "Call", in the language in force.
QString rowKindText(RowKind kind);
/// "call", for files that programs read.
QString rowKindName(RowKind kind);
/// Its plain meaning; of a write, the old and the new value: "subwooferLevel: 3 → 4".
QString rowMeaning(const ConsoleRow &row);
/// The row as one line of text.
QString rowAsText(const ConsoleRow &row);
/// The row as one line of JSON.
QByteArray rowAsJson(const ConsoleRow &row);

}  // namespace headunit
