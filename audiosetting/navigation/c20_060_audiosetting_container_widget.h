// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "base/background.h"

namespace Ui {
class c20_060_setup_container;
}

/// The screen frame on its background: sets the container form up on itself. Its four regions are the parents of bars
/// and pages.
class c20_060_audiosetting_container_widget : public audiosetting::Background {
    Q_OBJECT
public:
    /// \a form stays the caller's and must live as long as this widget.
    c20_060_audiosetting_container_widget(QWidget *parent, Ui::c20_060_setup_container *form);

private:
    Ui::c20_060_setup_container *m_form;
};
