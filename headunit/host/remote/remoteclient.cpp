// SPDX-License-Identifier: Apache-2.0
// The controller's side: headunit --control.

#include "headunit/host/remote/remotecontrol.h"
#include "headunit/host/remote/remotesocket.h"
#include "headunit/settings/lines.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>

namespace headunit {

namespace {

constexpr int exitGood = 0;
constexpr int exitFailed = 1;
constexpr int exitUnusable = 2;
constexpr int unlimited = -1;
constexpr int timeToConnect = 5000;  // ms

int complain(const QString &reason, int exitCode) {
    say(QStringLiteral("--control: ") + reason);
    return exitCode;
}

/// Texts as they are, everything else as JSON.
void printResult(const QJsonValue &result) {
    if (!result.isString()) {
        return;  // no value
    }
    const QByteArray text = result.toString().toUtf8();
    const QJsonArray asArray = QJsonDocument::fromJson('[' + text + ']').array();
    const QByteArray shown = asArray.first().isString() ? asArray.first().toString().toUtf8() : text;
    print(QString::fromUtf8(shown));
}

/// Has one command done, and waits until it is.
int control(QLocalSocket &unit, const QString &command) {
    const QJsonObject request{{QLatin1String(remote::commandKey), command},
                              {QLatin1String(remote::folderKey), QDir::currentPath()}};
    unit.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
    for (;;) {
        while (!unit.canReadLine()) {
            if (!unit.waitForReadyRead(unlimited) && !unit.canReadLine()) {
                return complain(QStringLiteral("the unit has ended"), exitUnusable);
            }
        }
        const QJsonObject answer = QJsonDocument::fromJson(unit.readLine()).object();
        if (answer.contains(QLatin1String(remote::printedKey))) {
            print(answer.value(QLatin1String(remote::printedKey)).toString());
        } else if (answer.contains(QLatin1String(remote::errorKey))) {
            return complain(answer.value(QLatin1String(remote::errorKey)).toString(), exitFailed);
        } else if (answer.contains(QLatin1String(remote::refusedKey))) {
            return complain(answer.value(QLatin1String(remote::refusedKey)).toString(), exitUnusable);
        } else {
            printResult(answer.value(QLatin1String(remote::resultKey)));
            return exitGood;
        }
    }
}

int controlAll(QLocalSocket &unit) {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return complain(QStringLiteral("standard input cannot be read"), exitUnusable);
    }
    int result = exitGood;
    while (result == exitGood) {
        const QByteArray line = input.readLine();
        if (line.isEmpty()) {
            break;
        }
        result = control(unit, QString::fromUtf8(line.trimmed()));
    }
    return result;
}

}  // namespace

}  // namespace headunit

extern "C" Q_DECL_EXPORT int headunitControl(const QString *command) {
    using namespace headunit;
    QString problem;
    const QString path = remoteSocket(&problem);
    if (path.isEmpty()) {
        return complain(problem, exitUnusable);
    }
    QLocalSocket unit;
    unit.connectToServer(path);
    if (!unit.waitForConnected(timeToConnect)) {
        return complain(QStringLiteral("no unit with these settings runs with --remote"), exitUnusable);
    }
    return *command == QLatin1String("-") ? controlAll(unit) : control(unit, *command);
}
