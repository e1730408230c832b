#include "headunit/toolkit/picture.h"

#include <QFile>
#include <QGuiApplication>

namespace headunit {

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
    if (qApp->devicePixelRatio() > 1.0) {
        QString dense = path;
        const int dot = dense.lastIndexOf(QLatin1Char('.'));
        dense.insert(dot < 0 ? dense.size() : dot, QStringLiteral("@2x"));
        if (QFile::exists(dense)) {
            return QPixmap(dense);
        }
    }
    return QPixmap(path);
}

}  // namespace headunit
