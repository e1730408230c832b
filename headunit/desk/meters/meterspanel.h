// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/panel.h"
#include "headunit/desk/meters/ballistics.h"

#include <QTimer>

class QAction;
class QGridLayout;
class QLabel;
class QToolBar;

namespace headunit {

class MeterBar;

/// The meters window: how loud each output is, what the limiters take away, and how much room the settings leave.
class MetersPanel : public Panel {
    Q_OBJECT
public:
    static constexpr int frameTime = 33;      ///< ms
    static constexpr int silenceTime = 500;   ///< ms without a reading until nothing plays
    static constexpr int headroomTime = 100;  ///< ms from a change to its headroom

    MetersPanel(DeskContext &context, QWidget *parent);

    void retranslate() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    static constexpr size_t columns = engine::outputCount + engine::pairCount;
    struct Column {
        QLabel *name;
        MeterBar *bar;
        QLabel *highest;  ///< peak, or most reduction
        QLabel *rms;      ///< null for limiters, as is the next one
        QLabel *overs;
    };

    void addColumns(QGridLayout *grid);
    QLabel *number(QGridLayout *grid, int row, size_t column, const char *name);
    void poll();
    void showNeedles();
    void showState();
    void showHeadroom();

    DeskContext &m_context;
    Ballistics m_ballistics;
    bool m_primed = false;  ///< the first reading is of the time before
    bool m_playing = false;
    qint64 m_lastReading = 0;
    QTimer m_timer;
    QTimer m_headroomTimer;
    std::array<Column, columns> m_columns;
    std::array<QLabel *, 3> m_rowNames;
    QToolBar *const m_tools;
    QAction *const m_reset;
    QLabel *const m_state;
    QLabel *const m_headroom;
};

}  // namespace headunit
