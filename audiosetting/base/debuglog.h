#pragma once

#include <QDebug>

namespace audiosetting {

/// Whether debug lines are wanted at all; without it a line costs one comparison.
bool debugLogEnabled();
/// The kernel's id of the calling thread.
long kernelThreadId();

}  // namespace audiosetting

/// A debug line: thread, function, source line, then the values of interest: AUDIO_LOG << "iIdx: " << iIdx;
#define AUDIO_LOG                           \
    if (!audiosetting::debugLogEnabled()) { \
    } else                                  \
        qDebug() << "[DBG]" << audiosetting::kernelThreadId() << Q_FUNC_INFO << __LINE__ << "--"
