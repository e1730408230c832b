// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QScopedPointer>
#include <QWidget>

namespace Ui {
class AudiosettingsRoot;
}

/// The list behind "Advanced": the Loudness switch and the entries Source Gain, Volume Settings and Reset.
class AudiosettingsRoot : public QWidget {
    Q_OBJECT
public:
    explicit AudiosettingsRoot(QWidget *parent);
    ~AudiosettingsRoot() override;

    /// Greys the Loudness row, or refreshes it from the store.
    void updateKeyEn(bool disabled);
    void retranslateUi();

Q_SIGNALS:
    void showAudioSettings();
    void showSourceGain();
    void showResetAudiosettings();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void on_Key_003_source_gain_clicked();
    void on_Key_004_vol_settings_clicked();
    void on_Key_005_res_audio_clicked();
    void on_Key_001_loudness_clicked();

private:
    QScopedPointer<Ui::AudiosettingsRoot> m_ui;
};
