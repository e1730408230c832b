// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QTimer>
#include <QWidget>

class QScrollArea;

namespace audiosetting {

/// Fades a list out at one of its ends while there is more of it beyond, so that a row is not cut. Touches go through
/// it.
///
/// It is there while the list rests: over rows that move it would have to be painted with each of their steps.
class ListFade : public QWidget {
    Q_OBJECT
public:
    enum End { Top, Bottom };

    /// Lies over that end of \a area, beside it on the page, from \a left on.
    ListFade(QScrollArea *area, End end, int left);

protected:
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void scrolled();
    void updateVisibility();

private:
    QScrollArea *const m_area;
    const End m_end;
    QTimer m_rest;
    QPixmap m_fade;
};

}  // namespace audiosetting
