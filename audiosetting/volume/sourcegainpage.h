// SPDX-License-Identifier: Apache-2.0
#pragma once

class QWidget;

namespace audiosetting {

/// The Source Gain page of the region that this build is for (AUDIOSETTING_SOURCE_GAIN_DAB).
QWidget *createSourceGainPage(QWidget *parent);

}  // namespace audiosetting
