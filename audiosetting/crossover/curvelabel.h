// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLabel>
#include <QPolygonF>

namespace audiosetting {
namespace crossover {
struct CurveLine;
}
}  // namespace audiosetting

/// A curve in a CurveGraph: it holds the whole picture, and its geometry says where and how stretched it is seen.
///
/// The label may be of any size and lie anywhere, also far outside the graph. The graph paints it, along the line that
/// the picture shows.
class CurveLabel : public QLabel {
    Q_OBJECT
public:
    explicit CurveLabel(QWidget *parent);

    /// Shows the picture of that name (audiosetting::picture()).
    void setCurve(const char *name);
    /// Null before setCurve().
    const audiosetting::crossover::CurveLine *line() const { return m_line; }

    /// The line in the graph's coordinates, over the graph's width and a little more; where it leaves the graph it runs
    /// along just above or below. Empty if none of it is that far left or right.
    QPolygonF seenLine() const;
    /// The -3 dB point, in the graph's coordinates.
    QPointF corner() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointF inGraph(const QPointF &inPicture) const;

    const audiosetting::crossover::CurveLine *m_line = nullptr;
};
