// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/setups/setupfile.h"

#include "headunit/desk/bridges/curvefile.h"
#include "headunit/desk/setups/setupnumber.h"
#include "headunit/desk/setups/setuptable.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSaveFile>

namespace headunit {

namespace {

constexpr qint64 sizeLimit = qint64(1) << 20;
constexpr int version = 1;
constexpr char firstLine[] = "Audio set-up, version %1";
constexpr char lastLine[] = "end of set-up";
constexpr int mostRemarked = 60;  // characters of a line of a stranger's file in a remark

QString shortened(const QString &text) {
    return text.size() > mostRemarked ? text.left(mostRemarked) + QStringLiteral("…") : text;
}

QString at(int line, const QString &text) {
    return QStringLiteral("line %1: %2").arg(line).arg(text);
}

/// Why the lines as a whole are no set-up, or an empty text.
QString frameProblem(const QStringList &lines) {
    static const QRegularExpression first(QStringLiteral("^Audio set-up, version ([0-9]{1,9})$"));
    const QRegularExpressionMatch match = first.match(lines.value(0));
    if (!match.hasMatch()) {
        return at(1, QStringLiteral("this is no set-up, which begins with \"%1\"")
                         .arg(QString::fromLatin1(firstLine).arg(version)));
    }
    if (match.captured(1).toInt() != version) {
        return at(1,
                  QStringLiteral("version %1 is not known here, only version %2").arg(match.captured(1)).arg(version));
    }
    if (lines.last() != QLatin1String(lastLine)) {
        return at(lines.size(), QStringLiteral("the file is cut off: it has no \"%1\"").arg(QLatin1String(lastLine)));
    }
    return QString();
}

/// The lines of a text; a problem where it is none.
QStringList linesOf(const QByteArray &text, QString *problem) {
    QStringList lines;
    int number = 0;
    for (const QByteArray &bytes : text.split('\n')) {
        ++number;
        const QString line = QString::fromUtf8(bytes);
        if (bytes.contains('\0')) {
            *problem = at(number, QStringLiteral("a NUL byte: this is not text"));
            return {};
        }
        if (line.contains(QChar::ReplacementCharacter)) {
            *problem = at(number, QStringLiteral("this is not text"));
            return {};
        }
        lines << line.trimmed();
    }
    while (lines.size() > 1 && lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

/// The present name of what version 1.0.0 called slot and stored.
QString presentName(QString name) {
    return name.replace(QLatin1String("slot"), QLatin1String("preset"))
        .replace(QLatin1String(".stored"), QLatin1String(".saved"));
}

/// Takes one line between the first and the last.
void takeLine(const QString &line, int number, QHash<QString, int> *seen, SetupFile *file) {
    static const QHash<QString, const SetupValue *> byName = [] {
        QHash<QString, const SetupValue *> index;
        for (const SetupValue &value : setupValues()) {
            index.insert(value.name, &value);
        }
        return index;
    }();
    if (line.isEmpty() || line.startsWith(QLatin1Char('#'))) {
        return;
    }
    const int equals = line.indexOf(QLatin1Char('='));
    const QString name = line.left(equals).trimmed();
    if (equals <= 0 || name.isEmpty()) {
        file->problem = at(number, QStringLiteral("\"%1\" is not of the form name = value").arg(shortened(line)));
        return;
    }
    const SetupValue *const value = byName.value(presentName(name));
    if (!value) {
        file->remarks << at(number, QStringLiteral("\"%1\" is not known here, left out").arg(shortened(name)));
        return;
    }
    if (seen->contains(value->name)) {
        file->problem =
            at(number, QStringLiteral("%1 stands in line %2 already").arg(name).arg(seen->value(value->name)));
        return;
    }
    seen->insert(value->name, number);
    const QString text = line.mid(equals + 1).trimmed();
    const SetupNumber parsed = parseSetupNumber(*value, text);
    if (!parsed.problem.isEmpty()) {
        file->problem = at(number, QStringLiteral("%1: \"%2\": %3").arg(name, shortened(text), parsed.problem));
        return;
    }
    if (!parsed.remark.isEmpty()) {
        file->remarks << at(number, QStringLiteral("%1: %2").arg(name, parsed.remark));
    }
    file->values.insert(value->key,
                        value->unit == SetupUnit::Switch ? QVariant(parsed.number != 0) : QVariant(parsed.number));
}

}  // namespace

QByteArray setupText(const SettingsMap &settings) {
    QString text = QString::fromLatin1(firstLine).arg(version) + QLatin1Char('\n');
    QString part;
    for (const SetupValue &value : setupValues()) {
        const QString begins = value.name.section(QLatin1Char('.'), 0, 0);
        if (begins != part) {
            part = begins;
            text += QLatin1Char('\n');
        }
        text += QStringLiteral("%1 = %2\n").arg(value.name, setupNumberText(value, setupNumber(value, settings)));
    }
    return (text + QLatin1Char('\n') + QLatin1String(lastLine) + QLatin1Char('\n')).toUtf8();
}

SetupFile parseSetup(const QByteArray &text) {
    SetupFile file;
    if (text.size() > sizeLimit) {
        file.problem = QStringLiteral("larger than %1 KiB: this is no set-up").arg(sizeLimit / 1024);
        return file;
    }
    const QStringList lines = linesOf(text, &file.problem);
    if (file.problem.isEmpty()) {
        file.problem = frameProblem(lines);
    }
    QHash<QString, int> seen;
    for (int i = 1; i < lines.size() - 1 && file.problem.isEmpty(); ++i) {
        takeLine(lines[i], i + 1, &seen, &file);
    }
    if (!file.problem.isEmpty()) {
        file.values.clear();
        file.remarks.clear();
    }
    return file;
}

QByteArray readText(const QString &path, QString *problem) {
    QFile file(path);
    if (!QFileInfo(path).isFile()) {
        *problem =
            QFileInfo::exists(path) ? QStringLiteral("this is no file") : QStringLiteral("there is no such file");
    } else if (!file.open(QIODevice::ReadOnly)) {
        *problem = file.errorString();
    }
    if (!problem->isEmpty()) {
        *problem = QStringLiteral("%1: %2").arg(path, *problem);
        return QByteArray();
    }
    return file.read(sizeLimit + 1);
}

SetupFile readSetup(const QString &path) {
    SetupFile read;
    const QByteArray text = readText(path, &read.problem);
    if (read.problem.isEmpty()) {
        read = isForeignCurve(text) ? parseCurve(text) : parseSetup(text);
        read.problem = read.problem.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(path, read.problem);
    }
    return read;
}

QString writeSetup(const QString &path, const SettingsMap &settings) {
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(setupText(settings)) >= 0 && file.commit();
    return written ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
}

QVector<SetupChange> setupChanges(const SettingsMap &settings, const SettingsMap &wanted) {
    QVector<SetupChange> changes;
    for (const SetupValue &value : setupValues()) {
        if (!wanted.contains(value.key)) {
            continue;
        }
        const int before = setupNumber(value, settings);
        const int after = setupNumber(value, wanted);
        if (before != after) {
            changes << SetupChange{value.name, setupNumberText(value, before), setupNumberText(value, after)};
        }
    }
    return changes;
}

QString setupChangeText(const SetupChange &change) {
    return QStringLiteral("%1: %2 → %3").arg(change.name, change.before, change.after);
}

}  // namespace headunit
