// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTimer>
#include <QWidget>

namespace headunit {

/// The level of a channel, shown over whatever is on the screen while the driver turns it, and gone a moment later.
class LevelOverlay : public QWidget {
    Q_OBJECT
public:
    /// How long it stays after the last change.
    static constexpr int showMilliseconds = 2000;
    /// How long it takes to go.
    static constexpr int fadeMilliseconds = 150;

    explicit LevelOverlay(QWidget *parent);

    /// Keeps clear of the status bar while it is shown.
    void setBelowStatusBar(bool below);
    /// Shows \a level (0 to 40) of the channel whose name has that text id.
    /// \a muted: the level is there, but not heard.
    void showLevel(int nameTextId, int level, bool muted = false);
    int level() const { return m_level; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void fadeOut();

    int m_nameTextId = 0;
    int m_level = 0;
    bool m_muted = false;
    QTimer m_hideTimer;
};

}  // namespace headunit
