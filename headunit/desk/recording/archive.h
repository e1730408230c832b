// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

namespace headunit {

struct ArchiveEntry {
    QString name;
    QByteArray bytes;
};

/// Writes a .tar.gz, which takes the place of an older one only when it is complete. Its headers name no user. Returns
/// what went wrong, or an empty text.
QString writeArchive(const QString &path, const QVector<ArchiveEntry> &entries);

}  // namespace headunit
