// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/response/responsepanel.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/paneltools.h"
#include "headunit/desk/frame/savefile.h"
#include "headunit/desk/response/crossoverflaw.h"
#include "headunit/desk/response/responsepicture.h"
#include "headunit/desk/response/responseplot.h"
#include "headunit/desk/response/responsetable.h"
#include "headunit/toolkit/unitapplication.h"

#include <QAction>
#include <QHBoxLayout>
#include <QIODevice>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace headunit {

namespace {

/// A piece of the curve on its ground.
QIcon curveIcon(size_t curve) {
    constexpr int side = 16;
    QPixmap picture(side, side);
    picture.fill(colour::background);
    QPainter painter(&picture);
    painter.fillRect(QRect(0, side / 2 - 2, side, 4), responseColour(curve));
    return picture;
}

/// What is set, whatever plays just now.
SoundState settingsOf(const SoundState &state) {
    SoundState set = state;
    set.muted = false;
    set.activePrompts.fill(false);
    return set;
}

/// With a minus that is as wide as a plus, so that numbers stand still.
QString signedNumber(double value, int decimals) {
    if (!std::isfinite(value)) {
        return QStringLiteral("–");
    }
    const QString number = QString::number(std::abs(value), 'f', decimals);
    const bool zero = number.toDouble() == 0;
    return (zero ? QString() : value < 0 ? QStringLiteral("−") : QStringLiteral("+")) + number;
}

QString frequencyText(double hz) {
    return hz < 1000 ? deskText("%1 Hz").arg(hz, 0, 'f', 1) : deskText("%1 kHz").arg(hz / 1000, 0, 'f', 2);
}

}  // namespace

ResponsePanel::ResponsePanel(DeskContext &, QWidget *parent)
    : Panel(parent),
      m_frequencies(engine::audibleFrequencies()),
      m_curveKeys(new QToolBar(this)),
      m_tools(new QToolBar(this)),
      m_magnitude(addPlot(Quantity::Magnitude, "response_magnitude")),
      m_below(addPlot(Quantity::Phase, "response_below")),
      m_values(new QLabel(this)),
      m_remark(new QLabel(this)) {
    m_values->setObjectName(QStringLiteral("response_values"));
    m_remark->setObjectName(QStringLiteral("response_remark"));
    addCurveKeys();
    addTools();
    auto *const keys = new QHBoxLayout;
    keys->setContentsMargins(6, 4, 6, 0);
    keys->addWidget(m_curveKeys, 1);
    keys->addWidget(m_tools);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(keys);
    layout->addWidget(m_magnitude, 3);
    layout->addWidget(m_below, 2);
    for (QLabel *const label : {m_values, m_remark}) {
        label->setContentsMargins(6, 0, 6, 2);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    m_below->hide();
    for (ResponsePlot *const plot : {m_magnitude, m_below}) {
        ResponsePlot *const other = plot == m_magnitude ? m_below : m_magnitude;
        connect(plot, &ResponsePlot::frequenciesChanged, other, &ResponsePlot::showFrequencies);
        connect(plot, &ResponsePlot::pointedAt, this, &ResponsePanel::showCursor);
    }
    m_frame.setSingleShot(true);
    m_remarkTimer.setSingleShot(true);
    connect(&m_frame, &QTimer::timeout, this, &ResponsePanel::take);
    connect(&m_remarkTimer, &QTimer::timeout, this, &ResponsePanel::showRemark);
    connect(&SoundModel::instance(), &SoundModel::changed, this, &ResponsePanel::takeSoon);
}

void ResponsePanel::addCurveKeys() {
    m_curveKeys->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        const QByteArray name = "response_curve_" + QByteArray::number(int(curve));
        QAction *const action = addTool(this, m_curveKeys, name.constData(), Qt::Key_1 + static_cast<int>(curve));
        action->setIcon(curveIcon(curve));
        action->setCheckable(true);
        action->setChecked(true);
        connect(action, &QAction::toggled, this, [this, curve](bool visible) {
            m_magnitude->setCurveVisible(curve, visible);
            m_below->setCurveVisible(curve, visible);
            showValues();
        });
        m_curveActions << action;
    }
}

void ResponsePanel::addTools() {
    m_tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const auto tool = [this](const char *name, const QKeySequence &shortcut) {
        return addTool(this, m_tools, name, shortcut);
    };
    m_phase = tool("response_phase", Qt::Key_P);
    m_groupDelay = tool("response_group_delay", Qt::Key_G);
    m_delays = tool("response_delays", Qt::Key_D);
    m_hold = tool("response_hold", Qt::Key_H);
    m_zoomBack = tool("response_zoom_back", Qt::Key_Backspace);
    m_zoomOut = tool("response_zoom_out", Qt::Key_0);
    m_save = tool("response_save", QKeySequence::Save);
    for (QAction *const action : {m_phase, m_groupDelay, m_delays, m_hold}) {
        action->setCheckable(true);
    }
    m_delays->setChecked(true);
    connect(m_phase, &QAction::toggled, this, [this](bool on) {
        m_groupDelay->setChecked(m_groupDelay->isChecked() && !on);
        showBelow();
    });
    connect(m_groupDelay, &QAction::toggled, this, [this](bool on) {
        m_phase->setChecked(m_phase->isChecked() && !on);
        showBelow();
    });
    connect(m_delays, &QAction::toggled, this, &ResponsePanel::take);
    connect(m_hold, &QAction::toggled, this, &ResponsePanel::hold);
    for (ResponsePlot *const plot : {m_magnitude, m_below}) {
        connect(m_zoomBack, &QAction::triggered, plot, &ResponsePlot::zoomBack);
        connect(m_zoomOut, &QAction::triggered, plot, &ResponsePlot::zoomOut);
    }
    connect(m_save, &QAction::triggered, this, &ResponsePanel::askToSave);
}

ResponsePlot *ResponsePanel::addPlot(Quantity quantity, const char *name) {
    auto *const plot = new ResponsePlot(quantity, this);
    plot->setObjectName(QLatin1String(name));
    plot->canvas()->setObjectName(QLatin1String(name) + QStringLiteral("_canvas"));
    plot->canvas()->setFocusPolicy(Qt::StrongFocus);
    plot->canvas()->installEventFilter(this);
    return plot;
}

void ResponsePanel::showEvent(QShowEvent *event) {
    Panel::showEvent(event);
    take();
}

/// A touch changes many values one after the other, a drag many times a second.
void ResponsePanel::takeSoon() {
    if (isVisible() && !m_frame.isActive()) {
        m_frame.start(frameTime);
    }
}

void ResponsePanel::take() {
    SoundState state = settingsOf(SoundModel::instance().state());
    if (!m_delays->isChecked()) {
        state.delay.fill(0);
    }
    if (m_taken && state == m_state) {
        return;
    }
    m_taken = true;
    m_state = state;
    const engine::Parameters parameters = engine::designParameters(state);
    m_response.points = engine::calculateResponse(parameters, m_frequencies);
    m_response.delays = engine::calculateGroupDelays(parameters, m_frequencies);
    showCurves();
    showValues();
    if (!m_remarkTimer.isActive()) {
        m_remarkTimer.start(remarkTime - frameTime);
    }
}

std::vector<QPolygonF> ResponsePanel::curves(const Response &response, Quantity quantity) const {
    std::vector<QPolygonF> all;
    for (size_t curve = 0; curve < responseCurves && !response.points.empty(); ++curve) {
        all.push_back(quantity == Quantity::Magnitude ? magnitudeSamples(response.points, curve)
                      : quantity == Quantity::Phase   ? phaseSamples(response.points, curve)
                                                      : groupDelaySamples(m_frequencies, response.delays, curve));
    }
    return all;
}

QVector<ResponsePlot *> ResponsePanel::visiblePlots() const {
    return m_below->isHidden() ? QVector<ResponsePlot *>{m_magnitude} : QVector<ResponsePlot *>{m_magnitude, m_below};
}

void ResponsePanel::showCurves() {
    for (ResponsePlot *const plot : visiblePlots()) {
        plot->setCurves(curves(m_response, plot->quantity()));
    }
}

void ResponsePanel::showBelow() {
    const bool wanted = m_phase->isChecked() || m_groupDelay->isChecked();
    m_below->setQuantity(m_groupDelay->isChecked() ? Quantity::GroupDelay : Quantity::Phase);
    m_below->setVisible(wanted);
    if (wanted) {
        m_below->setCurves(curves(m_response, m_below->quantity()));
        m_below->setHeld(curves(m_held, m_below->quantity()));
        if (m_magnitude->isZoomed()) {
            const QwtInterval shown = m_magnitude->axisInterval(QwtPlot::xBottom);
            m_below->showFrequencies(shown.minValue(), shown.maxValue());
        }
    }
    retranslate();
    showValues();
}

void ResponsePanel::hold(bool on) {
    m_held = on ? m_response : Response();
    m_magnitude->setHeld(curves(m_held, Quantity::Magnitude));
    m_below->setHeld(curves(m_held, m_below->quantity()));
    showValues();
}

/// At the nearest frequency that has a value.
void ResponsePanel::showCursor(double hz) {
    const auto at = std::lower_bound(m_frequencies.begin(), m_frequencies.end(), hz);
    m_cursor = at == m_frequencies.end()                                  ? m_frequencies.back()
               : at != m_frequencies.begin() && hz / *(at - 1) < *at / hz ? *(at - 1)
                                                                          : *at;
    m_magnitude->setCursor(m_cursor);
    m_below->setCursor(m_cursor);
    showValues();
}

void ResponsePanel::showValues() {
    if (m_cursor == 0 || m_response.points.empty()) {
        m_values->setText(deskText("Point at a curve to read its values; draw a frame to see more of it"));
        return;
    }
    const auto at = std::lower_bound(m_frequencies.begin(), m_frequencies.end(), m_cursor);
    const auto index = static_cast<size_t>(at - m_frequencies.begin());
    const auto response = [index](const Response &from, size_t curve) {
        const engine::MeasuredPoint &point = from.points[index];
        return curve == curveOfSum ? point.sum() : point.outputs[curve];
    };
    QStringList texts{frequencyText(m_cursor)};
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        if (!m_curveActions[static_cast<int>(curve)]->isChecked()) {
            continue;
        }
        QString text = responseName(curve) + QLatin1Char(' ');
        text += deskText("%1 dB").arg(signedNumber(responseDecibels(response(m_response, curve)), 1));
        if (!m_held.points.empty()) {
            const double held = responseDecibels(response(m_held, curve));
            text += QLatin1Char(' ') + deskText("(held %1)").arg(signedNumber(held, 1));
        }
        if (m_phase->isChecked()) {
            text += QStringLiteral(", %1°").arg(signedNumber(responseDegrees(response(m_response, curve)), 0));
        } else if (m_groupDelay->isChecked()) {
            constexpr double millisecondsPerSecond = 1000;
            const double delay = m_response.delays[index][curve] * millisecondsPerSecond;
            text += QStringLiteral(", ") + deskText("%1 ms").arg(signedNumber(delay, 2));
        }
        texts << text;
    }
    m_values->setText(texts.join(QStringLiteral("  ·  ")));
}

void ResponsePanel::showRemark() {
    const bool silent = m_state.channelLevel[0] == 0;
    m_remark->setText(silent ? deskText("The main volume is 0: nothing is heard") : crossoverRemark(m_state));
}

void ResponsePanel::askToSave() {
    askWhereToSave(this, deskText("Save the diagrams"), {deskText("Picture (*.png)"), deskText("Drawing (*.svg)")},
                   [this](const QString &path) {
                       const QString problem = saveTo(path);
                       m_values->setText(problem.isEmpty() ? deskText("Saved in %1").arg(path) : problem);
                   });
}

QString ResponsePanel::saveTo(const QString &path) {
    const QByteArray picture = responsePicture(path, visiblePlots());
    return saveFile(this, path, 1, [&picture](QIODevice &file, int) { file.write(picture); });
}

bool ResponsePanel::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const auto *const key = static_cast<const QKeyEvent *>(event);
        const int way = key->key() == Qt::Key_Right ? 1 : key->key() == Qt::Key_Left ? -1 : 0;
        if (way != 0) {
            constexpr double stepsPerOctave = 24;
            constexpr double wide = 8;
            const double steps = key->modifiers() & Qt::ShiftModifier ? wide : 1;
            const double from = m_cursor > 0 ? m_cursor : 1000;
            // Where values lie closer than a step, to the next one.
            const auto at = std::lower_bound(m_frequencies.begin(), m_frequencies.end(), from);
            const bool end = way > 0 ? at + 1 == m_frequencies.end() : at == m_frequencies.begin();
            const double next = end ? from : *(at + way);
            const double stepped = from * std::exp2(way * steps / stepsPerOctave);
            showCursor(steps == 1 ? next : qBound(m_frequencies.front(), stepped, m_frequencies.back()));
            return true;
        }
    }
    return Panel::eventFilter(watched, event);
}

void ResponsePanel::retranslate() {
    for (size_t curve = 0; curve < responseCurves; ++curve) {
        setToolText(m_curveActions[static_cast<int>(curve)], responseName(curve),
                    deskText("Shows or hides this curve"));
    }
    setToolText(m_phase, deskText("Phase"), deskText("Shows the phase below the magnitude"));
    setToolText(m_groupDelay, deskText("Group delay"), deskText("Shows the group delay below the magnitude"));
    setToolText(m_delays, deskText("With delays"),
                deskText("Off: as if the delays made up for the distances of the loudspeakers"));
    setToolText(m_hold, deskText("Hold"), deskText("Keeps the present curves beside the coming ones"));
    setToolText(m_zoomBack, deskText("Zoom back"),
                deskText("Shows the part that was shown before; a right click, too"));
    setToolText(m_zoomOut, deskText("Whole"), deskText("Shows all frequencies"));
    setToolText(m_save, deskText("Save…"), deskText("Saves the diagrams as a picture, PNG or SVG"));
    m_magnitude->canvas()->setAccessibleName(deskText("Magnitude"));
    m_below->canvas()->setAccessibleName(m_groupDelay->isChecked() ? deskText("Group delay") : deskText("Phase"));
    m_magnitude->retranslate();
    m_below->retranslate();
    showValues();
    if (m_taken) {
        showRemark();
    }
}

}  // namespace headunit
