#pragma once

#include "navigation/emptypage.h"

/// The Volume Settings page.
class Audiovolumsettings : public EmptyPage {
    Q_OBJECT
public:
    explicit Audiovolumsettings(QWidget *parent) : EmptyPage(parent) {}
};
