// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/meters/meterspanel.h"

#include "headunit/audio/engine/filterdesign.h"
#include "headunit/audio/engine/response.h"
#include "headunit/audio/live/outputnames.h"
#include "headunit/audio/live/soundmonitor.h"
#include "headunit/audio/service/soundmodel.h"
#include "headunit/desk/frame/clock.h"
#include "headunit/desk/frame/deskcontext.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/paneltools.h"
#include "headunit/desk/meters/meterbar.h"

#include <QAction>
#include <QGridLayout>
#include <QLabel>
#include <QToolBar>
#include <QVBoxLayout>

namespace headunit {

namespace {

enum GridRow { NameRow, BarRow, HighestRow, RmsRow, OversRow };

constexpr const char *pairTitles[engine::pairCount] = {DESK_TEXT("Limiter front"), DESK_TEXT("Limiter rear"),
                                                       DESK_TEXT("Limiter sub")};

QString decibelText(double decibels) {
    return decibels <= Ballistics::lowest ? QStringLiteral("–") : QString::number(decibels + 0.0, 'f', 1);
}

QString faultText(SoundFault fault) {
    switch (fault) {
        case SoundFault::NoServer:
            return deskText("Nothing plays: no sound server answers");
        case SoundFault::NoDevice:
            return deskText("Nothing plays: there is no sound device");
        case SoundFault::NoLibrary:
            return deskText("Nothing plays: the unit makes no sound here");
        case SoundFault::NothingToPlay:
            return deskText("Nothing plays: what was to be played cannot be read");
        case SoundFault::None:
            break;
    }
    return deskText("Nothing plays");
}

void setText(QLabel *label, const QString &text) {
    if (label->text() != text) {
        label->setText(text);
    }
}

}  // namespace

MetersPanel::MetersPanel(DeskContext &context, QWidget *parent)
    : Panel(parent),
      m_context(context),
      m_columns(),
      m_rowNames(),
      m_tools(new QToolBar(this)),
      m_reset(addTool(this, m_tools, "meters_reset", Qt::Key_R)),
      m_state(new QLabel(this)),
      m_headroom(new QLabel(this)) {
    m_state->setObjectName(QStringLiteral("meters_state"));
    m_headroom->setObjectName(QStringLiteral("meters_headroom"));
    m_headroom->setWordWrap(true);
    m_tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto *const top = new QHBoxLayout;
    top->addWidget(m_state, 1);
    top->addWidget(m_tools);
    auto *const grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    addColumns(grid);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 6);
    layout->addLayout(top);
    layout->addLayout(grid, 1);
    layout->addWidget(m_headroom);

    m_headroomTimer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &MetersPanel::poll);
    connect(&m_headroomTimer, &QTimer::timeout, this, &MetersPanel::showHeadroom);
    connect(m_reset, &QAction::triggered, this, [this] {
        m_ballistics.reset();
        showNeedles();
    });
    connect(&SoundModel::instance(), &SoundModel::faultChanged, this, &MetersPanel::showState);
    connect(&SoundModel::instance(), &SoundModel::changed, this, [this] {
        if (isVisible() && !m_headroomTimer.isActive()) {
            m_headroomTimer.start(headroomTime - frameTime);
        }
    });
}

QLabel *MetersPanel::number(QGridLayout *grid, int row, size_t column, const char *name) {
    auto *const label = new QLabel(this);
    label->setObjectName(QStringLiteral("meters_%1_%2").arg(QLatin1String(name)).arg(column));
    label->setAlignment(Qt::AlignHCenter);
    label->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("-100.0")));
    grid->addWidget(label, row, static_cast<int>(column) + 1);
    return label;
}

void MetersPanel::addColumns(QGridLayout *grid) {
    for (size_t i = 0; i < columns; ++i) {
        const bool limiter = i >= engine::outputCount;
        Column &column = m_columns[i];
        column.name = number(grid, NameRow, i, "name");
        column.bar = new MeterBar(limiter ? MeterBar::Reduction : MeterBar::Level, this);
        column.bar->setObjectName(QStringLiteral("meters_bar_%1").arg(i));
        grid->addWidget(column.bar, BarRow, static_cast<int>(i) + 1, limiter ? Qt::AlignHCenter : Qt::Alignment());
        column.highest = number(grid, HighestRow, i, "highest");
        if (!limiter) {
            column.rms = number(grid, RmsRow, i, "rms");
            column.overs = number(grid, OversRow, i, "overs");
        }
    }
    for (size_t row = 0; row < m_rowNames.size(); ++row) {
        m_rowNames[row] = new QLabel(this);
        grid->addWidget(m_rowNames[row], HighestRow + static_cast<int>(row), 0);
    }
    grid->setRowStretch(BarRow, 1);
}

void MetersPanel::showEvent(QShowEvent *event) {
    Panel::showEvent(event);
    m_primed = false;
    m_lastReading = deskClock();
    m_timer.start(frameTime);
    showHeadroom();
}

void MetersPanel::hideEvent(QHideEvent *event) {
    m_timer.stop();
    Panel::hideEvent(event);
}

void MetersPanel::poll() {
    engine::Meters reading;
    SoundMonitor *const sound = m_context.host.sound();
    if (sound && sound->takeReading(&reading)) {
        m_lastReading = deskClock();
        if (m_primed) {
            m_ballistics.feed(reading);
        }
        m_primed = true;
    }
    const bool playing = sound && m_primed && deskClock() - m_lastReading < silenceTime;
    if (playing != m_playing) {
        m_playing = playing;
        showState();
    }
    if (!playing) {
        m_ballistics.rest();
    }
    showNeedles();
}

void MetersPanel::showNeedles() {
    for (size_t i = 0; i < columns; ++i) {
        const Column &column = m_columns[i];
        if (i < engine::outputCount) {
            const Ballistics::Output &output = m_ballistics.output(i);
            column.bar->setValues(output.peak, output.held, output.rms);
            setText(column.highest, decibelText(output.highest));
            setText(column.rms, decibelText(output.rms));
            setText(column.overs, QString::number(output.overs));
        } else {
            const Ballistics::Pair &pair = m_ballistics.pair(i - engine::outputCount);
            column.bar->setValues(pair.reduction, pair.held);
            setText(column.highest, decibelText(pair.most));
        }
    }
}

void MetersPanel::showState() {
    const SoundFault fault = m_context.host.sound() ? SoundModel::instance().fault() : SoundFault::NoLibrary;
    m_state->setText(m_playing ? deskText("Playing") : faultText(fault));
}

/// What a tone of full scale, the loudest programme that there is at one frequency, would need.
void MetersPanel::showHeadroom() {
    SoundState state = SoundModel::instance().state();
    state.muted = false;
    state.activePrompts.fill(false);
    const engine::HighestGain highest = engine::highestGain(engine::designParameters(state));
    if (highest.gain == 0) {
        m_headroom->setText(deskText("The main volume is 0: nothing is heard"));
        return;
    }
    constexpr double least = 0.05;
    const double decibels = engine::toDecibels(highest.gain);
    const QString where = deskText("%1 Hz, %2").arg(qRound(highest.hz)).arg(QLatin1String(outputNames[highest.output]));
    m_headroom->setText(
        decibels >= least
            ? deskText("+%1 dB at %2: turn down by %1 dB or expect the limiter")
                  .arg(QString::number(decibels, 'f', 1), where)
            : deskText("Headroom of %1 dB; least of it at %2").arg(QString::number(std::abs(decibels), 'f', 1), where));
}

void MetersPanel::retranslate() {
    setToolText(m_reset, deskText("Reset"), deskText("Forgets the highest values and the clips"));
    for (size_t i = 0; i < columns; ++i) {
        const Column &column = m_columns[i];
        const bool limiter = i >= engine::outputCount;
        const QString name =
            limiter ? deskText(pairTitles[i - engine::outputCount]) : QString::fromLatin1(outputNames[i]);
        column.name->setText(limiter ? QString(name).replace(QLatin1Char(' '), QLatin1Char('\n')) : name);
        column.bar->setAccessibleName(name);
        column.bar->setToolTip(limiter ? deskText("What the limiter takes away, in dB")
                                       : deskText("Peak of the samples, held for 1.5 s, falling by 20 dB in 1.7 s "
                                                  "(IEC 60268-18); within it the mean of 300 ms"));
        column.highest->setToolTip(limiter ? deskText("The most that the limiter took away since the reset, in dB")
                                           : deskText("Highest sample since the reset, in dB of full scale"));
        if (!limiter) {
            column.rms->setToolTip(deskText("Mean of 300 ms in dB; a sine of full scale reads 0 dB (AES17)"));
            column.overs->setToolTip(
                deskText("How often the sound went beyond full scale since the reset, and the limiter caught it"));
        }
    }
    m_rowNames[0]->setText(deskText("Highest"));
    m_rowNames[1]->setText(deskText("RMS"));
    m_rowNames[2]->setText(deskText("Clips"));
    m_headroom->setToolTip(deskText("For a tone of full scale at the frequency that the settings raise most"));
    showState();
    showHeadroom();
    showNeedles();
}

}  // namespace headunit
