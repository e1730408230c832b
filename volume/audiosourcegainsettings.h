#pragma once

#include "navigation/emptypage.h"

/// The Source Gain page.
class Audiosourcegainsettings : public EmptyPage {
    Q_OBJECT
public:
    explicit Audiosourcegainsettings(QWidget *parent) : EmptyPage(parent) {}
};
