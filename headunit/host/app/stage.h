// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

class KeyEvent;
class QWidget;
class WindowInterface;

namespace headunit {

class ApplicationGuard;
struct WindowCall;

/// Drives the life cycle of the applications' windows: at most one is in front, on a stage widget that it fills.
///
/// The screen that comes to the front and the one that leaves it fade into each other; the new one has the input at
/// once.
///
/// Opening: onCreate, onShow, onEnter. Leaving: onExit, onHide. At the end of the unit: onDestroy, for each window
/// that was ever opened.
class Stage : public QObject {
    Q_OBJECT
public:
    static constexpr int fadeMilliseconds = 120;

    /// Shows windows as children of \a stage, above its other children.
    /// Calls them through \a guard: a window that throws is not called again, and not shown.
    Stage(QWidget *stage, ApplicationGuard &guard, QObject *parent = nullptr);

    /// The window in front, or null.
    WindowInterface *front() const { return m_front; }

    /// Brings a window to the front, leaving the one that is there. False if it has no widget to show, or throws.
    bool open(WindowInterface *window);
    /// Hides the window in front and shows it again, so that its pages read their settings anew.
    void refresh();
    /// Takes the window in front off the stage.
    void leave();
    /// Leaves, and ends every window. The windows may be deleted afterwards; releaseWidgets() then frees what they
    /// showed.
    void shutDown();
    /// Deletes the widgets that shown windows left behind. The windows must be gone.
    void releaseWidgets();

    /// Offers a hard key to the window in front. True if it used it.
    bool offerKey(KeyEvent *event);
    /// Keeps what was on the stage before, while it fades, above what came to the front.
    void raiseFade();

    /// Asks the window in front whether it answers Back itself.
    bool offerBack();

Q_SIGNALS:
    /// Another window, or none, is in front.
    void frontChanged();

private:
    bool tell(WindowInterface *window, const WindowCall &call);
    QWidget *widgetOf(WindowInterface *window);
    void takeUpWidget(QWidget *widget, WindowInterface *window);
    bool giveUpFront();
    void takeOffFront();
    void fadeFromPresent();

    QWidget *const m_stage;
    ApplicationGuard &m_guard;
    WindowInterface *m_front = nullptr;
    QVector<WindowInterface *> m_created;
    QVector<QPointer<QWidget>> m_widgets;
    QPointer<QWidget> m_fade;
    QPointer<QWidget> m_frontWidget;
};

}  // namespace headunit
