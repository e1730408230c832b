// SPDX-License-Identifier: Apache-2.0
#include "c20_060_audiosetting_container_widget.h"

#include "ui_c20_060_setup_container.h"

c20_060_audiosetting_container_widget::c20_060_audiosetting_container_widget(QWidget *parent,
                                                                             Ui::c20_060_setup_container *form)
    : audiosetting::Background(parent), m_form(form) {
    m_form->setupUi(this);
}
