#pragma once

#include "navigation/emptypage.h"

/// The Crossover page.
class Audiosetting_right_crossover_widget : public EmptyPage {
    Q_OBJECT
public:
    explicit Audiosetting_right_crossover_widget(QWidget *parent) : EmptyPage(parent) {}
};
