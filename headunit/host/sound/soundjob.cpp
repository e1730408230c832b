#include "headunit/host/sound/metertext.h"
#include "headunit/host/sound/responseplot.h"
#include "headunit/host/sound/responsetable.h"
#include "headunit/host/soundlibrary.h"

#include "headunit/audio/engine/measurement.h"
#include "headunit/audio/files/render.h"
#include "headunit/audio/soundmodel.h"

#include <QFile>
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

QString measureInto(const QString &name) {
    const bool plotted = name.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
    if (!plotted && !name.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive)) {
        return QStringLiteral("--measure %1: the name must end in .csv or .png").arg(name);
    }
    const auto points = engine::measure(SoundModel::instance().state(), engine::audibleFrequencies());
    QSaveFile file(name);
    if (!file.open(QIODevice::WriteOnly)) {
        return QStringLiteral("%1: %2").arg(name, file.errorString());
    }
    const bool written = plotted ? responsePlot(points).save(&file, "PNG") : file.write(responseTable(points)) >= 0;
    if (!written || !file.commit()) {
        return QStringLiteral("%1: %2").arg(name, file.errorString());
    }
    return QString();
}

}  // namespace

}  // namespace headunit

extern "C" Q_DECL_EXPORT void headunitDoSoundJob(const headunit::SoundJob *job, QString *problem) {
    *problem = job->measureTo.isEmpty() ? headunit::render(*job) : headunit::measureInto(job->measureTo);
}
