#pragma once

#include <QLabel>
#include <QPixmap>

/// A label that shows a whole curve picture, stretched to the label's own size.
///
/// The label may be of any size and lie anywhere, also far outside its parent: only what the parent lets see is
/// ever scaled, and only when the picture or the geometry changes.
class CurveLabel : public QLabel {
    Q_OBJECT
public:
    explicit CurveLabel(QWidget *parent);

    void setCurve(const QString &file);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void stretch(const QRect &visible);

    QString m_file;
    QPixmap m_curve;
    QPixmap m_stretched;  ///< what is seen of the curve, ready to paint
    QSize m_stretchedSize;
    QRect m_stretchedPart;  ///< the part of the label that m_stretched shows
};
