// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/desk/response/responsecurve.h"

#include <QTimer>
#include <QVector>

class QAction;
class QLabel;
class QToolBar;

namespace headunit {

class ResponsePlot;

/// The response window: what the six outputs and their sum make of a tone, as it is set now; follows a finger.
class ResponsePanel : public Panel {
    Q_OBJECT
public:
    /// Time from a change to its curves, and between two pictures of a drag, in ms.
    static constexpr int frameTime = 25;
    /// ... to the sentence on the crossover, which takes longer to work out.
    static constexpr int remarkTime = 75;

    ResponsePanel(DeskContext &context, QWidget *parent);

    void retranslate() override;
    /// Writes what is shown as a picture: SVG where the name ends in .svg, else PNG. Returns what went wrong.
    QString saveTo(const QString &path);

    /// What is shown, by frequency.
    const std::vector<engine::MeasuredPoint> &points() const { return m_response.points; }

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// One response, in all of its quantities.
    struct Response {
        std::vector<engine::MeasuredPoint> points;
        std::vector<engine::GroupDelays> delays;
    };

    void addCurveKeys();
    void addTools();
    ResponsePlot *addPlot(Quantity quantity, const char *name);
    void take();
    void takeSoon();
    void showCurves();
    std::vector<QPolygonF> curves(const Response &response, Quantity quantity) const;
    void showBelow();
    void showCursor(double hz);
    void showValues();
    void showRemark();
    void hold(bool on);
    void askToSave();
    QVector<ResponsePlot *> visiblePlots() const;

    const std::vector<double> m_frequencies;
    SoundState m_state;  ///< that is shown
    bool m_taken = false;
    Response m_response;
    Response m_held;
    double m_cursor = 0;  ///< Hz
    QTimer m_frame;
    QTimer m_remarkTimer;
    QToolBar *const m_curveKeys;
    QToolBar *const m_tools;
    QVector<QAction *> m_curveActions;
    QAction *m_phase;
    QAction *m_groupDelay;
    QAction *m_delays;
    QAction *m_hold;
    QAction *m_zoomBack;
    QAction *m_zoomOut;
    QAction *m_save;
    ResponsePlot *m_magnitude;
    ResponsePlot *m_below;
    QLabel *const m_values;
    QLabel *const m_remark;
};

}  // namespace headunit
