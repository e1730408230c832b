// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QMetaType>
#include <QScopedPointer>
#include <QTimer>
#include <QWidget>

class QImage;
struct tagAudioEQItem_T;

namespace Ui {
class eq_adjust_fragment;
}
namespace cm {
class SliderBarWidget;
}

/// Pages of the audio settings, as EQWidget::eqSignalShowPage() names them to a host.
enum SettingPageType : int {
    SettingPageGeneral = 0,
    SettingPageEq = 1,
    SettingPageCrossover = 2,
    SettingPageTiming = 3,
    SettingPageFactoryEq = 4,
    SettingPageVolume = 5,
    SettingPageSourceGain = 6,
    SettingPageSettingsRoot = 7,
};
Q_DECLARE_METATYPE(SettingPageType)

namespace audiosetting {

class Look;

/// The band-adjust panel: an equaliser that a host may show by itself, 1024 x 552 px.
///
/// Keys step through the curves of the audio service, sliders edit its live custom curve. The panel stores nothing;
/// a band's value towards the service is its gain, -12 to 12 dB; one outside that range is shown as it is on its
/// label. Its back key posts the platform's back gesture
/// (TouchEvent 15) to the application object, which a host answers by closing the panel. Deleting the panel empties the
/// whole QPixmapCache of the process, so that the unit has the memory of its pictures back; others load theirs again
/// when they next show them. onEqTypeChanged() is required: units invoke it by name. Nothing here calls it.
class Q_DECL_EXPORT EQWidget : public QWidget {
    Q_OBJECT
public:
    explicit EQWidget(QWidget *parent = nullptr);
    ~EQWidget() override;

    void init();

    /// Shows the curve in force.
    void updateEqVal();
    void updateEqBar(tagAudioEQItem_T &item);
    void updateCustomEQ();
    void updateAllEqLabels(tagAudioEQItem_T &item);
    /// Writes the gain of one band (0 to 12) into the child label "val_<band>", if there is one; a host may add those
    /// of bands 10 to 12.
    void updateEqLabel(int band, int gain);
    /// One band moved to \a level, 0 (top) to 24.
    void setEqBarValue(int section, int level);
    /// "+5", "0", "-3".
    QString toEQString(const int &gain);
    void eq_section_drag_event(int section, int level, bool moving);

    void nextEQType();
    void prevEQType();
    /// Name of the curve in force; empty if it has none.
    QString getEQName();

Q_SIGNALS:
    // For hosts that embed the panel in pages of their own. The panel raises none of them itself.
    void touchBack();
    void eqSignalShowPage(SettingPageType page);
    void eqsignaltohome();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void update_eq_section_drag(int section, int value);
    void save_eq_section_drag(int section, int value);
    void onBackKeyClicked();
    void on_key_left_clicked();
    void on_key_right_clicked();
    void onEqTypeChanged(int type);
    void onSaveCustomEqValue();
    void onUpdateCustomEqData();
    void onResetEqValue();

private:
    void createSlider(int band);
    void retranslateUi();
    void updateName();
    void afterStep();

    QScopedPointer<Look> m_look;
    QScopedPointer<Ui::eq_adjust_fragment> m_ui;
    QList<cm::SliderBarWidget *> m_sliders;
    QImage *m_knob = nullptr;
    QList<int> m_gains;  ///< of the live custom curve, by band
    QTimer m_sendTimer;  ///< while it runs, a moving finger sends nothing
};

}  // namespace audiosetting
