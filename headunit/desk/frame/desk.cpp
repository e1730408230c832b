// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/frame/desk.h"

#include "headunit/desk/frame/deskstyle.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/settings/unitroot.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QStatusBar>
#include <QToolButton>

namespace headunit {

namespace {

constexpr QSize firstSize(1180, 720);
const QString geometryKey = QStringLiteral("geometry");
const QString stateKey = QStringLiteral("state");

/// Where the desk was. Beside the unit's own files, as each unit is tuned by itself.
QString placesFile() {
    return unitRoot() + QStringLiteral("/desk/places.ini");
}

}  // namespace

Desk::Desk(DeskHost &host)
    : m_context(host),
      m_deskMenu(menuBar()->addMenu(QString())),
      m_editMenu(menuBar()->addMenu(QString())),
      m_windowMenu(menuBar()->addMenu(QString())),
      m_close(m_deskMenu->addAction(QString(), this, &QWidget::close)),
      m_undo(m_editMenu->addAction(QString())),
      m_redo(m_editMenu->addAction(QString())),
      m_step(new QLabel(this)),
      m_undoKey(new QToolButton(this)) {
    setObjectName(QStringLiteral("desk"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);  // the unit is over when its own window is closed
    setDockNestingEnabled(true);
    dressForDesk(this);
    m_deskMenu->setObjectName(QStringLiteral("menu_desk"));
    m_editMenu->setObjectName(QStringLiteral("menu_edit"));
    m_windowMenu->setObjectName(QStringLiteral("menu_windows"));
    m_close->setObjectName(QStringLiteral("action_close"));
    m_close->setShortcut(Qt::CTRL + Qt::Key_W);
    qApp->installEventFilter(this);  // for whatever this window will hold, see eventFilter()
    addUndo();
    addPanels();
    retranslate();
    restorePlaces();
}

Desk::~Desk() {
    savePlaces();
    for (const Place &place : m_places) {
        delete place.panel;  // while what they share is there
    }
}

void Desk::addPanels() {
    for (const PanelRow *row = panelsBegin(); row != panelsEnd(); ++row) {
        auto *const dock = new QDockWidget(this);
        dock->setObjectName(QString::fromLatin1(row->name));
        dock->setAttribute(Qt::WA_WindowPropagation);  // for when it is free
        addDockWidget(row == panelsBegin() ? Qt::LeftDockWidgetArea : Qt::RightDockWidgetArea, dock);
        dock->setVisible(row->openAtFirst);
        QAction *const toggle = dock->toggleViewAction();
        toggle->setObjectName(QStringLiteral("action_") + QLatin1String(row->name));
        toggle->setShortcut(QKeySequence(QLatin1String(row->shortcut)));
        toggle->setShortcutContext(Qt::ApplicationShortcut);  // in the unit's window, too
        m_windowMenu->addAction(toggle);
        m_places.push_back({row, dock, nullptr});
        const size_t index = m_places.size() - 1;
        connect(dock, &QDockWidget::visibilityChanged, this, [this, index](bool visible) {
            if (visible) {
                fill(m_places[index]);
            }
        });
    }
}

void Desk::addUndo() {
    const struct {
        QAction *action;
        const char *name;
        QKeySequence shortcut;
        void (QUndoStack::*slot)();
    } rows[] = {
        {m_undo, "action_undo", Qt::CTRL + Qt::Key_Z, &QUndoStack::undo},
        {m_redo, "action_redo", Qt::CTRL + Qt::SHIFT + Qt::Key_Z, &QUndoStack::redo},
    };
    ChangeHistory &history = m_context.history;
    for (const auto &row : rows) {
        row.action->setObjectName(QLatin1String(row.name));
        row.action->setShortcut(row.shortcut);
        row.action->setShortcutContext(Qt::ApplicationShortcut);
        connect(row.action, &QAction::triggered, this, [&history, slot = row.slot] {
            history.commit();  // what a touch has just changed is a step, too
            (history.stack().*slot)();
        });
    }
    m_step->setObjectName(QStringLiteral("last_step"));
    m_undoKey->setObjectName(QStringLiteral("key_undo"));
    m_undoKey->setToolButtonStyle(Qt::ToolButtonTextOnly);
    connect(m_undoKey, &QToolButton::clicked, m_undo, &QAction::trigger);
    statusBar()->addWidget(m_step);
    statusBar()->addWidget(m_undoKey);
    connect(&history, &ChangeHistory::stepped, this, &Desk::showStep);
    connect(&history.stack(), &QUndoStack::indexChanged, this, &Desk::showStep);
}

void Desk::showStep() {
    const QUndoStack &stack = m_context.history.stack();
    m_undo->setText(stack.canUndo() ? deskText("&Undo %1").arg(stack.undoText()) : deskText("&Undo"));
    m_redo->setText(stack.canRedo() ? deskText("&Redo %1").arg(stack.redoText()) : deskText("&Redo"));
    m_undo->setEnabled(stack.canUndo());
    m_redo->setEnabled(stack.canRedo());
    m_step->setText(stack.undoText());
    m_undoKey->setVisible(stack.canUndo());
}

void Desk::fill(Place &place) {
    if (!place.panel) {
        place.panel = place.row->make(m_context, place.dock);
        place.panel->setObjectName(QLatin1String(place.row->name) + QStringLiteral("_panel"));
        place.dock->setWidget(place.panel);
        place.panel->retranslate();
    }
}

void Desk::open(const QString &name) {
    show();
    for (Place &place : m_places) {
        if (name == QLatin1String(place.row->name)) {
            place.dock->show();
            place.dock->raise();
        }
    }
    raise();
    activateWindow();
}

Panel *Desk::panel(const QString &name) {
    for (Place &place : m_places) {
        if (name == QLatin1String(place.row->name)) {
            fill(place);
            return place.panel;
        }
    }
    return nullptr;
}

void Desk::retranslate() {
    setWindowTitle(deskText("Tuner's desk"));
    m_deskMenu->setTitle(deskText("&Desk"));
    m_editMenu->setTitle(deskText("&Edit"));
    m_windowMenu->setTitle(deskText("&Windows"));
    m_close->setText(deskText("&Close the desk"));
    m_undoKey->setText(deskText("Undo"));
    m_undoKey->setToolTip(deskText("Takes the last change back (%1)").arg(m_undo->shortcut().toString()));
    m_context.history.retranslate();
    showStep();
    for (const Place &place : m_places) {
        const QString title = deskText(place.row->title);
        place.dock->setWindowTitle(title);
        place.dock->setAccessibleName(title);
        place.dock->toggleViewAction()->setToolTip(deskText(place.row->tip));
        place.dock->toggleViewAction()->setStatusTip(deskText(place.row->tip));
        if (place.panel) {
            place.panel->retranslate();
        }
    }
}

void Desk::restorePlaces() {
    const QSettings places(placesFile(), QSettings::IniFormat);
    if (!restoreGeometry(places.value(geometryKey).toByteArray())) {
        resize(firstSize);
    }
    restoreState(places.value(stateKey).toByteArray());
}

void Desk::savePlaces() {
    QSettings places(placesFile(), QSettings::IniFormat);
    places.setValue(geometryKey, saveGeometry());
    places.setValue(stateKey, saveState());
}

bool Desk::owns(const QWidget *widget) const {
    const QWidget *owner = widget;
    while (owner && owner != this) {
        owner = owner->parentWidget();
    }
    return owner;
}

bool Desk::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Polish && watched->isWidgetType()) {
        auto *const widget = static_cast<QWidget *>(watched);
        if (widget != this && owns(widget)) {
            followDesk(widget);
        }
    }
    return false;
}

void Desk::changeEvent(QEvent *event) {
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

}  // namespace headunit
