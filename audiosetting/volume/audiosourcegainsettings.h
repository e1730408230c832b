// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "sourcegainwidget.h"

#include <QScopedPointer>

namespace Ui {
class Audiosourcegainsettings;
}

/// The Source Gain page, with a row for SiriusXM.
class Audiosourcegainsettings : public audiosetting::SourceGainWidget {
    Q_OBJECT
public:
    explicit Audiosourcegainsettings(QWidget *parent);
    ~Audiosourcegainsettings() override;

    // Required: a unit that sets a gain itself brings that row's keys up to date by these. Nothing here calls them.
    void updateBtnRadioState() { updateKeys(Radio); }
    void updateBtnCarPlayState() { updateKeys(CarPlay); }
    void updateBtnAndroidAutoState() { updateKeys(AndroidAuto); }
    void updateBtnSiriState() { updateKeys(Regional); }
    void updateBtnBTMusicState() { updateKeys(BtMusic); }
    void updateBtnUSBState() { updateKeys(Usb); }

private Q_SLOTS:
    void onRadioVolumeSliderChanged(int iIdex, int iValue) { changedBySlider(Radio, iIdex, iValue); }
    void onAaVolumeSliderChanged(int iIdex, int iValue) { changedBySlider(AndroidAuto, iIdex, iValue); }
    void onCplumeSliderChanged(int iIdex, int iValue) { changedBySlider(CarPlay, iIdex, iValue); }
    void onSiriuxXmlumeSliderChanged(int iIdex, int iValue) { changedBySlider(Regional, iIdex, iValue); }
    void onBtMusiclumeSliderChanged(int iIdex, int iValue) { changedBySlider(BtMusic, iIdex, iValue); }
    void onUsblumeSliderChanged(int iIdex, int iValue) { changedBySlider(Usb, iIdex, iValue); }
    void onRadioCameraPlus() { stepUp(Radio); }
    void onRadioCameraMinus() { stepDown(Radio); }
    void onAAPlus() { stepUp(AndroidAuto); }
    void onAAMinus() { stepDown(AndroidAuto); }
    void onCpPlus() { stepUp(CarPlay); }
    void onCpMinus() { stepDown(CarPlay); }
    void onSiriusXmPlus() { stepUp(Regional); }
    void onSiriusXmMinus() { stepDown(Regional); }
    void onBtMusicPlus() { stepUp(BtMusic); }
    void onBtMusicMinus() { stepDown(BtMusic); }
    void onUsbPlus() { stepUp(Usb); }
    void onUsbMinus() { stepDown(Usb); }

private:
    QScopedPointer<Ui::Audiosourcegainsettings> m_ui;
};
