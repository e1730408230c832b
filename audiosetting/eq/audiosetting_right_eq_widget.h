// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "eqband.h"
#include "eqpresetkeys.h"

#include <QImage>
#include <QList>
#include <QScopedPointer>
#include <QTimer>
#include <QWidget>

struct tagAudioEQItem_T;

namespace Ui {
class Audiosetting_right_eq_widget;
}
namespace cm {
class SliderBarWidget;
}  // namespace cm

/// The EQ page: thirteen bands with a slider and two step keys each, Flat, and five curves of the driver's own.
///
/// A slider edits the live custom curve of the audio service. A preset key that is held saves the curve shown; a short
/// press recalls what was saved. Functions that take a preset or a band ignore others than 0 to 4 and 0 to 12.
///
/// onEqTypeChanged(), onResetEqValue() and save_eq_section_drag() are required: units invoke them by name. So are
/// onSetFlatEq() and onSetCustom1() to 5, by which a unit sets a curve without a touch. Nothing here calls them.
class Audiosetting_right_eq_widget : public QWidget {
    Q_OBJECT
public:
    explicit Audiosetting_right_eq_widget(QWidget *parent);
    ~Audiosetting_right_eq_widget() override;

    void initUi();
    void initEqTypeLongPressed();
    void retranslateUi();

    /// Shows the curve in force.
    void updateEqVal();
    void updateEqBar(tagAudioEQItem_T &item);
    void updateCustomEQ();
    void setEqBarValue(int section, int value);
    void eq_section_drag_event(int section, int value, bool moving);

    /// Recalls a preset.
    void updateEqType(int preset);
    /// Saves the curve shown as a preset.
    void saveCustomEqValue(int preset, int section, int value);
    /// Writes one level of a preset.
    void updateCustomEqByType(int preset, int band, int level);
    /// One level of a preset.
    int getCustomEqValue(int band, int preset);
    /// Sends one level to the live custom curve.
    void updateCustomEqValue(int band, int level);
    void onSetFlatEq();
    void onSetCustom1() { recallPreset(0); }
    void onSetCustom2() { recallPreset(1); }
    void onSetCustom3() { recallPreset(2); }
    void onSetCustom4() { recallPreset(3); }
    void onSetCustom5() { recallPreset(4); }

    /// Whether the sliders show what the preset holds.
    bool eqValueCompare(int preset);
    /// Selects the preset that the sliders show.
    void updateCurrentSelect();
    /// Selects that preset if it is saved, else none.
    void updateCustomEqUi(int preset);
    void updatePrevNextAllUi();
    void updatePrevNextById(int band);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void update_eq_section_drag(int section, int value);
    void save_eq_section_drag(int section, int value);
    void onEqTypeChanged(int type);
    void onSaveCustomEqValue();
    void onUpdateCustomEqData();
    void onResetEqValue();
    void onButtonCustomPressed(int btnId);
    void onbuttonCustomClicked(int iIdx);
    void onCustomEqValueDelay();
    void onCustom1LongRelease() { savePreset(0); }
    void onCustom2LongRelease() { savePreset(1); }
    void onCustom3LongRelease() { savePreset(2); }
    void onCustom4LongRelease() { savePreset(3); }
    void onCustom5LongRelease() { savePreset(4); }
    void on_key_flat_clicked();
    void onSliderBarWidgetCompeted();
    void onBarPrevClicked(int id);
    void onBarNextClicked(int id);

private:
    cm::SliderBarWidget *slider(int band) const { return m_bands.at(band).slider(); }
    void stepBand(int band, void (cm::SliderBarWidget::*step)());
    void savePreset(int preset);
    void recallPreset(int preset);

    QScopedPointer<Ui::Audiosetting_right_eq_widget> m_ui;
    QImage m_knob;
    QImage *m_knobImage = &m_knob;  ///< the knob as the sliders take it
    QTimer m_commitTimer;           ///< while it runs, a finger moves a slider and nothing is sent
    QList<audiosetting::EqBand> m_bands;
    audiosetting::EqPresetKeys m_presetKeys;
    QList<int> m_levels;  ///< by band
    int m_dragSection = 0;
    int m_dragValue = 0;
};
