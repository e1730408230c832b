// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/console/consolerow.h"

#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/pages.h"
#include "headunit/settings/trace.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>

namespace headunit {

namespace {

struct KindRow {
    const char *name;
    const char *english;
};

// In the order of RowKind.
constexpr std::array<KindRow, rowKinds> kinds = {{
    {"touch", DESK_TEXT("Touch")},
    {"call", DESK_TEXT("Call")},
    {"write", DESK_TEXT("Write")},
    {"announcement", DESK_TEXT("Announcement")},
    {"posted", DESK_TEXT("Posted touch")},
    {"window", DESK_TEXT("Window")},
    {"read", DESK_TEXT("Read")},
    {"log", DESK_TEXT("Log line")},
}};

QString valueText(const QVariant &value) {
    return value.isValid() ? traceValue(value) : deskText("not set");
}

}  // namespace

QString rowKindText(RowKind kind) {
    return deskText(kinds[static_cast<size_t>(kind)].english);
}

QString rowKindName(RowKind kind) {
    return QString::fromLatin1(kinds[static_cast<size_t>(kind)].name);
}

QString rowMeaning(const ConsoleRow &row) {
    return row.kind == RowKind::Write
               ? QStringLiteral("%1: %2 → %3").arg(row.key, valueText(row.before), valueText(row.after))
               : row.meaning;
}

QString rowAsText(const ConsoleRow &row) {
    const QString time = QDateTime::fromMSecsSinceEpoch(row.time).toString(QStringLiteral("HH:mm:ss.zzz"));
    const QString touch = row.touch > 0 ? QStringLiteral("#%1").arg(row.touch) : QStringLiteral("-");
    QStringList what = {row.call, row.meaning};
    what.removeAll(QString());
    QString text =
        QStringList({time, touch, pageTitle(row.page), rowKindText(row.kind), what.join(QLatin1String(" -> "))})
            .join(QLatin1Char('\t'));
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

QByteArray rowAsJson(const ConsoleRow &row) {
    QJsonObject object;
    object[QStringLiteral("time")] = QDateTime::fromMSecsSinceEpoch(row.time).toString(Qt::ISODateWithMs);
    object[QStringLiteral("touch")] = row.touch;
    object[QStringLiteral("page")] = row.page;
    object[QStringLiteral("class")] = rowKindName(row.kind);
    object[QStringLiteral("call")] = row.call;
    object[QStringLiteral("meaning")] = row.meaning;
    if (row.kind == RowKind::Write) {
        object[QStringLiteral("key")] = row.key;
        object[QStringLiteral("before")] = QJsonValue::fromVariant(row.before);
        object[QStringLiteral("after")] = QJsonValue::fromVariant(row.after);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

}  // namespace headunit
