// SPDX-License-Identifier: Apache-2.0
#include "buttongroup.h"

#include <QAbstractButton>
#include <QButtonGroup>

namespace audiosetting {

void checkExclusively(QButtonGroup *group, int id) {
    // An exclusive group never lets its last checked key go.
    group->setExclusive(false);
    const QList<QAbstractButton *> keys = group->buttons();
    for (QAbstractButton *key : keys) {
        key->setChecked(group->id(key) == id);
    }
    group->setExclusive(true);
}

}  // namespace audiosetting
