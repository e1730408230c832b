#pragma once

#include <QLabel>
#include <QPixmap>

class QPainter;

/// A curve in a CurveGraph: a whole picture, stretched to the label's own size.
///
/// The label may be of any size and lie anywhere, also far outside the graph: only what the graph lets see is ever
/// scaled, and only when the picture or the geometry changes. The graph paints it.
class CurveLabel : public QLabel {
    Q_OBJECT
public:
    explicit CurveLabel(QWidget *parent);

    /// Shows the picture of that name (audiosetting::picture()).
    void setCurve(const char *name);
    /// Tells pictures apart; 0 for none.
    qint64 curveKey() const { return m_curve.cacheKey(); }
    /// Paints what is seen of it, in the graph's coordinates.
    void paintCurve(QPainter &painter);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void stretch(const QRect &visible);

    QByteArray m_name;
    QPixmap m_curve;
    QPixmap m_stretched;  ///< what is seen of the curve, ready to paint
    QSize m_stretchedSize;
    QRect m_stretchedPart;  ///< the part of the label that m_stretched shows
};
