// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/recording/namescrubber.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSysInfo>

#include <pwd.h>
#include <unistd.h>

namespace headunit {

namespace {

void replaceWord(QString *text, const QString &name, const char *word) {
    if (name.isEmpty()) {
        return;
    }
    // Letters and digits go on with a word; what else stands in paths and messages does not.
    const QRegularExpression pattern(
        QStringLiteral("(?<![\\p{L}\\p{N}])%1(?![\\p{L}\\p{N}])").arg(QRegularExpression::escape(name)),
        QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::CaseInsensitiveOption);
    text->replace(pattern, QLatin1String(word));
}

}  // namespace

PersonalNames personalNames() {
    PersonalNames names;
    names.home = QDir::homePath();
    if (const passwd *const account = getpwuid(geteuid())) {
        names.user = QFile::decodeName(account->pw_name);
        // Full name, office and phone numbers stand here with commas between them.
        names.fullName = QString::fromLocal8Bit(account->pw_gecos).section(QLatin1Char(','), 0, 0);
    }
    if (names.fullName.compare(names.user, Qt::CaseInsensitive) == 0) {
        names.fullName.clear();
    }
    names.host = QSysInfo::machineHostName();
    return names;
}

QString withoutNames(QString text, const PersonalNames &names) {
    for (const QString &home : {names.home, QDir(names.home).canonicalPath()}) {
        if (home.size() > 1) {
            const QRegularExpression pattern(QRegularExpression::escape(home) + QStringLiteral("(?![\\p{L}\\p{N}])"));
            text.replace(pattern, QStringLiteral("~"));
        }
    }
    replaceWord(&text, names.fullName, "somebody");
    replaceWord(&text, names.host, "host");
    replaceWord(&text, names.host.section(QLatin1Char('.'), 0, 0), "host");
    replaceWord(&text, names.user, "user");
    return text;
}

}  // namespace headunit
