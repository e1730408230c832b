#include "picture.h"

#include <QGuiApplication>

namespace audiosetting {

QPixmap picture(const char *name) {
    return pictureAt(QStringLiteral(":/corvina_icon/") + QLatin1String(name));
}

QPixmap pictureAt(const QString &path) {
    if (qGuiApp->devicePixelRatio() > 1) {
        const QPixmap dense(path + QStringLiteral("@2x.png"));
        if (!dense.isNull()) {
            return dense;
        }
    }
    return QPixmap(path + QStringLiteral(".png"));
}

}  // namespace audiosetting
