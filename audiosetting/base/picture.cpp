// SPDX-License-Identifier: Apache-2.0
#include "picture.h"

#include <QGuiApplication>
#include <QLabel>

namespace audiosetting {

qreal displayDensity() {
    return qGuiApp->devicePixelRatio();
}

QPixmap picture(const char *name) {
    return pictureAt(QStringLiteral(":/corvina_icon/") + QLatin1String(name));
}

QPixmap pictureAt(const QString &path) {
    const qreal density = displayDensity();
    if (density > 1) {
        QPixmap dense(path + QStringLiteral("@2x.png"));
        if (!dense.isNull() && dense.devicePixelRatio() != density) {
            // Here once, and smoothly: a painter would drop some of its lines.
            dense = dense.scaled(dense.size() * (density / dense.devicePixelRatio()), Qt::IgnoreAspectRatio,
                                 Qt::SmoothTransformation);
            dense.setDevicePixelRatio(density);
        }
        if (!dense.isNull()) {
            return dense;
        }
    }
    return QPixmap(path + QStringLiteral(".png"));
}

void showPicture(const QList<QLabel *> &labels, const char *name) {
    if (displayDensity() > 1) {
        const QPixmap dense = picture(name);
        for (QLabel *label : labels) {
            label->setPixmap(dense);
        }
    }
}

}  // namespace audiosetting
