// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QScopedPointer>
#include <QTimer>
#include <QWidget>

class AudioSettingsUtils;
class QAbstractButton;
class QButtonGroup;
class QLabel;

namespace Ui {
class Audiosetting_right_general_widget;
}
namespace qvaudio {
class AudioService;
}
namespace settings {
class balanceFaderControl;
}

/// The General page: Defeat, the entry to the advanced settings, the subwoofer, balance and fader.
class Audiosetting_right_general_widget : public QWidget {
    Q_OBJECT
public:
    explicit Audiosetting_right_general_widget(QWidget *parent);
    ~Audiosetting_right_general_widget() override;

    void initUi();
    /// Reads the subwoofer's settings from the store and shows them.
    void resume();
    /// Enables the page for Defeat off or greys it for Defeat on, and shows balance and fader.
    void updateKeyEn(bool defeat);
    void updateSubVolButton();
    void updateFaderButton();
    void updateBalanceButton();

Q_SIGNALS:
    /// The driver asked for the advanced settings.
    void advancedChanged();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onUpdateBalFadValue();
    void on_key_advanced_clicked();
    void on_key_defeat_clicked();
    void on_key_Subwoofer_clicked();
    void on_key_subvol_prev_clicked();
    void on_key_subvol_next_clicked();
    void onUpdate(int x, int y);
    void on_Key_update_clicked();
    void on_Key_fade_front_clicked();
    void on_Key_balance_right_clicked();
    void on_Key_balance_left_clicked();
    void on_Key_fade_rear_clicked();
    void onPhaseBtClicked(int id);

private:
    void nameKeys();
    void setSubwooferLevel(int level);
    void stepBalanceFader(int balanceStep, int faderStep);
    void showBalanceFader();
    void updateAxisButtons(QAbstractButton *plus, QAbstractButton *minus, int value);

    QScopedPointer<Ui::Audiosetting_right_general_widget> m_ui;
    int m_balance = 0;
    int m_fader = 0;  ///< positive is front; the service and the store count the other way
    QButtonGroup *m_phaseGroup = nullptr;
    settings::balanceFaderControl *m_pad = nullptr;
    qvaudio::AudioService *m_audioService;
    AudioSettingsUtils *m_settings;
    int m_subwooferLevel = 0;
    QTimer m_sendTimer;
    QList<QAbstractButton *> m_defeatedKeys;  ///< keys that Defeat disables
    QList<QLabel *> m_defeatedCaptions;       ///< captions that Defeat greys
};
