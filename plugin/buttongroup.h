#pragma once

#include <QAbstractButton>
#include <QButtonGroup>

namespace audiosetting {

/// Checks one key of an exclusive group, or none where the group has no such id. Emits no click.
inline void checkExclusively(QButtonGroup *group, int id) {
    group->setExclusive(false);
    const QList<QAbstractButton *> keys = group->buttons();
    for (QAbstractButton *key : keys) {
        key->setChecked(group->id(key) == id);
    }
    group->setExclusive(true);
}

}  // namespace audiosetting
