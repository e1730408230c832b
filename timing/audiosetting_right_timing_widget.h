#pragma once

#include "navigation/emptypage.h"

/// The time-alignment page.
class Audiosetting_right_timing_widget : public EmptyPage {
    Q_OBJECT
public:
    explicit Audiosetting_right_timing_widget(QWidget *parent) : EmptyPage(parent) {}
};
