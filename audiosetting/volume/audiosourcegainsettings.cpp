// SPDX-License-Identifier: Apache-2.0
#include "audiosourcegainsettings.h"

#include "ui_Audiosourcegainsettings.h"

Audiosourcegainsettings::Audiosourcegainsettings(QWidget *parent)
    : SourceGainWidget(parent), m_ui(new Ui::Audiosourcegainsettings) {
    m_ui->setupUi(this);
    setForm(*m_ui,
            {audiosetting::sourcegain::SiriusXm, audiosetting::sourcegain::SiriusXm, audiosetting::texts::siriusXm,
             m_ui->txt_siriusxm, m_ui->siriusxmslider, m_ui->key_siriusxm_plus, m_ui->key_siriusxm_minus,
             SLOT(onSiriuxXmlumeSliderChanged(int, int)), SLOT(onSiriusXmPlus()), SLOT(onSiriusXmMinus())});
    initUi();
}

Audiosourcegainsettings::~Audiosourcegainsettings() {}
