// SPDX-License-Identifier: Apache-2.0
#include "headunit/host/screens/bandadjust.h"

#include "headunit/host/app/hostlibrary.h"

#include <QtGlobal>

namespace headunit {

QWidget *createBandAdjust(QWidget *parent) {
    QString problem;
    const auto entry = reinterpret_cast<BandAdjustEntry>(hostFunction("bandadjust", bandAdjustEntryName, &problem));
    if (!entry) {
        qWarning("no band adjust here: %s", qUtf8Printable(problem));
        return nullptr;
    }
    return entry(parent);
}

}  // namespace headunit
