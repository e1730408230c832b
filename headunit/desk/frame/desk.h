// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/deskcontext.h"

#include <QMainWindow>

#include <vector>

class QDockWidget;
class QLabel;
class QMenu;
class QToolButton;

namespace headunit {

class Panel;
struct PanelRow;

/// The tuner's desk: the frame in which its panels are docked, or from which they are taken free. It remembers where
/// everything was. Closing it deletes it, with all that it costs.
class Desk : public QMainWindow {
    Q_OBJECT
public:
    explicit Desk(DeskHost &host);
    ~Desk() override;

    /// Shows the desk and brings it to the front, with the panel of that name if there is one.
    void open(const QString &panel);
    /// The panel of that name, made if it is not there yet; null if there is none.
    Panel *panel(const QString &name);
    DeskContext &context() { return m_context; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Place {
        const PanelRow *row;
        QDockWidget *dock;
        Panel *panel;  ///< null until it is first seen
    };

    void addPanels();
    void addUndo();
    void showStep();
    void fill(Place &place);
    bool owns(const QWidget *widget) const;
    void retranslate();
    void restorePlaces();
    void savePlaces();

    DeskContext m_context;
    std::vector<Place> m_places;
    QMenu *const m_deskMenu;
    QMenu *const m_editMenu;
    QMenu *const m_windowMenu;
    QAction *const m_close;
    QAction *const m_undo;
    QAction *const m_redo;
    QLabel *const m_step;
    QToolButton *const m_undoKey;
};

}  // namespace headunit
