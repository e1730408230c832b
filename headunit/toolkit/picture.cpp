// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/picture.h"

#include <QFile>
#include <QGuiApplication>
#include <QImageReader>
#include <QPixmapCache>

namespace headunit {

namespace {

constexpr qreal denseRatio = 2;

/// The picture of a file, from the application's cache if it is there.
QPixmap read(const QString &path) {
    const QString key = QStringLiteral("headunit/picture/") + path;
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        if (path.endsWith(QLatin1String(".png")) && QFile::exists(path)) {
            // With the format given, Qt does not ask each of its plug-ins first: that takes as long as a small picture.
            QImageReader reader(path, "png");
            reader.setAutoDetectImageFormat(false);
            picture = QPixmap::fromImageReader(&reader);
        }
        if (picture.isNull()) {
            picture = QPixmap(path);
        }
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

/// The dense picture made for a display of another density, once: a painter would drop some of its lines.
QPixmap fitted(const QString &path, qreal ratio) {
    const QString key = QStringLiteral("headunit/fitted/%1/%2").arg(path).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        const QPixmap dense = read(path);
        picture = dense.scaled(dense.size() * (ratio / denseRatio), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        picture.setDevicePixelRatio(ratio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

}  // namespace

QString picturePath(const QUrl &url) {
    if (url.scheme() == QLatin1String("qrc")) {
        return QLatin1Char(':') + url.path();
    }
    return url.isLocalFile() ? url.toLocalFile() : url.path();
}

QPixmap loadPicture(const QString &path) {
    if (path.isEmpty()) {
        return QPixmap();
    }
    const qreal ratio = qApp->devicePixelRatio();
    if (ratio > 1) {
        QString dense = path;
        const int dot = dense.lastIndexOf(QLatin1Char('.'));
        dense.insert(dot < 0 ? dense.size() : dot, QStringLiteral("@2x"));
        if (QFile::exists(dense)) {
            return ratio == denseRatio ? read(dense) : fitted(dense, ratio);
        }
    }
    return read(path);
}

}  // namespace headunit
