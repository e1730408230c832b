// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QLabel>
#include <QTimer>

class QAbstractButton;

namespace audiosetting {

/// The light over one loudspeaker of the cabin: it shows whose delay is touched, as long as a finger is on one of the
/// delay's keys and for a second more. Touches go through it.
class LoudspeakerLight : public QLabel {
    Q_OBJECT
public:
    /// \a parent holds the cabin; the light is hidden at first.
    explicit LoudspeakerLight(QWidget *parent);

    /// While \a key is touched the light is centred at \a place of its parent.
    void follow(QAbstractButton *key, const QPoint &place);

protected:
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void touched();
    void timeIsOver();

private:
    QHash<QObject *, QPoint> m_places;  ///< by key
    QAbstractButton *m_key = nullptr;   ///< touched last
    QTimer m_timer;
};

}  // namespace audiosetting
