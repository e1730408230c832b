// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/soundlibrary.h"
#include "headunit/host/sound/metertext.h"

#include "headunit/audio/files/render.h"
#include "headunit/audio/service/soundmodel.h"
#include "headunit/settings/lines.h"

#include <QFile>

namespace headunit {

namespace {

QString render(const SoundJob &job) {
    std::string problem;
    engine::Meters meters;
    if (renderFile(QFile::encodeName(job.renderFrom).toStdString(), QFile::encodeName(job.renderTo).toStdString(),
                   SoundModel::instance().state(), &meters, &problem)) {
        print(oneLine(job.renderTo) + QStringLiteral(": ") + QString::fromUtf8(meterText(meters)));
    }
    return QFile::decodeName(problem.c_str());
}

}  // namespace

}  // namespace headunit

extern "C" Q_DECL_EXPORT void headunitDoSoundJob(const headunit::SoundJob *job, QString *problem) {
    *problem = headunit::render(*job);
}
