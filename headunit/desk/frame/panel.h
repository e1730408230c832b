// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <memory>

namespace headunit {

class DeskContext;

/// One window of the desk, docked or free. It is made when it is first opened, and lives until the desk is closed.
///
/// Its children have object names (tests and scripts find it by them), accessible names where a text does not say
/// what it is, and tool tips with shortcuts.
class Panel : public QWidget {
    Q_OBJECT
public:
    using QWidget::QWidget;

    /// Sets every text, in the language in force. Called once the panel is made and whenever the language changes.
    virtual void retranslate() = 0;
};

/// A row of the table of panels.
struct PanelRow {
    const char *name;      ///< object name, for command line and remembered places
    const char *title;     ///< in English, see deskText()
    const char *tip;       ///< what it is for, likewise
    const char *shortcut;  ///< works in every window of the process
    bool openAtFirst;      ///< when the desk is opened for the first time ever
    Panel *(*make)(DeskContext &context, QWidget *parent);
};

/// All panels, in the order of the menu.
const PanelRow *panelsBegin();
const PanelRow *panelsEnd();

}  // namespace headunit
