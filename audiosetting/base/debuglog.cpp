// SPDX-License-Identifier: Apache-2.0
#include "debuglog.h"

#include <QLoggingCategory>

#include <sys/syscall.h>
#include <unistd.h>

namespace audiosetting {

bool debugLogEnabled() {
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
}

long kernelThreadId() {
    return syscall(SYS_gettid);
}

}  // namespace audiosetting
