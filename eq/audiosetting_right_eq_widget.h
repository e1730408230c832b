#pragma once

#include "navigation/emptypage.h"

/// The EQ page.
class Audiosetting_right_eq_widget : public EmptyPage {
    Q_OBJECT
public:
    explicit Audiosetting_right_eq_widget(QWidget *parent) : EmptyPage(parent) {}
};
