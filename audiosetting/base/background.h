// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QWidget>

namespace audiosetting {

/// A widget that paints the screen's background, and hands parts of it to what lies upon it.
class Background : public QWidget {
    Q_OBJECT
public:
    explicit Background(QWidget *parent = nullptr);

    /// Paints the background of \a rect, in this widget's coordinates.
    void paintBackground(QPainter *painter, const QRect &rect) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_columns;  ///< a strip of the screen's height, repeated from left to right
};

/// The part of the background that lies behind \a widget, in the widget's density; null where no Background
/// holds it or lies behind it.
///
/// A widget that changes often draws it first and declares itself opaque: Qt then leaves everything behind it
/// unpainted, which is most of the cost of a small change.
QPixmap backgroundBehind(const QWidget *widget);

}  // namespace audiosetting
