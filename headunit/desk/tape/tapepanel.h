// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/panel.h"
#include "headunit/desk/tape/tapedelays.h"

class QAction;
class QDoubleSpinBox;
class QGridLayout;
class QLabel;
class QToolBar;

namespace headunit {

/// A tape measure: the distances of the loudspeakers, in cm or inches, become their delays.
class TapePanel : public Panel {
    Q_OBJECT
public:
    TapePanel(DeskContext &context, QWidget *parent);
    ~TapePanel() override;

    void retranslate() override;

private:
    struct Row {
        QLabel *name;
        QDoubleSpinBox *centimetres;
        QDoubleSpinBox *inches;
        QLabel *exact;
        QLabel *taken;
        QLabel *rounding;
        QLabel *now;
    };

    QDoubleSpinBox *addSpin(const QString &name, double low, double high, double value, double step);
    void addRows(QGridLayout *grid);
    void take(QDoubleSpinBox *from, QDoubleSpinBox *to, double factor);
    TapeDistances distances() const;
    void showDelays();
    void apply();
    void restore();
    void save() const;

    DeskContext &m_context;
    QToolBar *const m_tools;
    QAction *const m_apply;
    QLabel *const m_temperatureTitle;
    QDoubleSpinBox *const m_temperature;
    std::array<QLabel *, 7> m_heads{};
    std::array<Row, SoundState::outputs> m_rows{};
    QLabel *const m_message;
};

}  // namespace headunit
