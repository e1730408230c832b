#pragma once

#include <QFile>
#include <QGuiApplication>
#include <QImage>

namespace audiosetting {

/// The picture of a slider's knob, in the density of the display. \a path ends in ".png".
inline QImage loadKnob(const QString &path) {
    if (qApp->devicePixelRatio() > 1) {
        const QString dense = QString(path).replace(QStringLiteral(".png"), QStringLiteral("@2x.png"));
        if (QFile::exists(dense)) {
            return QImage(dense);
        }
    }
    return QImage(path);
}

}  // namespace audiosetting
