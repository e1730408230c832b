#pragma once

#include <QImage>
#include <QList>
#include <QScopedPointer>
#include <QTimer>
#include <QWidget>

class QButtonGroup;
class QLabel;
struct tagAudioEQItem_T;

namespace Ui {
class Audiosetting_right_eq_widget;
}
namespace cm {
class LabelButton;
class SliderBarWidget;
}  // namespace cm

/// The EQ page: thirteen bands with a slider and two step keys each, Flat, and five curves of the driver's own.
///
/// A slider edits the live custom curve of the audio service. A slot key held for 1.5 s stores the curve shown;
/// pressed shortly, it recalls what it stores. Functions that take a slot or a band ignore others than 0 to 4 and
/// 0 to 12.
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

    /// Recalls a slot.
    void updateEqType(int slot);
    /// Stores the curve shown in a slot.
    void saveCustomEqValue(int slot, int section, int value);
    /// Writes one level of a slot.
    void updateCustomEqByType(int slot, int band, int level);
    /// One level of a slot.
    int getCustomEqValue(int band, int slot);
    /// Sends one level to the live custom curve.
    void updateCustomEqValue(int band, int level);
    void onSetFlatEq();
    void onSetCustom1();
    void onSetCustom2();
    void onSetCustom3();
    void onSetCustom4();
    void onSetCustom5();

    /// Whether the sliders show what the slot stores.
    bool eqValueCompare(int slot);
    /// Selects the slot that the sliders show.
    void updateCurrentSelect();
    /// Selects that slot if it is stored, else none.
    void updateCustomEqUi(int slot);
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
    void onCustom1LongRelease();
    void onCustom2LongRelease();
    void onCustom3LongRelease();
    void onCustom4LongRelease();
    void onCustom5LongRelease();
    void on_key_flat_clicked();
    void onSliderBarWidgetCompeted();
    void onBarPrevClicked(int id);
    void onBarNextClicked(int id);

private:
    void createBand(int band);
    cm::LabelButton *createStepKey(int band, int y, const QString &picture, const char *slot);
    void stepBand(int band, void (cm::SliderBarWidget::*step)());
    void storeSlot(int slot);
    void recallSlot(int slot);

    QScopedPointer<Ui::Audiosetting_right_eq_widget> m_ui;
    QImage m_knob;
    QImage *m_knobImage = &m_knob;  ///< the knob as the sliders take it
    QTimer m_commitTimer;           ///< while it runs, a finger moves a slider and nothing is sent
    QList<cm::SliderBarWidget *> m_sliders;
    QList<cm::LabelButton *> m_upKeys;
    QList<cm::LabelButton *> m_downKeys;
    QList<QLabel *> m_emptyIcons;  ///< by slot, shown while it is empty
    QList<QLabel *> m_captions;    ///< by slot, shown while it is stored
    QButtonGroup *m_slotGroup = nullptr;
    QList<int> m_levels;  ///< by band
    int m_dragSection = 0;
    int m_dragValue = 0;
};
