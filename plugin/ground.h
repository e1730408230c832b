#pragma once

#include <QLabel>
#include <QPixmap>

namespace audiosetting {

/// The part of the screen's ground that lies behind \a widget, in the widget's density; null where no frame holds it.
///
/// A widget that changes often draws it first and declares itself opaque: Qt then leaves everything behind it
/// unpainted, which is most of the cost of a small change.
QPixmap groundBehind(const QWidget *widget);

/// A label for a value that changes under the finger: opaque, with the ground of its own.
class ValueLabel : public QLabel {
    Q_OBJECT
public:
    explicit ValueLabel(QWidget *parent = nullptr) : QLabel(parent) {}

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_ground;
};

}  // namespace audiosetting
