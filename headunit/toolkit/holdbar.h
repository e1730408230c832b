// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QTimer>
#include <QWidget>

namespace headunit {

/// The bar at a key's foot that fills while the key is held, for holds that do something when they last long enough.
///
/// It comes after a quarter of a second, so that a tap shows nothing, is full when the hold is over, and stays a moment
/// then. Touches go through it. It counts its timer's ticks, so it also runs in a time that is not the clock's.
class HoldBar : public QWidget {
public:
    /// Lies at the foot of \a key, which owns it; hidden.
    explicit HoldBar(QWidget *key);

    /// A hold of \a interval ms begins.
    void begin(int interval);
    /// The hold has lasted: full, and gone 400 ms later.
    void complete();
    /// The hold has ended before.
    void cancel();

    /// Filled pixels, 0 to the bar's width.
    int filled() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tick();

    QTimer m_timer;
    int m_interval = 0;  ///< ms
    int m_elapsed = 0;   ///< ms
    bool m_complete = false;
};

}  // namespace headunit
