// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/app/hostlibrary.h"

#include "headunit/toolkit/unitfolder.h"

#include <QLibrary>

namespace headunit {

QFunctionPointer hostFunction(const char *library, const char *function, QString *problem) {
    QLibrary file(unitFolder() + QStringLiteral("/libheadunit%1.so").arg(QLatin1String(library)));
    const QFunctionPointer found = file.resolve(function);
    if (!found) {
        *problem = file.errorString();
    }
    return found;
}

}  // namespace headunit
