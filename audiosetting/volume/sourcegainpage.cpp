// SPDX-License-Identifier: Apache-2.0
#include "sourcegainpage.h"

#include "audiosourcegainsettings.h"
#include "audiosourcegainsettings_b.h"

namespace audiosetting {

QWidget *createSourceGainPage(QWidget *parent) {
#ifdef AUDIOSETTING_SOURCE_GAIN_DAB
    return new Audiosourcegainsettings_b(parent);
#else
    return new Audiosourcegainsettings(parent);
#endif
}

}  // namespace audiosetting
