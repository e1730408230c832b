// SPDX-License-Identifier: Apache-2.0
#pragma once

class QButtonGroup;

namespace audiosetting {

/// Checks one key of an exclusive group, or none where the group has no such id.
void checkExclusively(QButtonGroup *group, int id);

}  // namespace audiosetting
