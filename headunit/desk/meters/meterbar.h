// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

namespace headunit {

/// An upright bar with a scale in dB: a level from below, or a reduction from above, with a mark.
class MeterBar : public QWidget {
    Q_OBJECT
public:
    enum Kind { Level, Reduction };
    static constexpr double lowestLevel = -60;
    static constexpr double mostReduction = -20;

    MeterBar(Kind kind, QWidget *parent);

    /// In dB; \a mean is drawn within a level's bar. Drawn anew only where it is seen.
    void setValues(double value, double mark, double mean = 0);
    /// How often it was drawn.
    int paints() const { return m_paints; }

    QSize sizeHint() const override { return QSize(44, 180); }
    QSize minimumSizeHint() const override { return QSize(36, 80); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int place(double decibels) const;
    QRect bar() const;

    const Kind m_kind;
    double m_value;
    double m_mark;
    double m_mean;
    int m_paints = 0;
};

}  // namespace headunit
