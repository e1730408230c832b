// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/audio/service/soundstate.h"

#include <QVector>
#include <QWidget>

namespace headunit {

class Key;

/// "The other application": plays the rest of the car, so that everything that reaches Audio Settings from outside
/// can be done by hand.
class CarScreen : public QWidget {
    Q_OBJECT
public:
    explicit CarScreen(QWidget *parent);

    void setSource(int source);
    void setLanguage(const QString &code);
    void setCallActive(bool active);
    void setActivePrompts(const std::array<bool, SoundState::prompts> &active);

Q_SIGNALS:
    void volumeSettingsRequested();
    void sourceChosen(int source);
    void languageChosen(const QString &code);
    void callToggled();
    void promptToggled(headunit::Prompt prompt);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    struct StepKey {
        const char *name;
        const char *picture;
    };
    void addStepper(int row, int captionTextId, const StepKey &down, const StepKey &up, void (CarScreen::*step)(int));
    void addLanguages();
    void addPrompts();
    void addActions();
    void stepSource(int by);
    void stepChannel(int by);
    void stepLevel(int by);

    int m_source = 0;
    int m_channel = 0;                                      ///< index into texts::channels
    QVector<Key *> m_languageKeys;                          ///< in the order of Language::all()
    std::array<Key *, SoundState::prompts> m_promptKeys{};  ///< by Prompt
    Key *m_callKey = nullptr;
};

}  // namespace headunit
