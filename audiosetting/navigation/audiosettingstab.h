// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QScopedPointer>
#include <QTimer>
#include <QWidget>

class QButtonGroup;

namespace Ui {
class AudiosettingsTab;
}

/// The tab bar on the left: five exclusive keys, four of which are disabled while Defeat is on.
class AudiosettingsTab : public QWidget {
    Q_OBJECT
public:
    explicit AudiosettingsTab(QWidget *parent);
    ~AudiosettingsTab() override;

    /// Marks the tab of that id and remembers it for an undone click; a negative index is ignored.
    void setItemSelect(int index);
    /// Enables the tabs that Defeat disables, or disables them, from the store.
    void updateBtnEn();

Q_SIGNALS:
    /// A tab was chosen; ids as audiosetting::PageId. At most one per 150 ms.
    void itemClicked(int id);

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void onPageKeyClicked(int iIdex);
    void onSettingsCacheSig(const QString &key);

private:
    void nameKeys();
    QScopedPointer<Ui::AudiosettingsTab> m_ui;
    QButtonGroup *m_group;
    QTimer m_guard;
    int m_lastIndex = 0;
};
