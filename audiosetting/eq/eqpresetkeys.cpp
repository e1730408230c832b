// SPDX-License-Identifier: Apache-2.0
#include "eqpresetkeys.h"

#include "base/accessibility.h"
#include "base/buttongroup.h"
#include "base/picture.h"
#include "base/presetkey.h"
#include "eqsettings.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>

namespace audiosetting {

EqPresetKeys::EqPresetKeys(QObject *owner) : m_group(new QButtonGroup(owner)) {}

void EqPresetKeys::add(QPushButton *key, QLabel *name, QLabel *emptyPicture) {
    m_group->addButton(key, m_names.size());
    m_names.append(name);
    m_emptyPictures.append(emptyPicture);
    emptyPicture->setPixmap(picture("eq_preset_icon"));  // the form's own is not that of a dense display
    // They lie over the key: touches go through.
    name->setAttribute(Qt::WA_TransparentForMouseEvents);
    emptyPicture->setAttribute(Qt::WA_TransparentForMouseEvents);
}

void EqPresetKeys::updateSaved() {
    for (int preset = 0; preset < m_names.size(); ++preset) {
        const bool saved = eq::presetSaved(preset).flag();
        m_names.at(preset)->setVisible(saved);
        m_emptyPictures.at(preset)->setVisible(!saved);
        nameControls({{m_group->button(preset), m_names.at(preset), nullptr}});
    }
}

void EqPresetKeys::select(int preset) {
    checkExclusively(m_group, eq::isPreset(preset) && eq::presetSaved(preset).flag() ? preset : eq::noPreset);
}

void EqPresetKeys::setLongClick(int preset, bool on) {
    if (QAbstractButton *key = m_group->button(preset)) {
        audiosetting::setLongClick(key, on);
    }
}

bool EqPresetKeys::longClick(int preset) const {
    const QAbstractButton *key = m_group->button(preset);
    return key && audiosetting::longClick(key);
}

}  // namespace audiosetting
