// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QWidget>

#include <functional>

namespace headunit {

/// The strip on top of the host's own screens: what plays on the left, behind a crossed loudspeaker while it cannot be
/// heard, a call, the time on the right.
class StatusBar : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool silent READ isSilent)
public:
    static constexpr int barHeight = 48;

    using Clock = std::function<QString()>;

    /// \a clock gives the text of the time of day.
    StatusBar(Clock clock, QWidget *parent);

    void setSourceTextId(int id);
    void setCallActive(bool active);
    void setSilent(bool silent);
    bool isSilent() const { return m_silent; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    const Clock m_clock;
    QString m_time;
    int m_sourceTextId = 0;
    bool m_callActive = false;
    bool m_silent = false;
};

}  // namespace headunit
