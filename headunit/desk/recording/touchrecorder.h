// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "headunit/desk/frame/touchlog.h"

#include <QSet>
#include <QStringList>

namespace headunit {

class DeskContext;

/// Records what is touched on the unit, with its times, as a script that does the same on any unit: it begins with the
/// set-up that is in force. A recording starts as the unit does, on the home screen with applications that are new, as
/// what they remember of before is no part of a set-up.
class TouchRecorder : public QObject {
    Q_OBJECT
public:
    explicit TouchRecorder(DeskContext &context);

    void start();
    void stop();
    bool isRecording() const { return m_recording; }
    /// Presses of finger and keys so far.
    int touches() const { return m_touches; }
    /// ms from the start to the last touch.
    qint64 length() const { return m_last; }
    /// The recording, or that of before.
    QString script() const;

Q_SIGNALS:
    /// The recording began, grew or ended. \a lines are new.
    void changed(const QStringList &lines);

private:
    void take(const Touch &touch);
    void takeChange();
    QString press(const QPoint &position) const;
    void add(const QString &line);

    DeskContext &m_context;
    QStringList m_lines;
    bool m_recording = false;
    bool m_down = false;
    QSet<int> m_keys;  ///< of the keyboard that are down
    int m_touches = 0;
    qint64 m_start = 0;
    qint64 m_last = 0;  ///< when the last line was, in ms since the start
};

}  // namespace headunit
