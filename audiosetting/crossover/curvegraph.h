// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QFrame>
#include <QPixmap>

#include <vector>

class CurveLabel;
class QPainter;

namespace audiosetting {
namespace crossover {
struct CurveLine;
}
}  // namespace audiosetting

/// Shows the curves of its CurveLabel children over a grid: the uppermost, which is the one that is set,
/// bright, with what lies below it filled and a dot at its corner; the others dim behind it; the figures before all.
///
/// The background with the dim curves and the whole are kept: a step draws one curve anew, only around its bend if it
/// stays as high as it was, and a showing none.
class CurveGraph : public QFrame {
    Q_OBJECT
public:
    explicit CurveGraph(QWidget *parent);

    /// Sets what lies before the curves, near the graph's right edge.
    void setFigures(const QPixmap &figures);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Shown {
        const audiosetting::crossover::CurveLine *line;
        QRect place;
        bool operator==(const Shown &other) const { return line == other.line && place == other.place; }
        bool hasFillOf(const Shown &other) const;
    };

    void compose();
    void paintBackground(QPainter &painter);
    void paintBright(QPainter &painter, const CurveLabel &label);

    QPixmap m_figures;
    QPixmap m_dim;  ///< the background with every curve but the uppermost
    QPixmap m_composed;
    // The curves that they show, from the lowest to the uppermost.
    std::vector<Shown> m_dimOf;
    std::vector<Shown> m_composedOf;
    QPolygonF m_bright;  ///< the uppermost's line
};
