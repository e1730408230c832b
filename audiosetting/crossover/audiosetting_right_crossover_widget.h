// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "crossoverfilters.h"

#include <QScopedPointer>
#include <QWidget>

class CurveLabel;
class QAbstractButton;
class QButtonGroup;

namespace Ui {
class Audiosetting_right_crossover_widget;
}

/// The Crossover page: the filters of the front, rear and subwoofer channels, and two presets of all of them.
///
/// Every change goes to the store and to the microcontroller at once; showing the page sends all channels anew.
/// The slots onLow_..., onHeigh_... and onSet...() are required: units invoke them by name. Nothing here calls them.
class Audiosetting_right_crossover_widget : public QWidget {
    Q_OBJECT
public:
    explicit Audiosetting_right_crossover_widget(QWidget *parent);
    ~Audiosetting_right_crossover_widget() override;

    void initUi();
    /// Reads all channels and the preset keys' state from the store. Sends nothing.
    void resume();
    void retranslateUi();

    /// Loads the three channels from preset 0 or 1; the channel shown stays.
    void getPreset(int preset);
    /// Saves the three channels as preset 0 or 1.
    void setPreset(int preset);
    /// Writes the three channels as the settings in force and sends them.
    void presetDataSync();
    /// Whether the stored settings in force are those of preset 0 or 1; where the curves lie does not count.
    bool comparePreset(int preset);
    /// Checks preset key 0 or 1; any other number checks none.
    void updatePresetButton(int preset);
    void updateCurrentPreset();
    void updatePresetBtnIcon(int preset);

public Q_SLOTS:
    void onGeneralButtonClicked(int iIdx);
    void onPresetButtonClicked(int iIdx);
    void onPreset1LongClicked() { savePreset(0); }
    void onPreset2LongClicked() { savePreset(1); }
    void onSlopMinusClicked() { stepSlope(-1); }
    void onSlopPlusClicked() { stepSlope(1); }
    void onFreqMinusClicked() { stepFrequency(-1); }
    void onFreqPlusClicked() { stepFrequency(1); }
    void onLevelPlusClicked();
    void onLevelMinusClicked();
    /// Place the channel's curve by its frequency, with the given top edge and height in px, and send the channel.
    void onLow_Subwoofer_Freq(int y, int heigh) { applyCurve(audiosetting::crossover::Subwoofer, y, heigh); }
    void onHeigh_Rear_Freq(int y, int heigh) { applyCurve(audiosetting::crossover::Rear, y, heigh); }
    void onHeigh_Front_Freq(int y, int heigh) { applyCurve(audiosetting::crossover::Front, y, heigh); }
    /// Show the channel's slope and send the channel.
    void onSetSubWooferSlopeBg() { applySlope(audiosetting::crossover::Subwoofer); }
    void onSetFrontSlopeBg() { applySlope(audiosetting::crossover::Front); }
    void onSetRearSlopeBg() { applySlope(audiosetting::crossover::Rear); }
    void setLevel_Minus();
    void setLevel_Plus();
    void onSelectSlope();
    /// Store the channel's level, and top edge and height of its curve in px. Send nothing.
    void onSetFrontData(int iIndex, int y, int heigh) { storeData(audiosetting::crossover::Front, iIndex, y, heigh); }
    void onSetRearData(int iIndex, int y, int heigh) { storeData(audiosetting::crossover::Rear, iIndex, y, heigh); }
    void onSetSubwooferData(int iIndex, int y, int heigh);
    void onUpdateCurrentSelect();
    void onResetCrossover() { reload(); }

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void reload();
    void refreshChannel(int channel);
    void applySlope(int channel);
    void applyCurve(int channel, int y, int heigh);
    void showFrequency(int channel);
    void showLevel(int channel);
    void storeData(int channel, int level, int y, int heigh);
    void stepSlope(int step);
    void stepFrequency(int step);
    void setLevel(int level, int y, int heigh);
    void savePreset(int preset);
    QAbstractButton *presetKey(int preset) const;

    QScopedPointer<Ui::Audiosetting_right_crossover_widget> m_ui;
    QButtonGroup *m_generalGroup = nullptr;
    QButtonGroup *m_presetGroup = nullptr;
    CurveLabel *m_curves[audiosetting::crossover::channelCount];
    audiosetting::crossover::CrossoverFilters m_filters;
    int m_type = audiosetting::crossover::Front;  ///< the channel shown; from the store, so it may be none
    bool m_offShown = false;                      ///< the frequency label shows the translated "off"
};
