// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QScopedPointer>
#include <QWidget>

class HorizontalSlider;
class QLabel;

namespace Ui {
class Audiovolumsettings;
}
namespace audiosetting {
struct LogPlace;
}
namespace cm {
class LabelButton;
class ScrollManage;
}  // namespace cm
namespace qvaudio {
class AudioService;
}

/// The Volume Settings page: the levels (0 to 40) of six channels, by slider and by keys. It follows what others
/// make of the same channels.
class Audiovolumsettings : public QWidget {
    Q_OBJECT
public:
    explicit Audiovolumsettings(QWidget *parent);
    ~Audiovolumsettings() override;

    void initUi();
    /// Reads the levels from the store and shows them.
    void resume();
    /// Whether the audio service holds another level than \a value for channel \a type.
    bool isUpdateVolume(int type, int value);
    /// Follows a change made elsewhere; false where the slider is null or under the finger.
    bool setCurrentVolumeSlider(HorizontalSlider *slider, int &level, int value);

    void updateBtnMainState() { updateKeys(Main); }
    void updateBtnPhoneState() { updateKeys(Phone); }
    void updateBtnRingtoneState() { updateKeys(Ringtone); }
    void updateBtnNaviState() { updateKeys(Navigation); }
    void updateBtnVoiceState() { updateKeys(Voice); }
    void updateBtnTAState() { updateKeys(Ta); }

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onMainVolumeSliderChanged(int iIdex, int iValue);
    void onPhoneVolSliderChanged(int iIdex, int iValue);
    void onVoiceVolSliderChanged(int iIdex, int iValue);
    void onNaviVolSliderChanged(int iIdex, int iValue);
    void onRingtoneVolSliderChanged(int iIdex, int iValue);
    void onTAVolSliderChanged(int iIdex, int iValue);
    void onMainVolumPlus();
    void onMainVolumMinus();
    void onPhoneVolumPlus();
    void onPhoneVolumMinus();
    void onVoiceVolumPlus() { stepUp(Voice); }
    void onVoiceVolumMinus() { stepDown(Voice); }
    void onNaviVolumPlus() { stepUp(Navigation); }
    void onNaviVolumMinus() { stepDown(Navigation); }
    void onRingtoneVolumPlus() { stepUp(Ringtone); }
    void onRingtoneVolumMinus() { stepDown(Ringtone); }
    void onTAVolumPlus() { stepUp(Ta); }
    void onTAVolumMinus() { stepDown(Ta); }
    void onAudioVolumeChange(int mute, int vol, int type);

private:
    void nameKeys();
    /// The rows, in the order in which they are loaded.
    enum RowId { Main, Ringtone, Phone, Navigation, Voice, Ta, RowCount };
    struct Row {
        int type = 0;  ///< the channel's number in the services and in its key
        const QLabel *caption = nullptr;
        HorizontalSlider *slider = nullptr;
        int level = 0;
        cm::LabelButton *minus = nullptr;
        cm::LabelButton *plus = nullptr;
    };

    void load();
    /// \a slot stands in the debug line.
    void changedBySlider(const audiosetting::LogPlace &slot, RowId id, int comparedType, int value);
    void stepUp(RowId id);
    void stepDown(RowId id);
    /// Sets the slider, whose notification sends a level that is new to the audio service.
    void applyLevel(RowId id);
    void sendLevel(RowId id);
    void updateKeys(RowId id);

    QScopedPointer<Ui::Audiovolumsettings> m_ui;
    cm::ScrollManage *m_scrollManage = nullptr;
    qvaudio::AudioService *m_audioService = nullptr;
    Row m_rows[RowCount];
    bool m_seen = false;  ///< shown, and not hidden since
};
