// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "audioeqtype.h"

#include <QList>
#include <QScopedPointer>
#include <QWidget>

class QButtonGroup;
struct tagAudioEQItem_T;

namespace Ui {
class Audiosetting_right_factoryeq_widget;
}

/// The page of factory EQ presets: six keys, of which the one in force is marked.
class Audiosetting_right_factoryeq_widget : public QWidget {
    Q_OBJECT
public:
    explicit Audiosetting_right_factoryeq_widget(QWidget *parent);
    ~Audiosetting_right_factoryeq_widget() override;

    void initUi();
    /// Marks the preset in force; under the custom curve, the first preset that is identical to it.
    void resume();
    /// Marks the key of that curve type, or none where it has no key.
    void setButtonInitClick(int type);
    /// First row of that type in the preset table, or 0.
    int findItemIndexByType(int type);
    /// Whether \a levels are the slider levels of the curve's thirteen gains.
    bool eqCompareList(tagAudioEQItem_T item, QList<int> levels);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onButtoneEqClicked(int iIdx);
    void onSetRockEq();
    void onSetHipHopEq();
    void onSetElectronicEq();
    void onSetJazzEq();
    void onSetPopEq();
    void onSetFlatEq();

private:
    void nameKeys();
    QScopedPointer<Ui::Audiosetting_right_factoryeq_widget> m_ui;
    QButtonGroup *m_group = nullptr;
    QList<AudioEQType> m_types;  ///< by key; also the order in which a custom curve is compared
};
