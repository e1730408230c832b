// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDebug>

namespace audiosetting {

/// Whether debug lines are wanted at all; without it a line costs one comparison.
bool debugLogEnabled();
/// The kernel's id of the calling thread.
long kernelThreadId();

/// Where a debug line comes from.
struct LogPlace {
    const char *function;
    int line;
};

}  // namespace audiosetting

/// This place in the source, for a helper that writes a line on its caller's behalf.
#define LOG_PLACE             \
    audiosetting::LogPlace {  \
        Q_FUNC_INFO, __LINE__ \
    }

/// A debug line: thread, function, source line, then the values of interest: AUDIO_LOG << "iIdx: " << iIdx;
#define AUDIO_LOG AUDIO_LOG_AT((LOG_PLACE))
/// The same under another function's name: AUDIO_LOG_AT(caller) << "level:" << level;
#define AUDIO_LOG_AT(place)                 \
    if (!audiosetting::debugLogEnabled()) { \
    } else                                  \
        qDebug() << "[DBG]" << audiosetting::kernelThreadId() << (place).function << (place).line << "--"
