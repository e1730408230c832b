// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "timingsettings.h"

#include <QList>
#include <QScopedPointer>
#include <QWidget>

class QAbstractButton;
class QButtonGroup;
class QLabel;

namespace Ui {
class Audiosetting_right_timing_widget;
}

/// Ties an output to its controls, which belong to the page.
struct TimeDelayEntity {
    int index;
    QAbstractButton *minus;
    QAbstractButton *plus;
    QLabel *value;
};

/// The Timing page: the delays of six outputs, in milliseconds or inches, and two presets of all of them.
///
/// Every step stores the delay and sends all six; showing the page sends nothing.
class Audiosetting_right_timing_widget : public QWidget {
    Q_OBJECT
public:
    explicit Audiosetting_right_timing_widget(QWidget *parent);
    ~Audiosetting_right_timing_widget() override;

    /// Reads unit, delays and the preset keys' state from the store.
    void resume();
    void refreshUI();

    /// Loads the delays from preset 0 or 1 and stores them as the delays in force.
    void getPreset(int preset);
    /// Saves the delays as preset 0 or 1; other numbers save nothing.
    void setPreset(int preset);
    /// Whether the delays shown are those of preset 0 or 1.
    bool comparePreset(int preset);
    /// Checks preset key 0 or 1; any other number checks none.
    void updatePresetButton(int preset);
    void updatePresetBtnIcon(int preset);
    void buttonStateUpdate(int output);
    void sendAudioTimerDelay();

public Q_SLOTS:
    void initUi();
    void onGbButtonClicked(int iIdx);
    void onPresetClicked(int iIdx);
    void onPreset1LongPressed() { savePreset(0); }
    void onPreset2LongPressed() { savePreset(1); }
    void onFLPrevPressedRepeat() { buttonPrevClicked(audiosetting::timing::FrontLeft); }
    void onFLNextPressedRepeat() { buttonNextClicked(audiosetting::timing::FrontLeft); }
    void onFRPrevPressedRepeat() { buttonPrevClicked(audiosetting::timing::FrontRight); }
    void onFRNextPressedRepeat() { buttonNextClicked(audiosetting::timing::FrontRight); }
    void onRLPrevPressedRepeat() { buttonPrevClicked(audiosetting::timing::RearLeft); }
    void onRLNextPressedRepeat() { buttonNextClicked(audiosetting::timing::RearLeft); }
    void onRRPrevPressedRepeat() { buttonPrevClicked(audiosetting::timing::RearRight); }
    void onRRNextPressedRepeat() { buttonNextClicked(audiosetting::timing::RearRight); }
    void onSLPrevPressedRepeat() { buttonPrevClicked(audiosetting::timing::SubLeft); }
    void onSLNextPressedRepeat() { buttonNextClicked(audiosetting::timing::SubLeft); }
    void onSRPrevPressedRepeat() { buttonPrevClicked(audiosetting::timing::SubRight); }
    void onSRNextPressedRepeat() { buttonNextClicked(audiosetting::timing::SubRight); }
    void onFrontLeftMinus() { minusClicked(audiosetting::timing::FrontLeft); }
    void onFrontLeftPlus() { plusClicked(audiosetting::timing::FrontLeft); }
    void onFrontRightMinus() { minusClicked(audiosetting::timing::FrontRight); }
    void onFrontRightPlus() { plusClicked(audiosetting::timing::FrontRight); }
    void onRearLeftMinus() { minusClicked(audiosetting::timing::RearLeft); }
    void onRearLeftPlus() { plusClicked(audiosetting::timing::RearLeft); }
    void onRearRightMinus() { minusClicked(audiosetting::timing::RearRight); }
    void onRearRightPlus() { plusClicked(audiosetting::timing::RearRight); }
    void onSubLeftMinus() { minusClicked(audiosetting::timing::SubLeft); }
    void onSubLeftPlus() { plusClicked(audiosetting::timing::SubLeft); }
    void onSubRightMinus() { minusClicked(audiosetting::timing::SubRight); }
    void onSubRightPlus() { plusClicked(audiosetting::timing::SubRight); }
    /// Conversions between delays in 0.1 ms and paths in inches (timing/delayunits.h). Required: units invoke them by
    /// name. The page itself needs onMsSwapInch() alone.
    double onInchToDelayMs(int iInch);
    int onInchToVal(int iInch);
    int onInchSwapMs(int iInchVla);
    int onMsSwapInch(int iMsVla);
    void buttonPrevClicked(int iIdx);
    void buttonNextClicked(int iIdx);
    void onUpdateCurrentSelect();
    void onResetTimeDelay() { reload(); }

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void nameKeys();
    void reload();
    const TimeDelayEntity *entity(int output) const;
    void minusClicked(int output);
    void plusClicked(int output);
    void setDelay(int output, int delay);
    void savePreset(int preset);
    QAbstractButton *presetKey(int preset) const;

    static QList<TimeDelayEntity> s_entities;

    QScopedPointer<Ui::Audiosetting_right_timing_widget> m_ui;
    int m_type = audiosetting::timing::Milliseconds;  ///< the unit shown; from the store, so it may be none
    int m_delay[audiosetting::timing::outputCount] = {};
    QButtonGroup *m_unitGroup = nullptr;
    QButtonGroup *m_presetGroup = nullptr;
};
