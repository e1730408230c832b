// SPDX-License-Identifier: Apache-2.0
#include "headunit/desk/bridges/curvespanel.h"

#include "headunit/audio/service/soundmodel.h"
#include "headunit/audio/service/soundtables.h"
#include "headunit/desk/bridges/curvefile.h"
#include "headunit/desk/frame/deskcontext.h"
#include "headunit/desk/frame/desktext.h"
#include "headunit/desk/frame/savefile.h"

#include <QAction>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include <cmath>

namespace headunit {

namespace {

constexpr int space = 6;
constexpr int rowPadding = 4;
constexpr int columnWidth = 150;
enum Column { Band, InFile, Taken, Left, Now, columns };

QString withShortcut(const QString &text, const QAction *action) {
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    return keys.isEmpty() ? text : QStringLiteral("%1 (%2)").arg(text, keys);
}

QString decibels(double value, int decimals) {
    const double step = std::pow(10, -decimals);
    const double shown = std::round(value / step) * step + 0.0;  // what is added makes "0.0" of "-0.0"
    return QStringLiteral("%1%2 dB").arg(shown > 0 ? QStringLiteral("+") : QString()).arg(shown, 0, 'f', decimals);
}

}  // namespace

CurvesPanel::CurvesPanel(DeskContext &context, QWidget *parent)
    : Panel(parent),
      m_context(context),
      m_tools(new QToolBar(this)),
      m_import(addTool("import", QKeySequence::Open, &CurvesPanel::askToImport)),
      m_apply(addTool("apply", Qt::CTRL + Qt::Key_Return, &CurvesPanel::apply)),
      m_exportCurve(addTool("export", QKeySequence::Save, &CurvesPanel::askToExportCurve)),
      m_exportResponses(addTool("responses", Qt::CTRL + Qt::SHIFT + Qt::Key_S, &CurvesPanel::askToExportResponses)),
      m_title(new QLabel(this)),
      m_bands(new QTableWidget(static_cast<int>(bandFrequencies.size()), columns, this)),
      m_message(new QLabel(this)) {
    m_tools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_title->setObjectName(QStringLiteral("curves_title"));
    m_title->setContentsMargins(space, 0, space, 0);
    m_message->setObjectName(QStringLiteral("curves_message"));
    m_message->setContentsMargins(space, 0, space, 2);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_message->setWordWrap(true);
    setUpTable();
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_tools);
    layout->addWidget(m_title);
    layout->addWidget(m_bands, 1);
    layout->addWidget(m_message);
    connect(&SoundModel::instance(), &SoundModel::changed, this, &CurvesPanel::showBands);
}

QAction *CurvesPanel::addTool(const char *name, const QKeySequence &shortcut, void (CurvesPanel::*slot)()) {
    QAction *const action = m_tools->addAction(QString());
    action->setObjectName(QStringLiteral("curves_") + QLatin1String(name));
    action->setShortcut(shortcut);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(action);
    m_tools->widgetForAction(action)->setObjectName(QStringLiteral("curves_key_") + QLatin1String(name));
    connect(action, &QAction::triggered, this, slot);
    return action;
}

void CurvesPanel::setUpTable() {
    m_bands->setObjectName(QStringLiteral("curves_bands"));
    m_bands->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_bands->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_bands->setTabKeyNavigation(false);
    m_bands->verticalHeader()->hide();
    m_bands->verticalHeader()->setDefaultSectionSize(QFontMetrics(font()).height() + rowPadding);
    m_bands->horizontalHeader()->setHighlightSections(false);
    m_bands->horizontalHeader()->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (int column = 0; column < columns; ++column) {
        m_bands->setColumnWidth(column, columnWidth);
        for (int row = 0; row < m_bands->rowCount(); ++row) {
            auto *const item = new QTableWidgetItem;
            item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            m_bands->setItem(row, column, item);
        }
    }
}

void CurvesPanel::showBands() {
    const engine::Curve now = engine::curveInForce(SoundModel::instance().state());
    const bool there = !m_taken.values.isEmpty();
    for (size_t band = 0; band < now.size(); ++band) {
        const int row = static_cast<int>(band);
        const double wanted = there ? m_curve.decibels(bandFrequencies[band]) : 0;
        m_bands->item(row, Band)->setText(QStringLiteral("%1 Hz").arg(bandFrequencies[band]));
        m_bands->item(row, InFile)->setText(there ? decibels(wanted, 1) : QString());
        m_bands->item(row, Taken)->setText(there ? decibels(m_fit.gains[band], 0) : QString());
        m_bands->item(row, Left)->setText(there ? decibels(wanted - m_fit.gains[band], 1) : QString());
        m_bands->item(row, Now)->setText(decibels(now[band], 0));
    }
    m_title->setText(there ? deskText("\"%1\": %2 dB remain on average, %3 dB at most, at %4 Hz")
                                 .arg(m_name)
                                 .arg(m_fit.rms, 0, 'f', 2)
                                 .arg(std::abs(m_fit.most), 0, 'f', 1)
                                 .arg(std::lround(m_fit.mostHz))
                           : deskText("Import a filter list of Equalizer APO or REW to see what the bands make of it"));
    m_apply->setEnabled(there);
}

void CurvesPanel::askToImport() {
    askWhatToOpen(this, deskText("Import a curve"), {deskText("Filter list (*.txt)")},
                  [this](const QString &path) { open(path); });
}

void CurvesPanel::open(const QString &path) {
    m_name = QFileInfo(path).completeBaseName();
    m_taken = readCurve(path, &m_curve, &m_fit);
    // The last remark says what the title does.
    const QStringList remarks = m_taken.remarks.mid(0, m_taken.remarks.size() - 1);
    m_message->setText(m_taken.problem.isEmpty() ? remarks.join(QLatin1Char('\n')) : m_taken.problem);
    showBands();
}

void CurvesPanel::apply() {
    if (!m_taken.values.isEmpty()) {
        m_context.history.change(DESK_TEXT("Curve"), -1, m_taken.values, nullptr);
        m_message->setText(deskText("\"%1\" is in force").arg(m_name));
    }
}

void CurvesPanel::say(const QString &problem, const QString &path) {
    m_message->setText(problem.isEmpty() ? deskText("Saved in %1").arg(path) : problem);
}

void CurvesPanel::askToExportCurve() {
    askWhereToSave(this, deskText("Export the curve for Equalizer APO"), {deskText("Filter list (*.txt)")},
                   [this](const QString &path) { say(writeCurve(path, SoundModel::instance().state()), path); });
}

void CurvesPanel::askToExportResponses() {
    askWhereToSave(this, deskText("Export the responses of the outputs"),
                   {deskText("Response (*.frd)"), deskText("Response, REW (*.txt)")},
                   [this](const QString &path) { say(writeResponses(path, SoundModel::instance().state()), path); });
}

void CurvesPanel::retranslate() {
    const struct {
        QAction *action;
        QString text;
        QString tip;
    } rows[] = {
        {m_import, deskText("Import…"), deskText("Shows what the bands make of a filter list; Apply puts it in force")},
        {m_apply, deskText("Apply"), deskText("Makes the curve that is shown the custom curve")},
        {m_exportCurve, deskText("Export the curve…"), deskText("Writes the equaliser in force as filters")},
        {m_exportResponses, deskText("Export the responses…"),
         deskText("Writes the response of each output and of their sum, a file each: Hz, dB, degrees")},
    };
    for (const auto &row : rows) {
        row.action->setText(row.text);
        row.action->setToolTip(withShortcut(row.tip, row.action));
    }
    m_bands->setAccessibleName(deskText("Bands of the equaliser"));
    m_bands->setHorizontalHeaderLabels({deskText("Band"), deskText("In the file"), deskText("Taken as"),
                                        deskText("Left at the band"), deskText("Now")});
    m_message->setAccessibleName(deskText("Result"));
    showBands();
}

}  // namespace headunit
