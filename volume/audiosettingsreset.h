#pragma once

#include "navigation/emptypage.h"

/// The confirmation that resets all audio settings.
class Audiosettingsreset : public EmptyPage {
    Q_OBJECT
public:
    explicit Audiosettingsreset(QWidget *parent) : EmptyPage(parent) {}

Q_SIGNALS:
    void acceptClicked();
    void rejectClicked();
};
