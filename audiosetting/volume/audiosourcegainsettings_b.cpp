// SPDX-License-Identifier: Apache-2.0
#include "audiosourcegainsettings_b.h"

#include "ui_Audiosourcegainsettings_b.h"

Audiosourcegainsettings_b::Audiosourcegainsettings_b(QWidget *parent)
    : SourceGainWidget(parent), m_ui(new Ui::Audiosourcegainsettings_b) {
    m_ui->setupUi(this);
    // The slider shows SiriusXM's gain when the page is shown, the keys follow DAB's. Required: drivers know the row so
    // until they move it.
    setForm(*m_ui, {audiosetting::sourcegain::Dab, audiosetting::sourcegain::SiriusXm, 0, m_ui->txt_dab,
                    m_ui->dabslider, m_ui->key_dab_plus, m_ui->key_dab_minus, SLOT(onDablumeSliderChanged(int, int)),
                    SLOT(onDabPlus()), SLOT(onDabMinus())});
    initUi();
}

Audiosourcegainsettings_b::~Audiosourcegainsettings_b() {}
