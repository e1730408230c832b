// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

namespace headunit {

class DeskKey;
class HardKeys;

/// The unit as it stands on the desk: the screen of 1024 x 600, and beside it the hard keys.
///
/// Where the window is larger than the unit, the unit stands in its middle.
class DeskWindow : public QWidget {
    Q_OBJECT
public:
    enum class Size {
        Fixed,  ///< the unit's, as far as the desk's window manager heeds it
        Any,    ///< whatever it is given
    };
    explicit DeskWindow(Size size = Size::Fixed);

    /// Size of the unit, screen and hard keys.
    static QSize unitSize();

    /// The screen; everything that the unit shows is a child of it.
    QWidget *screen() const { return m_screen; }
    HardKeys *hardKeys() const { return m_hardKeys; }

Q_SIGNALS:
    /// The tuner's desk is to be opened, by its key or by F12.
    void deskWanted();
    /// Once: the window is being painted for the first time, and is by the time that posted events are delivered.
    void exposed();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;

private:
    QWidget *const m_screen;
    HardKeys *const m_hardKeys;
    DeskKey *const m_deskKey;
    bool m_exposed = false;
};

}  // namespace headunit
