// SPDX-License-Identifier: Apache-2.0
#include "factoryfile.h"

#include "diskio.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>

namespace headunit {

namespace {

constexpr qint64 sizeLimit = qint64(256) * 1024;

QVariant factoryValue(const QString &text) {
    if (text == QLatin1String("true") || text == QLatin1String("false")) {
        return text == QLatin1String("true");
    }
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok ? QVariant(number) : QVariant(text);
}

bool isPlainText(const QString &text) {
    for (const QChar c : text) {
        if (c == QChar::ReplacementCharacter || (c < QLatin1Char(' ') && c != QLatin1Char('\t'))) {
            return false;
        }
    }
    return true;
}

/// Takes one line. Returns what is wrong with it, or nothing.
QString takeLine(const QString &line, QString *group, SettingsMap *values) {
    if (!isPlainText(line)) {
        return QStringLiteral("not text");
    }
    if (line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#'))) {
        return QString();
    }
    if (line.startsWith(QLatin1Char('['))) {
        if (!line.endsWith(QLatin1Char(']'))) {
            return QStringLiteral("no ] after [");
        }
        const QString name = line.mid(1, line.size() - 2).trimmed();
        *group = name.isEmpty() ? QString() : name + QLatin1Char('/');
        return QString();
    }
    const int equals = line.indexOf(QLatin1Char('='));
    const QString key = line.left(equals).trimmed();
    if (equals < 0 || key.isEmpty()) {
        return QStringLiteral("no key=value");
    }
    values->insert(*group + key, factoryValue(line.mid(equals + 1).trimmed()));
    return QString();
}

QByteArray shippedText() {
    QFile shipped(QStringLiteral(":/headunit/factory/audiosettings.ini"));
    if (!shipped.open(QIODevice::ReadOnly)) {
        qFatal("the shipped factory file is missing in this library");
    }
    return shipped.readAll();
}

}  // namespace

FactoryState parseFactoryText(const QByteArray &text) {
    FactoryState state;
    QString group;
    int number = 0;
    for (const QByteArray &line : text.split('\n')) {
        ++number;
        const QString fault =
            takeLine(QString::fromUtf8(line.constData(), line.size()).trimmed(), &group, &state.values);
        if (!fault.isEmpty()) {
            state.values.clear();
            state.problem = QStringLiteral("line %1: %2").arg(number).arg(fault);
            break;
        }
    }
    return state;
}

FactoryState readFactoryFile(const QString &path) {
    FactoryState state;
    QByteArray text;
    const DiskResult result = readFile(path, sizeLimit, &text);
    if (!result.ok()) {
        state.problem = result.error;
    } else if (text.trimmed().isEmpty()) {
        state.problem = QStringLiteral("it is empty");  // what a write that was cut short leaves
    } else {
        state = parseFactoryText(text);
    }
    if (!state.problem.isEmpty()) {
        state.values = shippedFactoryValues();
        state.missing = result.missing;
        state.problem = QStringLiteral("factory file %1: %2; the factory state that the unit shipped with is used")
                            .arg(path, state.problem);
    }
    return state;
}

SettingsMap shippedFactoryValues() {
    return parseFactoryText(shippedText()).values;
}

QString installFactoryFile(const QString &path) {
    QDir().mkpath(QFileInfo(path).path());
    const DiskResult result = replaceFileDurably(path, shippedText());
    return result.ok() ? QString() : QStringLiteral("factory file %1 cannot be written: %2").arg(path, result.error);
}

}  // namespace headunit
