// SPDX-License-Identifier: Apache-2.0
// Responses without a screen: --measure.

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/frame/deskhost.h"
#include "headunit/desk/response/responsepicture.h"
#include "headunit/desk/response/responsetable.h"

#include <QFileInfo>
#include <QSaveFile>

namespace headunit {

namespace {

/// A disk that becomes full takes the first part and says so only when it is asked to take the rest.
bool writeWhole(QIODevice &device, const QByteArray &bytes) {
    for (int done = 0; done < bytes.size();) {
        const qint64 taken = device.write(bytes.constData() + done, bytes.size() - done);
        if (taken <= 0) {
            return false;
        }
        done += static_cast<int>(taken);
    }
    return true;
}

QString measureInto(const QString &name) {
    const bool plotted = name.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
    if (!plotted && !name.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) {
        return QStringLiteral("--measure %1: the name must end in .csv or .png").arg(name);
    }
    const QFileInfo existing(name);
    if (existing.exists() && !existing.isFile()) {
        return QStringLiteral("%1: this is no file that could be replaced").arg(name);
    }
    const auto points = engine::measure(SoundModel::instance().state(), engine::audibleFrequencies());
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly) ||
        !writeWhole(file, plotted ? measuredPicture(points) : responseTable(points)) || !file.commit()) {
        return QStringLiteral("%1: %2").arg(name, file.errorString());
    }
    return QString();
}

}  // namespace

}  // namespace headunit

extern "C" Q_DECL_EXPORT void headunitMeasureJob(const QString *name, QString *problem) {
    *problem = headunit::measureInto(*name);
}
