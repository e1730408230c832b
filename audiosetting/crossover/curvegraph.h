#pragma once

#include <QFrame>
#include <QPixmap>

#include <vector>

/// Shows the curves of its CurveLabel children over an opaque ground, the uppermost last.
///
/// It paints for them, from one picture that is composed anew when a curve changes: three layers of transparency
/// would otherwise be blended over the whole graph whenever it is shown.
class CurveGraph : public QFrame {
    Q_OBJECT
public:
    explicit CurveGraph(QWidget *parent);

    /// Sets the picture behind the curves; opaque, at least as large as the graph.
    void setGround(const QPixmap &ground);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Shown {
        qint64 curve;
        QRect place;
        bool operator==(const Shown &other) const { return curve == other.curve && place == other.place; }
    };

    std::vector<Shown> shown() const;
    void compose();

    QPixmap m_ground;
    QPixmap m_composed;
    std::vector<Shown> m_composedOf;  ///< the curves that m_composed shows, from the lowest to the uppermost
};
