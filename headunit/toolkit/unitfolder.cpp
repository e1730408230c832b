// SPDX-License-Identifier: Apache-2.0
#include "headunit/toolkit/unitfolder.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace headunit {

QString unitFolder() {
    Dl_info self;
    const bool known = dladdr(reinterpret_cast<const void *>(&unitFolder), &self) != 0;
    return known ? QFileInfo(QFile::decodeName(self.dli_fname)).canonicalPath() : QString();
}

}  // namespace headunit
