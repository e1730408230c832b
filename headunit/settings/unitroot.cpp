// SPDX-License-Identifier: Apache-2.0
#include "unitroot.h"

#include <QDir>
#include <QStandardPaths>

namespace headunit {

namespace {

QString &rootFolder() {
    static QString folder;
    return folder;
}

}  // namespace

void setUnitRoot(const QString &folder) {
    rootFolder() = folder.isEmpty() ? QString() : QDir(folder).absolutePath();
}

QString unitRoot() {
    if (!rootFolder().isEmpty()) {
        return rootFolder();
    }
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/unit");
}

QString resolveUnitPath(const QString &path) {
    QStringList parts;
    for (const QString &part : path.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        if (part == QLatin1String("..")) {
            if (!parts.isEmpty()) {
                parts.removeLast();
            }
        } else if (part != QLatin1String(".")) {
            parts.append(part);
        }
    }
    return unitRoot() + QLatin1Char('/') + parts.join(QLatin1Char('/'));
}

}  // namespace headunit
