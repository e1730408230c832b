// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/bridges/bandfit.h"
#include "headunit/desk/bridges/foreigncurve.h"
#include "headunit/desk/frame/panel.h"
#include "headunit/desk/setups/setupfile.h"

class QAction;
class QLabel;
class QTableWidget;
class QToolBar;

namespace headunit {

/// Curves from and for other programs: what the thirteen bands make of a filter list, and what leaves the unit.
class CurvesPanel : public Panel {
    Q_OBJECT
public:
    CurvesPanel(DeskContext &context, QWidget *parent);

    void retranslate() override;

private:
    QAction *addTool(const char *name, const QKeySequence &shortcut, void (CurvesPanel::*slot)());
    void setUpTable();
    void askToImport();
    void askToExportCurve();
    void askToExportResponses();
    void apply();
    Q_INVOKABLE void open(const QString &path);
    void say(const QString &problem, const QString &path);
    void showBands();

    DeskContext &m_context;
    ForeignCurve m_curve;  ///< of the file
    SetupFile m_taken;     ///< as settings; empty where there is no file, or none that can be used
    BandFit m_fit;
    QString m_name;
    QToolBar *const m_tools;
    QAction *const m_import;
    QAction *const m_apply;
    QAction *const m_exportCurve;
    QAction *const m_exportResponses;
    QLabel *const m_title;
    QTableWidget *const m_bands;
    QLabel *const m_message;
};

}  // namespace headunit
