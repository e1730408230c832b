// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/soundlibrary.h"
#include "headunit/host/sound/metertext.h"
#include "headunit/host/sound/responseplot.h"
#include "headunit/host/sound/responsetable.h"

#include "headunit/audio/engine/measurement.h"
#include "headunit/audio/files/render.h"
#include "headunit/audio/service/soundmodel.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>

namespace headunit {

namespace {

QString render(const SoundJob &job) {
    std::string problem;
    engine::Meters meters;
    if (renderFile(QFile::encodeName(job.renderFrom).toStdString(), QFile::encodeName(job.renderTo).toStdString(),
                   SoundModel::instance().state(), &meters, &problem)) {
        std::printf("%s: %s\n", qPrintable(job.renderTo), meterText(meters).constData());
    }
    return QFile::decodeName(problem.c_str());
}

QByteArray png(const QImage &image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

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
        !writeWhole(file, plotted ? png(responsePlot(points)) : responseTable(points)) || !file.commit()) {
        return QStringLiteral("%1: %2").arg(name, file.errorString());
    }
    return QString();
}

}  // namespace

}  // namespace headunit

extern "C" Q_DECL_EXPORT void headunitDoSoundJob(const headunit::SoundJob *job, QString *problem) {
    *problem = job->measureTo.isEmpty() ? headunit::render(*job) : headunit::measureInto(job->measureTo);
}
