#pragma once

#include <QPixmap>
#include <QWidget>

namespace Ui {
class c20_060_setup_container;
}

/// The screen frame and its ground: sets the container form up on itself. Its four regions are the parents of bars and
/// pages.
class c20_060_audiosetting_container_widget : public QWidget {
    Q_OBJECT
public:
    /// \a form stays the caller's and must live as long as this widget.
    c20_060_audiosetting_container_widget(QWidget *parent, Ui::c20_060_setup_container *form);

    /// Paints the ground of \a rect, in this widget's coordinates.
    void paintGround(QPainter *painter, const QRect &rect) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_ground;  ///< a strip of the screen's height, repeated from left to right
    Ui::c20_060_setup_container *m_form;
};
