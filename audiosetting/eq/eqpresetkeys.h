// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVector>

class QAbstractButton;
class QButtonGroup;
class QLabel;
class QObject;
class QPushButton;

namespace audiosetting {

/// The keys of the EQ page's five presets. A key shows its name when the preset is saved, and a picture when it is
/// empty.
///
/// Functions that take a preset ignore others than 0 to 4. The store is only read.
class EqPresetKeys {
public:
    /// The key group belongs to \a owner.
    explicit EqPresetKeys(QObject *owner);

    /// Adds the key of the next preset, with the two labels that lie on it.
    void add(QPushButton *key, QLabel *name, QLabel *emptyPicture);
    /// The keys by preset.
    QButtonGroup *group() const { return m_group; }

    /// Shows of every preset whether it is saved.
    void updateSaved();
    /// Selects the key of a saved preset; any other number selects none.
    void select(int preset);

    /// Marks the key whose hold has just saved, so that the release which ends the hold does not recall.
    void setLongClick(int preset, bool on);
    bool longClick(int preset) const;

private:
    QButtonGroup *m_group;
    QVector<QLabel *> m_names;
    QVector<QLabel *> m_emptyPictures;
};

}  // namespace audiosetting
