// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QString>
#include <QUrl>

namespace headunit {

/// The file that a picture's URL names: ":/..." and "qrc:/..." are resources, the rest local files.
QString picturePath(const QUrl &url);

/// The picture of a file, on a dense display from its "@2x" neighbour and with the display's density; null where there
/// is none. Files that are asked for again come from the application's pixmap cache.
QPixmap loadPicture(const QString &path);

/// Size of a picture in widget pixels, whatever its density; (0, 0) for none.
inline QSize pictureSize(const QPixmap &picture) {
    return picture.isNull() ? QSize(0, 0) : picture.size() / picture.devicePixelRatioF();
}

}  // namespace headunit
