// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QIODevice;
class QWidget;

namespace headunit {

/// Asks where to save, without stopping the unit, and hands \a take the file's path. \a kinds are such as
/// "Text (*.txt)"; the first one's suffix is given to a name without one. \a folder is where it looks at first.
void askWhereToSave(QWidget *parent, const QString &title, const QStringList &kinds,
                    const std::function<void(const QString &path)> &take, const QString &folder = QString());
/// Asks which file to open, likewise.
void askWhatToOpen(QWidget *parent, const QString &title, const QStringList &kinds,
                   const std::function<void(const QString &path)> &take);

/// Writes \a count pieces into the file at \a path, which is replaced only if all of them could be written; where that
/// takes longer than 300 ms, it shows how far it is, and can be stopped. Returns what went wrong, or an empty text.
QString saveFile(QWidget *parent, const QString &path, int count,
                 const std::function<void(QIODevice &file, int index)> &write);

}  // namespace headunit
