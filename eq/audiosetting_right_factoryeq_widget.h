#pragma once

#include "navigation/emptypage.h"

/// The page of factory EQ presets.
class Audiosetting_right_factoryeq_widget : public EmptyPage {
    Q_OBJECT
public:
    explicit Audiosetting_right_factoryeq_widget(QWidget *parent) : EmptyPage(parent) {}
};
